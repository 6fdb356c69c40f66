// Offsets, pitches and line counts that wrap at 32 bits, at each instruction-set level. Buffers are address space, of
// which only what is touched becomes real; nothing past 2^32 may be touched.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert.h>

#include <functional>
#include <utility>
#include <vector>

#include "simd/agreement.h"
#include "support/fence.h"
#include "support/sparse.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr size_t half = size_t{1} << 31, whole = 2 * half;

// What follows its 4 GiB faults.
class AddressSpace : public Sparse {
public:
    AddressSpace() { mprotect(data() + whole, 65536, PROT_NONE); }

    // Pixel n is at offset 4 * n, pixel -1 at 2^32 - 4.
    uint32_t& pixel(int n) const { return *reinterpret_cast<uint32_t*>(data() + static_cast<uint32_t>(4 * n)); }
};

void at_each_level(const std::function<void()>& work)
{
    std::vector<InstructionSet> all = levels();
    all.push_back(InstructionSet::scalar);
    for (const InstructionSet level : all) {
        SCOPED_TRACE("level " + std::to_string(static_cast<int>(level)));
        highest_instruction_set = level;
        EXPECT_FALSE(faults(work));
    }
    highest_instruction_set = InstructionSet::avx512;
}

// Line 1 begins two pixels before 2^32, so that its third pixel is the first one of line 0.
constexpr unsigned two_pixels_before = 0xFFFFFFF8;

TEST(SimdWraps, mirrored_pixels)
{
    const AddressSpace dst, src;
    ASSERT_TRUE(dst && src);
    for (int n = -2; n <= 300; ++n) src.pixel(n) = static_cast<uint32_t>(1000 + n);
    for (const int width : {2, 3, 16, 40, 300}) {
        at_each_level([&] {
            for (int n = -2; n < width; ++n) dst.pixel(n) = 0;
            tntvt_flip_horz(dst.data(), src.data(), width, 2, two_pixels_before);
            for (int n = -2; n < width - 2; ++n) EXPECT_EQ(dst.pixel(n), src.pixel(width - 4 - n)) << width << ' ' << n;
            for (int n = width - 2; n < width; ++n) EXPECT_EQ(dst.pixel(n), src.pixel(width - n)) << width << ' ' << n;
        });
    }
}

TEST(SimdWraps, pixels_mirrored_in_place)
{
    const AddressSpace frame;
    ASSERT_TRUE(frame);
    for (const int width : {2, 3, 16, 40, 300}) {
        std::vector<uint32_t> expected;
        for (int n = -2; n <= width; ++n) expected.push_back(static_cast<uint32_t>(1000 + n));
        for (const int line : {2, 0})
            for (int i = 0; i < width / 2; ++i)
                std::swap(expected[static_cast<size_t>(line + i)], expected[static_cast<size_t>(line + width - i)]);
        at_each_level([&] {
            for (int n = -2; n <= width; ++n) frame.pixel(n) = static_cast<uint32_t>(1000 + n);
            tntvt_flip_horz(frame.data(), frame.data(), width, 2, two_pixels_before);
            for (int n = -2; n <= width; ++n)
                EXPECT_EQ(frame.pixel(n), expected[static_cast<size_t>(n + 2)]) << width << ' ' << n;
        });
    }
}

// Lines of 2^32 - 8 bytes, 8 before the last, with a left margin of 2^32 - 24 bytes: the first one's pixels are 24
// bytes before 2^32, the second one's 32.
TEST(SimdWraps, lines_beside_a_margin)
{
    const AddressSpace dst;
    ASSERT_TRUE(dst);
    uint32_t src[8];
    at_each_level([&] {
        for (int n = -8; n < 8; ++n) dst.pixel(n) = 0;
        for (uint32_t n = 0; n < 8; ++n) src[n] = n + 1;
        auto* const from = reinterpret_cast<unsigned char*>(src);
        tntvt_flip_vert_flags(dst.data(), from, 0, 0, 2, two_pixels_before, 16, 0x1000000, 1);
        const uint32_t expected[16] = {1, 2, 3, 4, 7, 8};
        for (int n = -8; n < 8; ++n) EXPECT_EQ(dst.pixel(n), expected[n + 8]) << n;
    });
}

// 64 pixels of `YUY2`, two pairs of lines, in which byte i of a line is first + i.
constexpr int groups = 32;

void fill_line(uint8_t* line, int first)
{
    for (int i = 0; i < 4 * groups; ++i) line[i] = static_cast<uint8_t>(first + i);
}

Bytes luma_of(int first)
{
    Bytes luma;
    for (int i = 0; i < 4 * groups; i += 2) luma.push_back(static_cast<uint8_t>(first + i));
    return luma;
}

// The second line of a pair is 2^31 bytes before the first, and the next pair is where this one is.
TEST(SimdWraps, source_pitch_of_yuy2)
{
    const AddressSpace src;
    ASSERT_TRUE(src);
    uint8_t* const line = src.data() + half;
    fill_line(line, 0);
    fill_line(src.data(), 100);
    Bytes expected = luma_of(0);
    const Bytes below = luma_of(100);
    expected.insert(expected.end(), below.begin(), below.end());
    expected.insert(expected.end(), expected.begin(), expected.begin() + 4 * groups);
    at_each_level([&] {
        Bytes y(8 * groups), cb(2 * groups), cr(2 * groups);
        YUY2toYV12(line, y.data(), cb.data(), cr.data(), 2 * groups, 4, 0x40000000, 2 * groups);
        EXPECT_EQ(y, expected);
        EXPECT_EQ(cb[0], 51);
        EXPECT_EQ(cb[groups], 51);
    });
}

// Luma lines 2^30 bytes apart, the second pair 2^31 bytes before the first and not after it.
TEST(SimdWraps, destination_pitch_of_yuy2)
{
    const AddressSpace luma, chroma;
    ASSERT_TRUE(luma && chroma);
    Bytes src(16 * groups);
    for (int line = 0; line < 4; ++line) fill_line(&src[static_cast<size_t>(line * 4 * groups)], 10 * line);
    uint8_t *const y = luma.data() + half, *const cb = chroma.data(), *const cr = cb + 4096;
    uint8_t* const lines[] = {y, y + half / 2, y - half, y - half / 2};
    at_each_level([&] {
        for (uint8_t* line : lines) std::fill_n(line, 2 * groups, uint8_t{0xEE});
        YUY2toYV12(src.data(), y, cb, cr, 2 * groups, 4, 2 * groups, 0x40000000);
        for (int line = 0; line < 4; ++line)
            EXPECT_EQ(Bytes(lines[line], lines[line] + 2 * groups), luma_of(10 * line));
        EXPECT_EQ(cb[0], 6);
        EXPECT_EQ(cb[half / 4], 26);
        EXPECT_EQ(cr[half / 4], 28);
    });
}

// A pitch less a width that wraps is positive: the next pair of luma is where this one is, its chroma 2^30 bytes on.
TEST(SimdWraps, difference_of_pitch_and_width_of_yuy2)
{
    const AddressSpace luma, chroma;
    ASSERT_TRUE(luma && chroma);
    Bytes src(16 * groups);
    for (int line = 0; line < 4; ++line) fill_line(&src[static_cast<size_t>(line * 4 * groups)], 10 * line);
    uint8_t *const y = luma.data() + half, *const cb = chroma.data() + half, *const cr = cb + 4096;
    at_each_level([&] {
        YUY2toYV12(src.data(), y, cb, cr, 2 * groups, 4, 2 * groups, -0x7FFFFFFF - 1);
        EXPECT_EQ(Bytes(y, y + 2 * groups), luma_of(20));
        EXPECT_EQ(Bytes(luma.data(), luma.data() + 2 * groups), luma_of(30));
        EXPECT_EQ(cb[0], 6);
        EXPECT_EQ(cb[half / 2], 26);
        EXPECT_EQ(cr[half / 2], 28);
    });
}

// The low 32 bits of a height's magnitude, as a signed number, are the lines (keeps_signed_32_bit_count).
TEST(SimdWraps, line_counts_of_deep_channels)
{
    constexpr long one = 0x100000001;
    Bytes narrow(4 * 64), deep(6 * 64, 0x55);
    at_each_level([&] {
        for (auto* routine : {tntvt_bgr48_rgba32, tntvt_rgba32_bgr48})
            for (const long lines : {0x80000000L, 0xFFFFFFFFL, 0x100000000L, 0x1FFFFFFFFL})
                for (const long height : {lines, -lines}) routine(nullptr, 4096, nullptr, 4096, 64, height, 16);
        narrow.assign(4 * 64, 0);
        tntvt_bgr48_rgba32(narrow.data(), 4 * 64, deep.data(), 6 * 64, 64, one, 16);
        EXPECT_EQ(narrow[0], 0x55);
        EXPECT_EQ(narrow[4 * 63], 0x55);
    });
}

}  // namespace
}  // namespace tintvert::test
