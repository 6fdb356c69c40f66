#include "reference/rgb/rle8.h"

#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

#include "support/arena.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Routine = void (*)(void*, long, void*, long, long, long, void*);

constexpr long plenty = 1000;

// All three under one shape, the reference by the number of its pixel's bytes.
struct Decoder {
    const char* name;
    Routine routine;
    size_t pixel_bytes;
};
const std::vector<Decoder> decoders = {
    {"rle8_rgba32", tntvt_rle8_rgba32, 4}, {"rle8_rgb32", tntvt_rle8_rgb32, 4}, {"rle8_rgb24", tntvt_rle8_rgb24, 3}};

bool decode_by_reference(const Decoder& decoder, uint8_t* dst, long stride, const uint8_t* src, long height,
                         const uint8_t* palette, long codes)
{
    return decoder.pixel_bytes == 4 ? reference::rle8_rgb32(dst, stride, src, height, palette, codes)
                                    : reference::rle8_rgb24(dst, src, height, palette, codes);
}

uint8_t any_byte(Random& random, long high = 255) { return static_cast<uint8_t>(random.between(0, high)); }

// Codes as an encoder writes them.
Bytes valid_stream(Random& random)
{
    Bytes stream;
    for (long codes = random.between(0, 40); codes > 0; --codes) {
        const long kind = random.between(0, 9);
        if (kind < 2) {
            stream.insert(stream.end(), {0, 0});
        } else if (kind < 5) {
            const auto count = static_cast<uint8_t>(random.between(3, 12));
            stream.insert(stream.end(), {0, count});
            for (int i = 0; i < count + count % 2; ++i) stream.push_back(any_byte(random));
        } else {
            stream.insert(stream.end(),
                          {static_cast<uint8_t>(random.between(1, kind == 9 ? 255 : 8)), any_byte(random)});
        }
    }
    return stream;
}

// An even count of bytes of no meaning, small ones among them more often than not.
Bytes noise(Random& random)
{
    Bytes stream(static_cast<size_t>(2 * random.between(0, 40)));
    for (uint8_t& byte : stream) byte = any_byte(random, random.between(0, 3) == 0 ? 255 : 4);
    return stream;
}

// Ends of bitmap for every decoder: more than an absolute run takes away, then one at an odd place.
Bytes ended(Bytes stream)
{
    for (int i = 0; i < 160; ++i) stream.insert(stream.end(), {0, 1});
    stream.insert(stream.end(), {0, 0, 1});
    return stream;
}

testing::AssertionResult agree(Random& random, const Decoder& decoder, Bytes stream, long height)
{
    constexpr long reach = 45 * 1024;
    const long stride = random.between(-200, 200);
    Bytes palette = random.bytes(256 * decoder.pixel_bytes);
    const Bytes old_stream = stream, old_palette = palette;
    Arena arena(random, 4096, reach);
    if (!decode_by_reference(decoder, arena.expected(), stride, stream.data(), height, palette.data(), plenty))
        return testing::AssertionFailure() << "the stream has no end";
    decoder.routine(arena.actual(), stride, stream.data(), random.between(-9, 9), random.between(-9, 9), height,
                    palette.data());
    if (stream != old_stream || palette != old_palette) return testing::AssertionFailure() << "the input has changed";
    return arena.agrees(0, stride) << "; " << decoder.name << ", stride " << stride << ", height " << height;
}

TEST(Rle8Reference, agrees_on_valid_streams)
{
    Random random(561);
    for (int i = 0; i < 400; ++i) {
        const Bytes stream = ended(valid_stream(random));
        for (const Decoder& decoder : decoders) ASSERT_TRUE(agree(random, decoder, stream, random.between(-7, 10)));
    }
}

TEST(Rle8Reference, agrees_on_noise)
{
    Random random(562);
    for (int i = 0; i < 400; ++i) {
        const Bytes stream = ended(noise(random));
        for (const Decoder& decoder : decoders) ASSERT_TRUE(agree(random, decoder, stream, random.between(-7, 10)));
    }
}

TEST(Rle8Reference, does_not_agree_with_the_other_decoder)
{
    Random random(563);
    const Decoder crossed = {"crossed", tntvt_rle8_rgb32, 3};
    Bytes stream = {2, 3, 0, 1};
    Bytes palette(1024, 0x31);
    Arena arena(random, 0, 64);
    ASSERT_TRUE(decode_by_reference(crossed, arena.expected(), 0, stream.data(), 1, palette.data(), plenty));
    crossed.routine(arena.actual(), 0, stream.data(), 0, 0, 1, palette.data());
    EXPECT_FALSE(arena.agrees());
}

// A stream that its own pixels fall on, at each distance from it. Palettes of small bytes make codes.
TEST(Rle8Reference, agrees_on_a_stream_under_its_pixels)
{
    constexpr long few = 48, reach = few * 1024 + 4096;
    Random random(564);
    int compared = 0;
    for (const Decoder& decoder : decoders)
        for (long distance = -64; distance <= 64; ++distance)
            for (int round = 0; round < 2; ++round) {
                Bytes palette = random.bytes(256 * decoder.pixel_bytes);
                for (uint8_t& byte : palette) byte = static_cast<uint8_t>(byte % 4);
                const Bytes stream = ended(valid_stream(random));
                Arena arena(random, 4096, reach);
                std::copy(stream.begin(), stream.end(), arena.actual());
                std::copy(stream.begin(), stream.end(), arena.expected());
                const long stride = random.between(-16, 16), height = random.between(-3, 5);
                if (!decode_by_reference(decoder, arena.expected(distance), stride, arena.expected(), height,
                                         palette.data(), few))
                    continue;
                decoder.routine(arena.actual(distance), stride, arena.actual(), 0, 0, height, palette.data());
                ASSERT_TRUE(arena.agrees()) << decoder.name << ", distance " << distance;
                ++compared;
            }
    EXPECT_GT(compared, 300);
}

// Every code of two bytes, followed by small runs and an end that each decoder meets.
TEST(Rle8Exhaustive, all_codes)
{
    Random random(565);
    Bytes runs = random.bytes(258);
    for (uint8_t& byte : runs) byte = static_cast<uint8_t>(byte % 4 + 1);
    const Bytes after_run = {0, 0, 2, 9, 0, 1}, after_zero = ended(runs);
    for (const Decoder& decoder : decoders) {
        Bytes palette = random.bytes(256 * decoder.pixel_bytes);
        for (int c = 0; c < 256; ++c)
            for (int v = 0; v < 256; ++v) {
                Bytes stream = {static_cast<uint8_t>(c), static_cast<uint8_t>(v)};
                const Bytes& rest = c == 0 ? after_zero : after_run;
                stream.insert(stream.end(), rest.begin(), rest.end());
                Bytes actual(decoder.pixel_bytes * 1600, 0xEE), expected(actual);
                ASSERT_TRUE(decode_by_reference(decoder, expected.data(), 0, stream.data(), 2, palette.data(), plenty));
                decoder.routine(actual.data(), 0, stream.data(), 0, 0, 2, palette.data());
                ASSERT_TRUE(actual == expected) << decoder.name << ' ' << c << ' ' << v;
            }
    }
}

}  // namespace
}  // namespace tintvert::test
