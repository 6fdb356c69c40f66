// The decoders' tables themselves, and when they are filled.
#include <gtest/gtest.h>
#include <tintvert/decode.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include "decode/tables.h"
#include "decode/v210_tables.h"
#include "support/sanitized.h"

namespace tintvert::test {
namespace {

int term(int code, int zero, double weight, double scale)
{
    return static_cast<int>(std::trunc((code - zero) * weight * scale));
}

void expect_shared_tables()
{
    for (int k = 0; k < 256; ++k) {
        ASSERT_EQ(Atab[k], term(k, 16, 298.082, 0.0625)) << k;
        ASSERT_EQ(BEtab[k].first, term(k, 128, -100.291, 0.0625)) << k;
        ASSERT_EQ(BEtab[k].second, term(k, 128, 516.411, 0.0625)) << k;
        ASSERT_EQ(DCtab[k].first, term(k, 128, 408.583, 0.0625)) << k;
        ASSERT_EQ(DCtab[k].second, term(k, 128, -208.12, 0.0625)) << k;
    }
    for (int k = 0; k < 1024; ++k) ASSERT_EQ(clip10to8[k], std::min(k, 255)) << k;
    EXPECT_EQ(fTablesSet, 1);
}

void spoil_shared_tables(uint8_t flag)
{
    std::fill(std::begin(Atab), std::end(Atab), int16_t{77});
    std::fill(std::begin(BEtab), std::end(BEtab), ChromaTerms{77, 77});
    std::fill(std::begin(DCtab), std::end(DCtab), ChromaTerms{77, 77});
    std::fill(std::begin(clip10to8), std::end(clip10to8), uint8_t{77});
    fTablesSet = flag;
}

using Decoder = void (*)(void*, long, void*, long, long, long, long);

// Each of the four fills the tables before it looks at the picture, which is empty here.
TEST(DecodeTables, every_entry_whoever_comes_first)
{
    for (const Decoder decoder : {&tntvt_yuv422_rgb24, &tntvt_yuv422_rgb16, &tntvt_v210_rgb24, &tntvt_v210_rgb16}) {
        spoil_shared_tables(0);
        decoder(nullptr, 0, nullptr, 0, 0, 0, 1);
        expect_shared_tables();
    }
}

// Bit 0 of the flag counts, and a table that it vouches for is left alone.
TEST(DecodeTables, filled_once)
{
    for (const Decoder decoder : {&tntvt_yuv422_rgb24, &tntvt_yuv422_rgb16, &tntvt_v210_rgb24, &tntvt_v210_rgb16}) {
        spoil_shared_tables(0xFF);
        decoder(nullptr, 0, nullptr, 0, 0, 0, 1);
        EXPECT_EQ(Atab[0], 77);
        EXPECT_EQ(clip10to8[1023], 77);
        spoil_shared_tables(0xFE);
        decoder(nullptr, 0, nullptr, 0, 0, 0, 1);
        expect_shared_tables();
    }
}

// In a process of its own, which ends at the division.
TEST(DecodeTablesDeathTest, filled_before_a_scale_of_0_divides)
{
    if (sanitized) GTEST_SKIP() << "sanitizers report the division in their own way";
    for (const Decoder decoder : {&tntvt_yuv422_rgb24, &tntvt_v210_rgb24})
        EXPECT_EXIT(
            {
                spoil_shared_tables(0);
                std::signal(SIGFPE, [](int) {
                    expect_shared_tables();
                    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
                });
                decoder(nullptr, 0, nullptr, 0, 2, 1, 0);
                std::_Exit(2);
            },
            testing::ExitedWithCode(0), "");
}

void expect_v210_tables()
{
    for (int c = 0; c < 1024; ++c) {
        ASSERT_EQ(v210_Atab[c], term(c, 64, 1192.328, 0.015625)) << c;
        ASSERT_EQ(v210_BEtab[c].first, term(c, 512, -401.164, 0.015625)) << c;
        ASSERT_EQ(v210_BEtab[c].second, term(c, 512, 2065.644, 0.015625)) << c;
        ASSERT_EQ(v210_DCtab[c].first, term(c, 512, 1634.332, 0.015625)) << c;
        ASSERT_EQ(v210_DCtab[c].second, term(c, 512, -832.48, 0.015625)) << c;
    }
    for (int v = -1024; v < 1024; ++v) ASSERT_EQ(v210_clip10to8[v + 1024], std::clamp(v, 0, 255)) << v;
    EXPECT_EQ(_v210_to_rgb_initted, 1);
}

void spoil_v210_tables(int32_t guard)
{
    std::fill(std::begin(v210_Atab), std::end(v210_Atab), int16_t{77});
    std::memset(v210_BEtab, 77, sizeof v210_BEtab);
    std::memset(v210_DCtab, 77, sizeof v210_DCtab);
    std::fill(std::begin(v210_clip10to8), std::end(v210_clip10to8), uint8_t{77});
    _v210_to_rgb_initted = guard;
}

TEST(V210Tables, an_empty_frame_fills_them)
{
    spoil_v210_tables(0);
    _v210_to_rgb(nullptr, nullptr, 0, 0, 0, 1);
    expect_v210_tables();
}

// The whole guard counts: any number but 0 vouches for the tables.
TEST(V210Tables, filled_once_by_the_decoder)
{
    spoil_v210_tables(2);
    _v210_to_rgb(nullptr, nullptr, 0, 0, 0, 1);
    EXPECT_EQ(v210_Atab[0], 77);
    EXPECT_EQ(_v210_to_rgb_initted, 2);
    init_v210_to_rgb();
}

// Also one whose low byte is 0.
TEST(V210Tables, every_byte_of_the_guard_counts)
{
    for (const int32_t guard : {0x100, 0x10000, INT32_MIN}) {
        spoil_v210_tables(guard);
        _v210_to_rgb(nullptr, nullptr, 0, 0, 0, 1);
        EXPECT_EQ(v210_Atab[0], 77) << guard;
        EXPECT_EQ(_v210_to_rgb_initted, guard);
    }
    init_v210_to_rgb();
}

TEST(Quirks, keeps_filling_on_every_call)
{
    init_v210_to_rgb();
    spoil_v210_tables(1);
    init_v210_to_rgb();
    expect_v210_tables();
}

}  // namespace
}  // namespace tintvert::test
