#include <gtest/gtest.h>
#include <tintvert/field.h>
#include <zkutil.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Words = std::vector<uint32_t>;

constexpr unsigned int code_2vuy = 0x79757632, code_v210 = 0x30313276, code_r210 = 0x30313272, code_BGRA = 0x41524742;

unsigned char* bytes(Words& words) { return reinterpret_cast<unsigned char*>(words.data()); }

TEST(FieldMixing, weaves_and_takes_apart)
{
    Words first{1, 2}, second{3}, frame(3);
    tntvt_fld_sep_to_mix32(bytes(frame), 4, bytes(first), bytes(second), 4, 1, 3);
    EXPECT_EQ(frame, (Words{1, 3, 2}));
    Words even(2), odd(1);
    tntvt_fld_mix_to_sep32(bytes(even), bytes(odd), 4, bytes(frame), 4, 1, 3);
    EXPECT_EQ(even, first);
    EXPECT_EQ(odd, second);
    tntvt_fld_sep_to_mix32(bytes(frame) + 8, -4, bytes(first), bytes(second), 4, 1, 3);
    EXPECT_EQ(frame, (Words{2, 3, 1}));
}

TEST(CopyInterleaved, copies_the_smaller_stride)
{
    Bytes src{1, 2, 3, 4, 5, 6}, dst(4, 0xEE);
    tntvt_copy_interleaved(dst.data(), 2, src.data(), 3, 0, 2);
    EXPECT_EQ(dst, (Bytes{1, 2, 4, 5}));
    Bytes wide(6, 0xEE);
    tntvt_copy_interleaved(wide.data(), 3, src.data(), 2, 0, 2);
    EXPECT_EQ(wide, (Bytes{1, 2, 0xEE, 3, 4, 0xEE}));
    tntvt_copy_interleaved(wide.data(), 3, src.data(), 3, 0, 2);
    EXPECT_EQ(wide, src);
}

int dissolved(Words& dst, Words src, long width, unsigned int fourcc)
{
    return tntvt_copy_dissolve(bytes(dst), bytes(src), 64, width, 1, fourcc);
}

TEST(CopyDissolve, keeps_halves_before_sum)
{
    Words dst{0x01FF0103, 0x04040404, 7};
    EXPECT_EQ(dissolved(dst, {0x01FF0002, 0x02020202, 9}, 3, code_2vuy), 0);
    EXPECT_EQ(dst, (Words{0x00FE0002, 0x04040303, 7}));
}

TEST(CopyDissolve, halves_fields_after_the_sum)
{
    const auto word = [](uint32_t low, uint32_t middle, uint32_t top) { return low | middle << 10 | top << 20; };
    Words dst{word(1023, 1, 0) | 0xC0000000, word(1, 1023, 1), 7};
    EXPECT_EQ(dissolved(dst, {word(1023, 1, 1) | 0x40000000, word(0, 1023, 1023), 9}, 4, code_v210), 0);
    EXPECT_EQ(dst, (Words{word(1023, 1, 0), word(0, 1023, 512), 7}));
}

TEST(CopyDissolve, keeps_two_thirds_of_words)
{
    Words dst(7, 0);
    const Words src(7, 2);
    EXPECT_EQ(dissolved(dst, src, 1, code_v210), 0);
    EXPECT_EQ(dst, Words(7, 0));
    EXPECT_EQ(dissolved(dst, src, 2, code_v210), 0);
    EXPECT_EQ(dst, (Words{1, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(dissolved(dst, src, 6, code_r210), 0);
    EXPECT_EQ(dst, (Words{1, 1, 1, 1, 0, 0, 0}));
    EXPECT_EQ(dissolved(dst, src, 6, code_BGRA), 0);
    EXPECT_EQ(dst, (Words{1, 1, 1, 1, 1, 1, 0}));
}

TEST(CopyDissolve, asks_for_the_class_first)
{
    EXPECT_EQ(tntvt_copy_dissolve(nullptr, nullptr, 0, 0, 0, 0), -1);
    for (const unsigned int fourcc : {code_2vuy, code_v210, code_r210, code_BGRA}) {
        EXPECT_EQ(tntvt_copy_dissolve(nullptr, nullptr, 0, 9, 0, fourcc), 0);
        EXPECT_EQ(tntvt_copy_dissolve(nullptr, nullptr, 0, -9, 9, fourcc), 0);
    }
}

}  // namespace
