// 12-bit samples against OpenImageIO: its packed DPX is what the unpackers read, its 12-bit TIFF is what the packers
// write.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"

namespace tintvert::test {
namespace {

// A width of 64 makes 192 samples a line: whole rounds, whole words and whole bytes.
constexpr Size size{64, 16};
constexpr long packed_line = size.width * 3 * 12 / 8, deep_line = size.width * 6;

// The three samples of each pixel, red first, of 12 bits at the top of 16. OpenImageIO divides by 65535 and multiplies
// by 4095, which gives the 12 bits back for these.
Samples picture()
{
    Samples samples = noise(81, size.pixels() * 3, 0, 4095);
    for (uint16_t& sample : samples) sample = static_cast<uint16_t>(sample << 4 | sample >> 8);
    return samples;
}

// A file with `picture` made by OpenImageIO from a big-endian PPM.
Bytes made(const Words& options, const std::string& suffix)
{
    const std::string header = "P6\n" + std::to_string(size.width) + " " + std::to_string(size.height) + "\n65535\n";
    Bytes ppm(header.begin(), header.end());
    for (const uint16_t sample : picture()) {
        ppm.push_back(static_cast<uint8_t>(sample >> 8));
        ppm.push_back(static_cast<uint8_t>(sample & 0xFF));
    }
    Words command = {"oiiotool", "{in}", "-d", "uint12", "--attrib", "oiio:BitsPerSample", "12"};
    command.insert(command.end(), options.begin(), options.end());
    command.insert(command.end(), {"-o", "{out}" + suffix});
    return through(command, ppm);
}

uint32_t word_at(const Bytes& file, size_t at)
{
    return file.at(at) | static_cast<uint32_t>(file.at(at + 1)) << 8 | static_cast<uint32_t>(file.at(at + 2)) << 16 |
           static_cast<uint32_t>(file.at(at + 3)) << 24;
}

// The pixels of a little-endian DPX start where the word at byte 4 says.
Bytes dpx_lines()
{
    const Bytes file = made({"--attrib", "dpx:Packing", "Packed", "--attrib", "oiio:Endian", "little"}, ".dpx");
    const auto start = file.begin() + static_cast<std::ptrdiff_t>(word_at(file, 4));
    return {start, start + packed_line * size.height};
}

// The strips of a little-endian TIFF with no compression, end to end. Tag 273 says where they start, 279 how long
// each is.
Bytes tiff_lines()
{
    const Bytes file = made({"--compression", "none"}, ".tif");
    const size_t directory = word_at(file, 4), entries = word_at(file, directory) & 0xFFFF;
    std::vector<uint32_t> starts, lengths;
    for (size_t entry = directory + 2; entry < directory + 2 + entries * 12; entry += 12) {
        const uint32_t tag = word_at(file, entry) & 0xFFFF, type = word_at(file, entry) >> 16;
        if (tag != 273 && tag != 279) continue;
        const uint32_t count = word_at(file, entry + 4), bytes = type == 3 ? 2 : 4;
        const size_t values = count * bytes <= 4 ? entry + 8 : word_at(file, entry + 8);
        for (uint32_t i = 0; i < count; ++i)
            (tag == 273 ? starts : lengths)
                .push_back(type == 3 ? file.at(values + i * 2) | file.at(values + i * 2 + 1) * 256u
                                     : word_at(file, values + i * 4));
    }
    Bytes lines;
    for (size_t i = 0; i < starts.size(); ++i)
        lines.insert(lines.end(), file.begin() + starts[i], file.begin() + starts[i] + lengths.at(i));
    return lines;
}

TEST_F(OpenImageIo, from_12_to_16_bits)
{
    Bytes packed = dpx_lines(), ours(static_cast<size_t>(deep_line * size.height));
    tntvt_rgb12_bgr48(ours.data(), deep_line, packed.data(), packed_line, size.width, size.height);
    Samples expected = picture();
    for (uint16_t& sample : expected) sample &= 0xFFF0;
    EXPECT_TRUE(same(words16(ours), expected));

    // Three times the pixels of each line are done: room for the excess of the last one.
    packed.resize(packed.size() + packed_line * 3);
    ours.resize(ours.size() + deep_line * 3);
    tntvt_rgb12_rgb48(ours.data(), deep_line, packed.data(), packed_line, size.width, size.height);
    ours.resize(static_cast<size_t>(deep_line * size.height));
    for (size_t i = 0; i < expected.size(); i += 3) std::swap(expected[i], expected[i + 2]);
    EXPECT_TRUE(same(words16(ours), expected));
}

TEST_F(OpenImageIo, from_12_to_8_bits)
{
    Bytes packed = dpx_lines(), ours(size.pixels() * 4), expected;
    tntvt_rgb12_rgba32(ours.data(), size.width * 4, packed.data(), packed_line, size.width, size.height);
    const Samples samples = picture();
    for (size_t pixel = 0; pixel < size.pixels(); ++pixel) {
        // The blue of the third pixel of eight is the red of the first.
        const size_t blue = pixel % 8 == 2 ? (pixel - 2) * 3 : pixel * 3 + 2;
        for (const int byte : {samples[blue] >> 8, samples[pixel * 3 + 1] >> 8, samples[pixel * 3] >> 8, 255})
            expected.push_back(static_cast<uint8_t>(byte));
    }
    EXPECT_TRUE(same(ours, expected));
}

TEST_F(OpenImageIo, to_12_bits)
{
    const Bytes theirs = tiff_lines();
    Bytes wide = little_endian(picture()), ours(static_cast<size_t>(packed_line * size.height));
    tntvt_rgb48_rgb12(ours.data(), packed_line, wide.data(), deep_line, size.width, size.height);
    EXPECT_TRUE(same(ours, theirs));

    // The same values at the low end of the words, of which the upper four bits are not looked at.
    Samples low = picture();
    for (uint16_t& sample : low) sample = static_cast<uint16_t>(sample >> 4 | sample << 12);
    wide = little_endian(low);
    std::fill(ours.begin(), ours.end(), uint8_t{0});
    tntvt_rgb48_12_rgb12(ours.data(), packed_line, wide.data(), deep_line, size.width, size.height);
    EXPECT_TRUE(same(ours, theirs));
}

}  // namespace
}  // namespace tintvert::test
