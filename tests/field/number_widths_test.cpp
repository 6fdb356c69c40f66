// How wide the numbers of the field routines are: strides and sizes of 64 bits, and sizes of 32 bits that are not
// signed. The memory is 9 GiB and more of address space, of which only what is touched becomes real.
#include <gtest/gtest.h>
#include <tintvert/field.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<unsigned char>;

constexpr long whole = 1l << 32;

Bytes counted(size_t bytes, unsigned char first)
{
    Bytes result;
    for (size_t i = 0; i < bytes; ++i) result.push_back(static_cast<unsigned char>(first + i));
    return result;
}

// 2 x 2^32 bytes and a page, all of them open.
struct Far {
    static constexpr long size = 2 * whole + 4096;
    FencedBuffer open{{0, size}, size, Side::above, Closed::wholly};

    unsigned char* begin() const { return open.pointer(); }
    Bytes at(long offset, size_t bytes = 4) const
    {
        return {begin() + offset, begin() + offset + static_cast<long>(bytes)};
    }
};

TEST(FieldNumberWidths, mixed_lines_are_found_at_the_whole_stride)
{
    constexpr long stride = whole + 8;
    const Far far;
    Bytes first = counted(12, 1), second = counted(12, 101);
    tntvt_fld_sep_to_mix32(far.begin(), stride, first.data(), second.data(), 4, 1, 3);
    EXPECT_EQ(far.at(0), counted(4, 1));
    EXPECT_EQ(far.at(stride), counted(4, 101));
    EXPECT_EQ(far.at(2 * stride), counted(4, 5));
    EXPECT_EQ(far.at(8), Bytes(4, 0));

    Bytes even(8), odd(4);
    tntvt_fld_mix_to_sep32(even.data(), odd.data(), 4, far.begin(), stride, 1, 3);
    EXPECT_EQ(even, counted(8, 1));
    EXPECT_EQ(odd, counted(4, 101));
}

TEST(FieldNumberWidths, field_lines_are_found_at_the_whole_stride)
{
    constexpr long stride = whole + 8;
    const Far far;
    Bytes frame = counted(12, 1), odd(4);
    tntvt_fld_mix_to_sep32(far.begin(), odd.data(), stride, frame.data(), 4, 1, 3);
    EXPECT_EQ(far.at(0), counted(4, 1));
    EXPECT_EQ(far.at(stride), counted(4, 9));
    EXPECT_EQ(far.at(8), Bytes(4, 0));

    Bytes again(12);
    tntvt_fld_sep_to_mix32(again.data(), 4, far.begin(), odd.data(), stride, 1, 3);
    EXPECT_EQ(again, frame);
}

TEST(FieldNumberWidths, dissolved_lines_are_found_at_the_whole_stride)
{
    constexpr long stride = whole + 8;
    for (const unsigned int fourcc : {0x79757632u, 0x30313276u, 0x41524742u}) {
        const Far far;
        std::memset(far.begin() + stride, 40, 4), std::memset(far.begin() + 8, 40, 4);
        ASSERT_EQ(tntvt_copy_dissolve(far.begin() + 16, far.begin(), stride, 2, 2, fourcc), 0);
        EXPECT_EQ(far.at(stride + 16)[0], 20);
        EXPECT_EQ(far.at(24), Bytes(4, 0));
    }
}

// Strides that are equal in 32 bits are two in 64, and the smaller one is copied line by line.
TEST(FieldNumberWidths, interleaved_strides_are_compared_whole)
{
    const Far far;
    Bytes src = counted(8, 1), back(8);
    tntvt_copy_interleaved(far.begin(), whole + 4, src.data(), 4, 0, 2);
    EXPECT_EQ(far.at(0, 8), (Bytes{1, 2, 3, 4, 0, 0, 0, 0}));
    EXPECT_EQ(far.at(whole + 4), counted(4, 5));
    tntvt_copy_interleaved(back.data(), 4, far.begin(), whole + 4, 0, 2);
    EXPECT_EQ(back, src);
}

// Lines of 2^31 bytes and more are long ones, not ones below 0: all but a page of this memory is closed.
TEST(FieldNumberWidths, lines_of_2_to_the_31_bytes_are_work)
{
    const FencedBuffer page({0, 4 * whole + 4096}, 4096, Side::above, Closed::wholly);
    unsigned char* const frame = page.pointer();
    // 0x30000000 pixels are 0xC0000000 bytes, and lines of 0x80000000 bytes have 0x20000000 pixels to average.
    EXPECT_TRUE(faults([&] { tntvt_change_field_rgb(frame, 4, 0x30000000, 2, 0, nullptr, 0); }));
    EXPECT_TRUE(faults([&] { tntvt_change_field_rgb(frame, 11, 0, 2, 0x80000000, frame, 0); }));
    for (const unsigned int width : {0x20000000u, 0x80000000u, 0xFFFFFFFFu})
        for (const int mode : {0, 2, 17})
            EXPECT_TRUE(faults([&] { tntvt_deinterlace_rgb(frame, frame, width, 1, 4096, 0, 0, 0, mode); })) << width;
    for (const unsigned int fourcc : {0x79757632u, 0x30313276u, 0x30313272u, 0x41524742u})
        EXPECT_TRUE(faults([&] { tntvt_copy_dissolve(frame, frame, 4096, whole, 1, fourcc); })) << fourcc;
    // In place a width below 0 is as many pixels as the unsigned number says.
    for (const int width : {-1, -2147483647 - 1})
        EXPECT_TRUE(faults([&] { tntvt_flip_horz(frame, frame, width, 1, 0); })) << width;
}

// Choices are asked whole: a number whose low byte or half says something else is another number.
TEST(FieldNumberWidths, choices_are_asked_whole)
{
    for (const int keep : {0x100, 0x10000, -2147483647 - 1}) {
        Bytes src = counted(2, 1), dst(6, 0xEE);
        tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 1, 6, 2, 0x1000000, keep);
        EXPECT_EQ(dst, (Bytes{0xEE, 0xEE, 0xEE, 0xEE, 1, 2})) << keep;
    }
    // Line 2 stands out, and so line 1 becomes its mean with itself in every mode but 17 and 2, which also changes
    // line 2. Modes 16 and 17 copy the slack of a line.
    for (const int other : {0x100, 0x10000, -2147483647 - 1})
        for (const int mode : {2, 16, 17}) {
            Bytes src(45, 10), dst(45, 0xEE), expected = src;
            std::memset(&src[18], 200, 8), std::memset(&expected[18], 200, 8);
            std::memset(&expected[9], 200, 3), std::memset(&expected[12], 0, 5);
            for (size_t line = 0; line < 5; ++line) expected[9 * line + 8] = 0xEE;
            EXPECT_EQ(tntvt_deinterlace_rgb(dst.data(), src.data(), 1, 5, 9, 0, 0, 0, mode | other), 0);
            EXPECT_EQ(dst, expected) << (mode | other);
        }
    for (const unsigned int high : {0x100u, 0x10000u, 0x80000000u})
        for (unsigned int mode = 1; mode <= 14; ++mode)
            EXPECT_EQ(tntvt_change_field_rgb(nullptr, mode | high, 1, 4, 4, nullptr, 4), 0) << mode;
}

}  // namespace
}  // namespace tintvert::test
