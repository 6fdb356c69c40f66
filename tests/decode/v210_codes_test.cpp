// `v210` to RGB: every code of every sample.
#include <vector>

#include "decoders.h"

namespace tintvert::test {
namespace {

// Splitting: each field of each word at all its values.
TEST(V210GroupExhaustive, every_code_in_every_field)
{
    for (unsigned int field = 0; field < 12; ++field) {
        for (unsigned int code = 0; code < 1024; ++code) {
            for (const unsigned int others : {0u, 1023u}) {
                unsigned int words[4] = {};
                for (unsigned int n = 0; n < 12; ++n) words[n / 3] |= (n == field ? code : others) << (10 * (n % 3));
                words[field / 3] |= others << 30;
                uint16_t out[12] = {};
                static_assert(sizeof out == sizeof(v210FourWords));
                ASSERT_EQ(_v210_get_next_4words(words, reinterpret_cast<v210FourWords*>(out)), words + 4);
                for (unsigned int n = 0; n < 12; ++n) ASSERT_EQ(out[n], n == field ? code : others);
            }
        }
    }
}

// A picture of every luma with every Cb and, once, every Cr: a line has one pair of chroma codes, and its Cr
// is `factor` x Cb + `start`. Y0 of a pair runs upwards and Y1 downwards.
class DecodersExhaustive : public testing::Test {
protected:
    static constexpr size_t pixels = 2052, words = pixels / 6 * 4, lines = 1024;

    std::vector<uint32_t> picture(unsigned int factor, unsigned int start) const
    {
        std::vector<uint32_t> result(words * lines);
        for (uint32_t cb = 0; cb < lines; ++cb) {
            const uint32_t cr = (cb * factor + start) % 1024;
            for (uint32_t n = 0; n < words * 3; ++n) {
                const uint32_t y = n % 4 == 1 ? n / 4 : 1023 - n / 4;
                const uint32_t sample = n % 2 == 1 ? y % 1024 : n % 4 == 0 ? cb : cr;
                result[cb * words + n / 3] |= sample << (10 * (n % 3));
            }
        }
        return result;
    }
};

constexpr unsigned int factors[] = {1, 3, 117, 511, 1021, 1023};

TEST_F(DecodersExhaustive, by_ten_bits)
{
    std::vector<uint8_t> dst(pixels * lines * 4), expected = dst;
    for (const unsigned int factor : factors) {
        for (const unsigned int start : {0u, 333u}) {
            std::vector<uint32_t> src = picture(factor, start);
            const int bgra = static_cast<int>(start);
            _v210_to_rgb(src.data(), dst.data(), pixels, lines, pixels * 4, bgra);
            reference::v210_to_rgb(reinterpret_cast<const uint8_t*>(src.data()), expected.data(), pixels, lines,
                                   pixels * 4, bgra != 0);
            ASSERT_TRUE(dst == expected) << "Cr " << factor << " x Cb + " << start;
        }
    }
}

TEST_F(DecodersExhaustive, by_the_top_eight_bits)
{
    std::vector<uint8_t> dst(pixels * lines * 4), expected = dst;
    for (const unsigned int factor : factors) {
        std::vector<uint32_t> src = picture(factor, factor / 2);
        for (const Decoder& decoder : decoders_of_v210) {
            for (const int64_t bytes : {decoder.bytes_a_pixel, 4}) {
                const auto stride = static_cast<int64_t>(pixels) * bytes;
                decoder.routine(dst.data(), stride, src.data(), words * 4, pixels, lines, 1);
                decoder.reference(expected.data(), stride, reinterpret_cast<const uint8_t*>(src.data()), words * 4,
                                  pixels, lines, 1);
                ASSERT_TRUE(dst == expected) << decoder.name << ", Cr by " << factor;
            }
        }
    }
}

}  // namespace
}  // namespace tintvert::test
