// Every stored entry against its rule in long double; and how near any rule's value comes to a
// whole number, which says how much precision the comparison rests on.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

using Real = long double;

constexpr Real m1 = 2610.0L / 16384, m2 = 2523.0L / 4096 * 128;
constexpr Real c1 = 3424.0L / 4096, c2 = 2413.0L / 4096 * 32, c3 = 2392.0L / 4096 * 32;

Real signal_of(Real luminance)
{
    const Real y = powl(luminance, m1);
    return powl((c1 + c2 * y) / (1 + c3 * y), m2);
}

Real luminance_of(Real signal)
{
    const Real v = powl(signal, 1 / m2);
    const Real above = v > c1 ? v - c1 : 0;
    return powl(above / (c2 - c3 * v), 1 / m1);
}

// Compares, and returns the smallest distance of an untruncated value to the whole number where it would
// have truncated differently. Values that a rule gives exactly are left out.
Real compare(const unsigned* table, int size, const std::function<Real(int)>& value)
{
    Real nearest = 1;
    for (int i = 0; i < size; ++i) {
        const Real exact = value(i);
        EXPECT_EQ(table[i], static_cast<unsigned>(exact)) << "entry " << i;
        const Real distance = fabsl(exact - roundl(exact));
        if (distance != 0) nearest = std::min(nearest, distance);
    }
    return nearest;
}

Real straight_line(int i)
{
    if (i < 64) return i;
    if (i >= 512) return 940;
    return 64 + (i - 64) * 876.0L / 448 + 0.5L;
}

Real power_curve(int i)
{
    if (i <= 16) return i;
    if (i >= 129) return 235;
    return 16 + 219 * powl((i - 16) / 113.0L, 1.9L) + 0.5L;
}

TEST(St2084Tables, every_entry_equals_its_rule)
{
    const struct {
        const char* name;
        const unsigned* table;
        int size;
        std::function<Real(int)> value;
    } tables[] = {
        {"RGB_to_SMPTE2048_8Bit", get_ardwRGB_to_SMPTE2048_8Bit(), 256,
         [](int i) { return 256 * signal_of(i / 256.0L); }},
        {"SMPTE2048_to_RGB_8Bit", get_ardwSMPTE2048_to_RGB_8Bit(), 256, power_curve},
        {"RGB_to_SMPTE2048_12Bit", get_ardwRGB_to_SMPTE2048_12Bit(), 4096,
         [](int i) { return 4096 * signal_of(i / 4096.0L); }},
        {"RGB_to_SMPTE2048_10Bit", get_ardwRGB_to_SMPTE2048_10Bit(), 1024,
         [](int i) { return 1024 * signal_of(i / 1024.0L); }},
        {"SMPTE2048_to_RGB_12Bit", get_ardwSMPTE2048_to_RGB_12Bit(), 4096,
         [](int i) { return 4096 * luminance_of(i / 4096.0L); }},
        {"SMPTE2048_to_RGB_10Bit", get_ardwSMPTE2048_to_RGB_10Bit(), 1024, straight_line},
    };
    for (const auto& [name, table, size, value] : tables) {
        SCOPED_TRACE(name);
        const Real nearest = compare(table, size, value);
        std::printf("%-24s nearest to a whole number: %.3Lg\n", name, nearest);
        EXPECT_GT(nearest, 1e-9L) << "nearer than the error of double precision";
    }
}

TEST(St2084Tables, expected_entries)
{
    const unsigned* const forward8 = get_ardwRGB_to_SMPTE2048_8Bit();
    EXPECT_EQ(forward8[0], 0u);
    EXPECT_EQ(forward8[1], 106u);
    EXPECT_EQ(forward8[2], 123u);
    EXPECT_EQ(forward8[64], 218u);
    EXPECT_EQ(forward8[128], 237u);
    EXPECT_EQ(forward8[192], 248u);
    EXPECT_EQ(forward8[246], 254u);
    EXPECT_EQ(forward8[247], 255u);
    EXPECT_EQ(forward8[255], 255u);
    const unsigned* const reverse8 = get_ardwSMPTE2048_to_RGB_8Bit();
    EXPECT_EQ(reverse8[16], 16u);
    EXPECT_EQ(reverse8[20], 16u);
    EXPECT_EQ(reverse8[21], 17u);
    EXPECT_EQ(reverse8[64], 59u);
    EXPECT_EQ(reverse8[128], 231u);
    EXPECT_EQ(reverse8[129], 235u);
    EXPECT_EQ(reverse8[255], 235u);
    const unsigned* const forward10 = get_ardwRGB_to_SMPTE2048_10Bit();
    EXPECT_EQ(forward10[1], 304u);
    EXPECT_EQ(forward10[256], 872u);
    EXPECT_EQ(forward10[512], 948u);
    EXPECT_EQ(forward10[768], 992u);
    EXPECT_EQ(forward10[1023], 1023u);
    const unsigned* const reverse10 = get_ardwSMPTE2048_to_RGB_10Bit();
    EXPECT_EQ(reverse10[63], 63u);
    EXPECT_EQ(reverse10[64], 64u);
    EXPECT_EQ(reverse10[65], 66u);
    EXPECT_EQ(reverse10[256], 439u);
    EXPECT_EQ(reverse10[511], 938u);
    EXPECT_EQ(reverse10[512], 940u);
    EXPECT_EQ(reverse10[1023], 940u);
    const unsigned* const forward12 = get_ardwRGB_to_SMPTE2048_12Bit();
    EXPECT_EQ(forward12[1], 820u);
    EXPECT_EQ(forward12[1024], 3488u);
    EXPECT_EQ(forward12[2048], 3795u);
    EXPECT_EQ(forward12[3072], 3971u);
    EXPECT_EQ(forward12[4095], 4095u);
    const unsigned* const reverse12 = get_ardwSMPTE2048_to_RGB_12Bit();
    EXPECT_EQ(reverse12[1], 0u);
    EXPECT_EQ(reverse12[1024], 2u);
    EXPECT_EQ(reverse12[2048], 37u);
    EXPECT_EQ(reverse12[3072], 402u);
    EXPECT_EQ(reverse12[4095], 4086u);
}

// The block after every byte and every index has gone through both tables, in place and from one frame to another.
TEST(St2084Tables, are_written_by_no_conversion)
{
    constexpr size_t entries = 256 + 256 + 4096 + 1024 + 4096 + 1024;
    const unsigned* const block = get_ardwRGB_to_SMPTE2048_8Bit();
    const std::vector<unsigned> before(block, block + entries);
    std::vector<unsigned char> src(65536 + 32), dst(src.size());
    for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<unsigned char>(i * 37 + i / 256);
    for (auto* conversion : {tntvt_rgb_to_st2084, tntvt_st2084_to_rgb, tntvt_yuv2_to_st2084, tntvt_st2084_to_yuv2,
                             tntvt_v210_to_st2084, tntvt_st2084_to_v210}) {
        conversion(dst.data(), src.data(), 65536, 65536, 1);
        conversion(dst.data(), dst.data(), 65536, 65536, 1);
        EXPECT_EQ(std::vector<unsigned>(block, block + entries), before);
    }
}

// One block: walking past a table enters the next.
TEST(St2084Tables, are_in_one_block)
{
    EXPECT_EQ(get_ardwRGB_to_SMPTE2048_8Bit() + 256, get_ardwSMPTE2048_to_RGB_8Bit());
    EXPECT_EQ(get_ardwSMPTE2048_to_RGB_8Bit() + 256, get_ardwRGB_to_SMPTE2048_12Bit());
    EXPECT_EQ(get_ardwRGB_to_SMPTE2048_12Bit() + 4096, get_ardwRGB_to_SMPTE2048_10Bit());
    EXPECT_EQ(get_ardwRGB_to_SMPTE2048_10Bit() + 1024, get_ardwSMPTE2048_to_RGB_12Bit());
    EXPECT_EQ(get_ardwSMPTE2048_to_RGB_12Bit() + 4096, get_ardwSMPTE2048_to_RGB_10Bit());
    const unsigned* const past_the_first = get_ardwRGB_to_SMPTE2048_8Bit();
    EXPECT_EQ(past_the_first[256 + 64], 59u);
    EXPECT_EQ(past_the_first[600], get_ardwRGB_to_SMPTE2048_12Bit()[88]);
}

}  // namespace
