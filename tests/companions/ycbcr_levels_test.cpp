// Every level of libycbcr that this machine has, byte for byte against the scalar version.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "companions/ycbcr_levels.h"
#include "support/arena.h"
#include "support/random.h"
#include "ycbcr/ycbcr.h"

namespace tintvert::test {
namespace {

using namespace ycbcr;

constexpr unsigned matrices[] = {601, 709, 2020};

// The line and 128 bytes on either side of it.
template <class Form>
testing::AssertionResult agrees(InstructionSet level, const Form& form, int width, int skew, const Weights& w)
{
    Random random(static_cast<uint64_t>(width));
    Arena dst(random, 128, skew + width * 4 + 128);
    scalar_line(dst.expected(skew), form, 0, width, w);
    line(level, dst.actual(skew), form, width, w);
    return dst.agrees(skew);
}

TEST_F(CycbcrLevels, equal_plain_at_every_width_and_misalignment)
{
    Random random(8);
    for (const InstructionSet level : levels) {
        for (int width = 0; width <= 300; ++width) {
            for (int skew = 0; skew < 64; ++skew) {
                const Weights& w = weights_of(matrices[skew % 3]);
                const std::vector<uint8_t> src = random.bytes(1200);
                const uint8_t* const at = src.data() + skew;
                const int to = (skew * 37 + width) % 64;
                const auto what = testing::Message()
                                  << name_of(level) << ' ' << width << " from " << skew << " to " << to;
                EXPECT_TRUE(agrees(level, Uyvy{at}, width, to, w)) << what;
                EXPECT_TRUE(agrees(level, V210{at}, width, to, w)) << what;
                EXPECT_TRUE(agrees(level, planar(at, at + 400, at + 700, width), width, to, w)) << what;
            }
        }
    }
}

// Each misalignment of the source with each one of the destination. A plain line is made once for the 64.
template <class Form>
void expect_all_misalignments(InstructionSet level, int width, const uint8_t* src, Form (*form_at)(const uint8_t*, int))
{
    const size_t bytes = static_cast<size_t>(width) * 4;
    std::vector<uint8_t> expected(bytes + 64), dst(bytes + 192);
    for (int from = 0; from < 64; ++from) {
        const Form form = form_at(src + from, width);
        scalar_line(expected.data(), form, 0, width, bt709);
        for (size_t to = 0; to < 64; ++to) {
            std::memset(dst.data(), 0xEE, dst.size());
            line(level, &dst[64 + to], form, width, bt709);
            ASSERT_EQ(0, std::memcmp(&dst[64 + to], expected.data(), bytes)) << width << ' ' << from << ' ' << to;
            for (size_t i = 0; i < 64; ++i)
                ASSERT_TRUE(dst[to + i] == 0xEE && dst[64 + to + bytes + i] == 0xEE)
                    << width << ' ' << from << ' ' << to;
        }
    }
}

TEST_F(CycbcrLevelsExhaustive, every_misalignment_of_source_and_destination)
{
    Random random(9);
    const std::vector<uint8_t> src = random.bytes(1200);
    for (const InstructionSet level : levels) {
        for (int width = 0; width <= 300; ++width) {
            expect_all_misalignments<Uyvy>(level, width, src.data(), [](const uint8_t* at, int) { return Uyvy{at}; });
            expect_all_misalignments<V210>(level, width, src.data(), [](const uint8_t* at, int) { return V210{at}; });
            expect_all_misalignments<Planar>(level, width, src.data(), [](const uint8_t* at, int pixels) {
                return planar(at, at + 400, at + 700, pixels);
            });
        }
    }
}

// A line of `width` pixels in every level; the number of lines that are not those of the scalar version.
template <class Form>
long wrong_lines(const std::vector<InstructionSet>& levels, const Form& form, int width, const Weights& w)
{
    static std::vector<uint8_t> expected(8192), dst(8192);
    const size_t bytes = static_cast<size_t>(width) * 4;
    scalar_line(expected.data(), form, 0, width, w);
    long wrong = 0;
    for (const InstructionSet level : levels) {
        line(level, dst.data(), form, width, w);
        wrong += std::memcmp(dst.data(), expected.data(), bytes) != 0;
    }
    return wrong;
}

// Luma counts up along the line, and chroma moves on from pair to pair.
TEST_F(CycbcrLevelsExhaustive, every_8_bit_triple)
{
    for (const unsigned matrix : matrices) {
        const Weights& w = weights_of(matrix);
        std::vector<uint8_t> y(256), blue(128), red(128), uyvy(512);
        long wrong = 0;
        for (size_t x = 0; x < 256; ++x) uyvy[x * 2 + 1] = y[x] = static_cast<uint8_t>(x);
        for (size_t cb = 0; cb < 256; ++cb) {
            for (size_t cr = 0; cr < 256; ++cr) {
                for (size_t pair = 0; pair < 128; ++pair) {
                    uyvy[pair * 4] = blue[pair] = static_cast<uint8_t>(cb + pair);
                    uyvy[pair * 4 + 2] = red[pair] = static_cast<uint8_t>(cr + pair * 3);
                }
                wrong += wrong_lines(levels, Uyvy{uyvy.data()}, 256, w);
                wrong += wrong_lines(levels, planar(y.data(), blue.data(), red.data(), 256), 256, w);
            }
        }
        EXPECT_EQ(wrong, 0) << matrix;
    }
}

// A seventh of all 2^30, with every luma beside every Cb and every luma beside every Cr.
TEST_F(CycbcrLevelsExhaustive, a_seventh_of_the_10_bit_triples)
{
    constexpr int width = 1026;
    const auto code = [](int y) { return static_cast<uint32_t>(y) & 1023; };
    std::vector<uint32_t> luma, src(width / 6 * 4);
    for (int y = 0; y < width; y += 6) {
        luma.push_back(code(y) << 10);
        luma.push_back(code(y + 1) | code(y + 2) << 20);
        luma.push_back(code(y + 3) << 10);
        luma.push_back(code(y + 4) | code(y + 5) << 20);
    }
    for (const unsigned matrix : matrices) {
        const Weights& w = weights_of(matrix);
        long wrong = 0;
        for (uint32_t cb = 0; cb < 1024; ++cb) {
            for (uint32_t cr = cb % 7; cr < 1024; cr += 7) {
                const uint32_t chroma[] = {cb | cr << 20, cb << 10, cr | cb << 20, cr << 10};
                for (size_t i = 0; i < src.size(); ++i) src[i] = luma[i] | chroma[i % 4];
                wrong += wrong_lines(levels, V210{reinterpret_cast<const uint8_t*>(src.data())}, width, w);
            }
        }
        EXPECT_EQ(wrong, 0) << matrix;
    }
}

// A form whose wide steps get the luma of their last pixel wrong.
template <class Form>
struct WrongStep : Form {
    TNTVT_AVX2 void step(uint8_t* dst, int x, const ycbcr::width_256::VecWeights& w) const
    {
        Form::step(dst, x, w);
        dst[4 * (Form::step_pixels - 1)] ^= 1;
    }
    TNTVT_AVX512 ycbcr::width_512::Operands operands(int step, int part, int pixels) const
    {
        const ycbcr::width_512::Operands right = Form::operands(step, part, pixels);
        alignas(64) uint16_t luma[32];
        _mm512_store_si512(luma, right.luma);
        luma[pixels - 1] ^= 0x4000;
        return {_mm512_load_si512(luma), right.chroma};
    }
};

TEST_F(CycbcrLevels, a_wrong_step_is_told_apart)
{
    const std::vector<uint8_t> grey(256, 0x80);
    const std::vector<uint32_t> grey_groups(64, 512u | 512u << 10 | 512u << 20);
    const Uyvy uyvy{grey.data()};
    const V210 v210{reinterpret_cast<const uint8_t*>(grey_groups.data())};
    for (const InstructionSet level : levels) {
        for (const int width : {48, 96}) {
            const Planar planes = planar(grey.data(), grey.data(), grey.data(), width);
            EXPECT_TRUE(agrees(level, uyvy, width, 0, bt709));
            EXPECT_TRUE(agrees(level, v210, width, 0, bt709));
            EXPECT_TRUE(agrees(level, planes, width, 0, bt709));
            EXPECT_FALSE(agrees(level, WrongStep<Uyvy>{uyvy}, width, 0, bt709));
            EXPECT_FALSE(agrees(level, WrongStep<V210>{v210}, width, 0, bt709));
            EXPECT_FALSE(agrees(level, WrongStep<Planar>{planes}, width, 0, bt709));
            EXPECT_NE(0, wrong_lines({level}, WrongStep<Uyvy>{uyvy}, width, bt709));
        }
    }
}

TEST_F(CycbcrLevels, a_wrong_step_behind_masks_is_told_apart)
{
    if (machine_instruction_set() < InstructionSet::avx512) GTEST_SKIP() << "no step of this machine has masks";
    const std::vector<uint8_t> grey(64, 0x80);
    const std::vector<uint32_t> grey_groups(16, 512u | 512u << 10 | 512u << 20);
    const V210 v210{reinterpret_cast<const uint8_t*>(grey_groups.data())};
    for (const int width : {2, 14, 22}) {
        EXPECT_FALSE(agrees(InstructionSet::avx512, WrongStep<Uyvy>{{grey.data()}}, width, 0, bt709));
        EXPECT_FALSE(agrees(InstructionSet::avx512, WrongStep<V210>{v210}, width, 0, bt709));
        const Planar planes = planar(grey.data(), grey.data(), grey.data(), width);
        EXPECT_FALSE(agrees(InstructionSet::avx512, WrongStep<Planar>{planes}, width, 0, bt709));
    }
}

// What is exported takes one of the levels: a padded frame against plain lines.
TEST(Cycbcr, frames_are_plain_lines)
{
    Random random(12);
    for (int width = 0; width < 150; ++width) {
        constexpr int height = 3, from = 448, to = 640;
        std::vector<uint8_t> src = random.bytes(from * height * 2);
        Arena dst(random, 0, to * height);
        const auto expect_lines = [&](const char* what, auto form_of_line) {
            for (int y = 0; y < height; ++y)
                scalar_line(dst.expected(y * to), form_of_line(src.data() + y * from, y), 0, width, bt2020);
            EXPECT_TRUE(dst.agrees(0, to)) << what << ' ' << width;
        };
        cycbcr_uyvy_to_rgb32(dst.actual(), src.data(), width, height, to, from, 2020, 0);
        expect_lines("uyvy", [](const uint8_t* at, int) { return Uyvy{at}; });
        cycbcr_012v_to_rgb32(dst.actual(), src.data(), width, height, to, from, 2020, 0);
        expect_lines("012v", [](const uint8_t* at, int) { return V210{at}; });
        cycbcr_i420_to_rgb32(dst.actual(), src.data(), width, height, to, from, 2020, 0);
        const uint8_t* const chroma = src.data() + from * height;
        expect_lines("i420",
                     [&](const uint8_t* at, int) { return planar(at, chroma, chroma + from * height / 4, width); });
    }
}

}  // namespace
}  // namespace tintvert::test
