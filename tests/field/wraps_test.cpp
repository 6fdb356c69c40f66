// Line offsets around 2^31 and 2^32. The memory is 9 GiB of address space, of which only what is touched
// becomes real.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert/field.h>

#include <cstdint>
#include <cstring>

namespace tintvert::test {
namespace {

constexpr uint64_t half = uint64_t{1} << 31, whole = 2 * half;

class Wraps : public testing::Test {
protected:
    void SetUp() override
    {
        void* const mapped =
            mmap(nullptr, reach, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        ASSERT_NE(mapped, MAP_FAILED);
        far = static_cast<unsigned char*>(mapped);
    }
    void TearDown() override
    {
        if (far != nullptr) munmap(far, reach);
    }

    static void fill_near(unsigned char* near)
    {
        for (int i = 0; i < 64; ++i) near[i] = static_cast<unsigned char>(i + 1);
    }
    uint32_t pixel(uint64_t offset) const
    {
        uint32_t result;
        std::memcpy(&result, far + offset, 4);
        return result;
    }

    static constexpr uint64_t reach = 2 * whole + half;
    unsigned char* far = nullptr;
};

uint32_t pixel_of(unsigned int first) { return first | (first + 1) << 8 | (first + 2) << 16 | (first + 3) << 24; }

// Twice 0x80000004 is 8: line 2 stands at 8 and line 3 at 0x8000000C.
TEST_F(Wraps, doubled_pitch_of_the_destination)
{
    unsigned char src[64];
    fill_near(src);
    const auto expect = [&](unsigned int mode, uint32_t line0, uint32_t line1, uint32_t line2, uint32_t line3) {
        ASSERT_EQ(tntvt_change_field_rgb(far, mode, 0, 4, 0x80000004, src, 4), 0);
        EXPECT_EQ(pixel(0), line0) << mode;
        EXPECT_EQ(pixel(half + 4), line1) << mode;
        EXPECT_EQ(pixel(8), line2) << mode;
        EXPECT_EQ(pixel(half + 12), line3) << mode;
        for (const uint64_t offset : {uint64_t{4}, half, half + 8, whole, whole + 8, whole + half + 12})
            EXPECT_EQ(pixel(offset), 0u) << mode << " at " << offset;
        std::memset(far, 0, 64);
        std::memset(far + half, 0, 64);
    };
    const uint32_t s0 = pixel_of(1), s1 = pixel_of(5), s2 = pixel_of(9), s3 = pixel_of(13);
    expect(5, 0, s1, 0, s3);
    expect(6, 0, s0, 0, s2);
    expect(7, s1, 0, s3, 0);
    expect(8, s0, 0, s2, 0);
    expect(9, s0, s0, s2, s2);
    expect(10, s1, s1, s3, s3);
    // 1 and 9 halved apart are 0 and 4, all others meet a truncated mean. The last line is line 2 with itself.
    expect(11, s0, 0x08070604, s2, 0x0C0B0A08);
    expect(12, s1, s1, 0x0C0B0A08, s3);
}

// Modes 1 and 2 with a source pitch of 4 on the same memory.
TEST_F(Wraps, doubled_pitch_in_place)
{
    fill_near(far);
    ASSERT_EQ(tntvt_change_field_rgb(far, 1, 0, 4, 0x80000004, nullptr, 4), 0);
    EXPECT_EQ(pixel(half + 4), pixel_of(1));
    EXPECT_EQ(pixel(half + 12), pixel_of(9));
    ASSERT_EQ(tntvt_change_field_rgb(far, 2, 0, 4, 0x80000004, nullptr, 4), 0);
    EXPECT_EQ(pixel(0), pixel_of(5));
    EXPECT_EQ(pixel(8), pixel_of(13));
    EXPECT_EQ(pixel(whole + 8), 0u);
}

// Mode 13 reads its source at the wrapped double pitch, and moves as much as the pitch of `dst`.
TEST_F(Wraps, doubled_pitch_of_the_source)
{
    unsigned char dst[16] = {};
    fill_near(far);
    std::memcpy(far + half + 4, far + 32, 16);
    ASSERT_EQ(tntvt_change_field_rgb(dst, 13, 0, 4, 4, far, 0x80000004), 0);
    uint32_t lines[4];
    std::memcpy(lines, dst, 16);
    EXPECT_EQ(lines[0], pixel_of(1));
    EXPECT_EQ(lines[1], pixel_of(9));
    EXPECT_EQ(lines[2], pixel_of(33));
    EXPECT_EQ(lines[3], pixel_of(41));
}

// The bottom half of two lines of 0x80000004 starts at 8; its own lines are a pitch apart, unwrapped.
TEST_F(Wraps, start_of_the_bottom_half)
{
    unsigned char src[64];
    fill_near(src);
    ASSERT_EQ(tntvt_change_field_rgb(far, 14, 0, 4, 0x80000004, src, 4), 0);
    EXPECT_EQ(pixel(0), pixel_of(5));
    EXPECT_EQ(pixel(half + 4), pixel_of(13));
    EXPECT_EQ(pixel(8), pixel_of(1));
    EXPECT_EQ(pixel(half + 12), pixel_of(9));
    // Three lines to a field: line 2 of each lies past 2^32, and the bottom half begins at 0x8000000C.
    std::memset(far, 0, 64);
    std::memset(far + half, 0, 64);
    ASSERT_EQ(tntvt_change_field_rgb(far, 14, 0, 6, 0x80000004, src, 4), 0);
    EXPECT_EQ(pixel(whole + 8), pixel_of(21));
    EXPECT_EQ(pixel(half + 12), pixel_of(1));
    EXPECT_EQ(pixel(whole + 16), pixel_of(9));
    EXPECT_EQ(pixel(whole + half + 20), pixel_of(17));
}

// The blend and the deinterlacer advance line by line, past 2^32.
TEST_F(Wraps, pitches_added_to_a_pointer_do_not)
{
    far[half + 4] = 100, far[8] = 50, far[whole + 8] = 200, far[16] = 100;
    ASSERT_EQ(tntvt_change_field_rgb(far, 4, 1, 3, 0x80000004, nullptr, 8), 0);
    EXPECT_EQ(far[half + 4], 75);
    EXPECT_EQ(far[whole + 8], 150);
    EXPECT_EQ(far[8], 50);

    std::memset(far, 10, 8), std::memset(far + half, 10, 8), std::memset(far + whole, 10, 8);
    std::memset(far + whole + half, 90, 8), std::memset(far + 2 * whole, 30, 8);
    ASSERT_EQ(tntvt_deinterlace_rgb(far, far, 1, 5, 0x80000000, 0, 0, 0, 0), 0);
    EXPECT_EQ(far[whole + half], 20);
    EXPECT_EQ(far[whole + half + 7], 0);
}

// Offsets of flipped lines are products of 32 bits: line 2 of 0x80000004 stands at 8.
TEST_F(Wraps, offsets_of_flipped_lines)
{
    unsigned char src[64];
    fill_near(src);
    tntvt_flip_vert_flags(far, src, 0, 0, 3, 0x80000004, 4, 0x2000000, 1);
    EXPECT_EQ(pixel(0), pixel_of(9));
    EXPECT_EQ(pixel(half + 4), pixel_of(5));
    EXPECT_EQ(pixel(8), pixel_of(1));
    EXPECT_EQ(pixel(whole + 8), 0u);
}

// What is added to an offset wraps as well: the left margin of 0xFFFFFFE8 bytes puts the lines, 0xFFFFFFF8 bytes
// apart, at 0xFFFFFFE8 and 0xFFFFFFE0.
TEST_F(Wraps, offsets_of_lines_beside_a_margin)
{
    unsigned char src[64];
    fill_near(src);
    tntvt_flip_vert_flags(far, src, 0, 0, 2, 0xFFFFFFF8, 16, 0x1000000, 1);
    EXPECT_EQ(pixel(0xFFFFFFE0), pixel_of(1));
    EXPECT_EQ(pixel(0xFFFFFFE8), pixel_of(9));
    EXPECT_EQ(pixel(0xFFFFFFF0), pixel_of(25));
    for (const uint64_t offset : {uint64_t{0}, whole, 2 * whole - 32}) EXPECT_EQ(pixel(offset), 0u) << offset;
}

// Line 1 begins 8 bytes before 2^32, and its third pixel and those after it are at 0, 4, ...
TEST_F(Wraps, offsets_of_mirrored_pixels)
{
    unsigned char* const dst = far + whole + half;
    for (const int width : {2, 3, 40}) {
        std::memset(dst, 0, 1024);
        for (int i = 0; i < 256; ++i) far[i] = static_cast<unsigned char>(i + 1);
        std::memcpy(far + whole - 8, far + 128, 8);
        std::memset(far + whole, 0xEE, 256);
        tntvt_flip_horz(dst, far, width, 2, 0xFFFFFFF8);
        const auto at = [&](const unsigned char* frame, int i) {
            uint32_t result;
            std::memcpy(&result, frame + static_cast<uint32_t>(-8 + 4 * i), 4);
            return result;
        };
        for (int i = 0; i < width; ++i) EXPECT_EQ(at(dst, i), at(far, width - i)) << width << ' ' << i;
        std::memset(dst + whole - 8, 0, 8);
    }
}

TEST_F(Wraps, offsets_of_mirrored_pixels_in_place)
{
    fill_near(far);
    std::memcpy(far + whole - 8, far + 32, 8);
    std::memset(far + whole, 0xEE, 64);
    // Line 0 exchanges its first pixel with its third, and line 1 its first, before 2^32, with its third, at 0.
    tntvt_flip_horz(far, far, 2, 2, 0xFFFFFFF8);
    EXPECT_EQ(pixel(whole - 8), pixel_of(9));
    EXPECT_EQ(pixel(whole - 4), pixel_of(37));
    EXPECT_EQ(pixel(0), pixel_of(33));
    EXPECT_EQ(pixel(8), pixel_of(1));
    EXPECT_EQ(pixel(whole), 0xEEEEEEEE);
}

TEST_F(Wraps, offsets_of_mirrored_lines)
{
    fill_near(far);
    std::memcpy(far + half + 4, far + 32, 8);
    tntvt_flip_horz(far, far, 2, 3, 0x80000004);
    // Line 0 exchanges 1.. with 9.., then line 2, at 8, exchanges what came there with 17..
    EXPECT_EQ(pixel(0), pixel_of(9));
    EXPECT_EQ(pixel(8), pixel_of(17));
    EXPECT_EQ(pixel(16), pixel_of(1));
    EXPECT_EQ(pixel(half + 4), 0u);
    EXPECT_EQ(pixel(half + 12), pixel_of(33));
    EXPECT_EQ(pixel(whole + 8), 0u);
}

}  // namespace
}  // namespace tintvert::test
