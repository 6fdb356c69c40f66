#include "io/pictures/bmp.h"

#include <algorithm>
#include <cstdlib>

#include "failure.h"
#include "frame/memory.h"
#include "geometry.h"
#include "io/clip_options.h"
#include "io/pictures/rgb_layouts.h"

namespace tintvert::core {
namespace {

constexpr uint32_t bi_rgb = 0, bi_rle8 = 1, bi_bitfields = 3;
constexpr size_t file_header = 14, info_header = 40, v4_header = 108;

struct Bmp {
    std::string name;
    std::vector<uint8_t> bytes;
    size_t pixels_at = 0, header = 0;
    int64_t width = 0, height = 0;
    bool bottom_up = true;
    unsigned bits = 0;
    uint32_t coding = 0;

    uint32_t word(size_t at) const { return load<uint32_t>(bytes.data() + at); }
    Failure broken(const char* what) const { return Failure(Exit::no_file, "{}: {}", name, what); }
};

Bmp read_header(InputFile& file)
{
    Bmp bmp;
    bmp.name = file.name();
    bmp.bytes = file.read_rest();
    if (bmp.bytes.size() < file_header + info_header || bmp.bytes[0] != 'B' || bmp.bytes[1] != 'M')
        throw bmp.broken("no BMP file");
    bmp.pixels_at = bmp.word(10);
    bmp.header = bmp.word(14);
    bmp.width = static_cast<int32_t>(bmp.word(18));
    bmp.height = std::abs(int64_t{static_cast<int32_t>(bmp.word(22))});
    bmp.bottom_up = static_cast<int32_t>(bmp.word(22)) > 0;
    bmp.bits = load<uint16_t>(bmp.bytes.data() + 28);
    bmp.coding = bmp.word(30);
    if (bmp.header < info_header) throw bmp.broken("a BMP with a header of OS/2");
    if (bmp.width < 1 || bmp.height < 1 || bmp.width > 1 << 20 || bmp.height > 1 << 20)
        throw bmp.broken("a BMP of impossible size");
    naming(bmp.name, [&] { need_sane_size({bmp.width, bmp.height}); });
    if (file_header + bmp.header > bmp.bytes.size() || bmp.pixels_at > bmp.bytes.size())
        throw bmp.broken("a BMP that is cut short");
    return bmp;
}

CodedPicture coded_picture(const Bmp& bmp)
{
    if (bmp.bits != 8 || bmp.coding != bi_rle8 || !bmp.bottom_up)
        throw bmp.broken("a BMP that is not run-length coded with 8 bits a pixel");
    const size_t colours = bmp.word(46) == 0 ? 256 : std::min<size_t>(bmp.word(46), 256);
    const size_t palette_at = file_header + bmp.header;
    if (palette_at + colours * 4 > bmp.bytes.size()) throw bmp.broken("a BMP that is cut short");
    CodedPicture result{bmp.width, bmp.height, std::vector<uint8_t>(1024), {}};
    std::copy_n(bmp.bytes.begin() + static_cast<long>(palette_at), colours * 4, result.palette.begin());
    result.stream.assign(bmp.bytes.begin() + static_cast<long>(bmp.pixels_at), bmp.bytes.end());
    return result;
}

// Blue, green, red in bytes 0 to 2, and alpha, if the header has a mask for it, in byte 3.
bool has_alpha(const Bmp& bmp)
{
    if (bmp.coding == bi_rgb) return false;
    const size_t masks = file_header + info_header;
    const bool in_header = bmp.header >= info_header + 16;
    if (bmp.bits != 32 || bmp.bytes.size() < masks + 16 || bmp.word(masks) != 0xFF0000 ||
        bmp.word(masks + 4) != 0xFF00 || bmp.word(masks + 8) != 0xFF)
        throw bmp.broken("a BMP whose channels are not bytes in the order blue, green, red");
    return in_header && bmp.word(masks + 12) == 0xFF000000;
}

int64_t line_bytes(int64_t width, int64_t bytes_a_pixel) { return (width * bytes_a_pixel + 3) / 4 * 4; }

void reverse_lines(std::vector<uint8_t>& frame, int64_t stride)
{
    const int64_t lines = static_cast<int64_t>(frame.size()) / stride;
    for (int64_t y = 0; y < lines / 2; ++y) {
        const auto line = frame.begin() + y * stride;
        std::swap_ranges(line, line + stride, frame.begin() + (lines - 1 - y) * stride);
    }
}

Picture decoded(const Bmp& bmp)
{
    const catalog::Routine& routine = *catalog::find("tntvt_rle8_rgb32");
    const std::vector<uint8_t> frame =
        decode_rle8(routine, catalog::plain_call(routine, {bmp.width, bmp.height}), coded_picture(bmp));
    return picture_of_frame(frame.data(), "rgb32", bmp.width * 4, bmp.width, bmp.height, {}, false);
}

void put(std::vector<uint8_t>& bytes, size_t at, uint32_t word) { store(bytes.data() + at, word); }

}  // namespace

CodedPicture read_bmp_rle8(InputFile& file) { return coded_picture(read_header(file)); }

Picture read_bmp(InputFile& file)
{
    const Bmp bmp = read_header(file);
    if (bmp.coding == bi_rle8) return decoded(bmp);
    if ((bmp.bits != 24 && bmp.bits != 32) || (bmp.coding != bi_rgb && bmp.coding != bi_bitfields))
        throw bmp.broken("a BMP that has neither 24 nor 32 bits a pixel, nor run-length coding");
    const bool alpha = has_alpha(bmp);
    const int64_t stride = line_bytes(bmp.width, bmp.bits / 8);
    if (stride * bmp.height > static_cast<int64_t>(bmp.bytes.size() - bmp.pixels_at))
        throw bmp.broken("a BMP that is cut short");
    const auto first = bmp.bytes.begin() + static_cast<long>(bmp.pixels_at);
    std::vector<uint8_t> lines(first, first + stride * bmp.height);
    if (bmp.bottom_up) reverse_lines(lines, stride);
    return picture_of_frame(lines.data(), bmp.bits == 24 ? "rgb24" : "rgb32", stride, bmp.width, bmp.height, {}, alpha);
}

void write_bmp(OutputFile& file, const Picture& picture, bool alpha)
{
    const size_t header = alpha ? v4_header : info_header;
    const int64_t stride = line_bytes(picture.width, alpha ? 4 : 3);
    std::vector<uint8_t> head(file_header + header);
    std::vector<uint8_t> lines = frame_of_picture(picture, alpha ? "rgb32" : "rgb24", stride, {});
    reverse_lines(lines, stride);
    head[0] = 'B';
    head[1] = 'M';
    put(head, 2, static_cast<uint32_t>(head.size() + lines.size()));
    put(head, 10, static_cast<uint32_t>(head.size()));
    put(head, 14, static_cast<uint32_t>(header));
    put(head, 18, static_cast<uint32_t>(picture.width));
    put(head, 22, static_cast<uint32_t>(picture.height));
    put(head, 26, 1 | (alpha ? 32u : 24u) << 16);
    put(head, 34, static_cast<uint32_t>(lines.size()));
    if (alpha) {
        put(head, 30, bi_bitfields);
        for (uint32_t mask = 0xFF0000, at = 54; at < 66; at += 4, mask >>= 8) put(head, at, mask);
        put(head, 66, 0xFF000000);
        put(head, 70, 0x73524742);  // sRGB
    }
    file.write(head.data(), head.size());
    file.write(lines.data(), lines.size());
}

}  // namespace tintvert::core
