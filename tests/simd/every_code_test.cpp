// Every code through the tables and the matrices at every level, beside the scalar version.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <vector>

#include "frame/simd.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Call = std::function<void(uint8_t* dst, uint8_t* src)>;

// One source after another: at each level the call gives what it gives in its scalar version.
class EveryCode : public testing::Test {
protected:
    ~EveryCode() override { highest_instruction_set = InstructionSet::avx512; }

    void expect_agreement(Bytes& src, size_t dst_bytes, const Call& call, int which)
    {
        if (HasFailure()) return;
        Bytes expected(dst_bytes, 0xA5), actual(dst_bytes);
        highest_instruction_set = InstructionSet::scalar;
        call(expected.data(), src.data());
        for (const InstructionSet level : {InstructionSet::sse2, InstructionSet::avx2, InstructionSet::avx512}) {
            if (level > machine_instruction_set()) return;
            actual.assign(dst_bytes, 0xA5);
            highest_instruction_set = level;
            call(actual.data(), src.data());
            EXPECT_TRUE(actual == expected) << "level " << static_cast<int>(level) << ", source " << which;
        }
    }
};

using EveryCodeExhaustive = EveryCode;

constexpr long luma_pixels = 512;  // each luma in the first place and in the second

TEST_F(EveryCodeExhaustive, of_2vuy)
{
    Bytes src(luma_pixels * 2);
    for (int chroma = 0; chroma < 65536; ++chroma) {
        for (size_t i = 0; i < 256; ++i) {
            src[4 * i] = static_cast<uint8_t>(chroma >> 8);
            src[4 * i + 1] = static_cast<uint8_t>(i);
            src[4 * i + 2] = static_cast<uint8_t>(chroma);
            src[4 * i + 3] = static_cast<uint8_t>(255 - i);
        }
        for (const long pixel : {4, 3})
            expect_agreement(
                src, luma_pixels * 4,
                [&](uint8_t* dst, uint8_t* from) {
                    tntvt_yuv422_rgb24(dst, luma_pixels * pixel, from, luma_pixels * 2, luma_pixels, 1, 1);
                },
                chroma);
        expect_agreement(
            src, luma_pixels * 4,
            [](uint8_t* dst, uint8_t* from) { tntvt_yuv422_rgb16(dst, luma_pixels * 2, from, 0, luma_pixels, 1, 1); },
            chroma);
    }
}

// Groups of twelve samples, each from `sample`, which is asked for one after the other.
void fill_v210(Bytes& bytes, const std::function<uint32_t(size_t)>& sample)
{
    for (size_t word = 0; word < bytes.size() / 4; ++word) {
        const uint32_t value = sample(3 * word) | sample(3 * word + 1) << 10 | sample(3 * word + 2) << 20;
        std::memcpy(bytes.data() + 4 * word, &value, 4);
    }
}

// Every Cb with every Cr, and every luma with every Cb and with every Cr: the terms are added without a carry
// from one into another, so that no third code can matter.
TEST_F(EveryCodeExhaustive, of_v210)
{
    constexpr int pixels = 3072;  // 1536 pairs
    Bytes src(pixels / 6 * 16);
    for (int fixed = 0; fixed < 1024; ++fixed)
        for (int kind = 0; kind < 3; ++kind) {
            fill_v210(src, [&](size_t n) {
                constexpr uint32_t extremes[] = {0, 512, 1023};
                const auto running = static_cast<uint32_t>(n / 4), held = static_cast<uint32_t>(fixed);
                const uint32_t extreme = extremes[running / 512], opposite = running + (n % 4 == 3 ? 512u : 0u);
                const uint32_t cb[] = {held, held, extreme}, cr[] = {running, extreme, held};
                const uint32_t luma[] = {extreme, opposite, opposite};
                return (n % 4 == 0 ? cb[kind] : n % 4 == 2 ? cr[kind] : luma[kind]) & 0x3FF;
            });
            for (const int order : {0, 1})
                expect_agreement(
                    src, pixels * 4,
                    [&](uint8_t* dst, uint8_t* from) { _v210_to_rgb(from, dst, pixels, 1, pixels * 4, order); }, fixed);
            for (const long pixel : {4, 3})
                expect_agreement(
                    src, pixels * 4,
                    [&](uint8_t* dst, uint8_t* from) { tntvt_v210_rgb24(dst, pixels * pixel, from, 0, pixels, 1, 1); },
                    fixed);
            expect_agreement(
                src, pixels * 4,
                [](uint8_t* dst, uint8_t* from) { tntvt_v210_rgb16(dst, pixels * 2, from, 0, pixels, 1, 1); }, fixed);
        }
}

constexpr int colours = 65538;  // of a run: whole groups

// All 2^24 colours, first in their order and then far from their neighbours.
void over_every_colour(size_t pixel_bytes, const std::function<void(Bytes&, int)>& work)
{
    Bytes src(colours * pixel_bytes);
    for (const uint32_t step : {1u, 0x9E3779u})
        for (uint32_t run = 0; run < 256; ++run) {
            for (uint32_t i = 0; i < colours; ++i) {
                const uint32_t colour = (run * 65536 + i) * step;
                for (size_t byte = 0; byte < pixel_bytes; ++byte)
                    src[i * pixel_bytes + byte] = static_cast<uint8_t>(colour >> 8 * (byte % 3));
            }
            work(src, static_cast<int>(run));
        }
}

unsigned int* words(uint8_t* bytes) { return reinterpret_cast<unsigned int*>(bytes); }

TEST_F(EveryCodeExhaustive, of_rgb32)
{
    const Call calls[] = {
        [](uint8_t* dst, uint8_t* src) { argb_to_2vuy(src, dst, colours); },
        [](uint8_t* dst, uint8_t* src) { bgra_to_2vuy(src, dst, colours); },
        [](uint8_t* dst, uint8_t* src) { hd_rgb_to_2vuy(src, dst, colours, 0); },
        [](uint8_t* dst, uint8_t* src) { hd_rgb_to_2vuy(src, dst, colours, 1); },
        [](uint8_t* dst, uint8_t* src) { argb_to_v210(src, words(dst), colours, 1); },
        [](uint8_t* dst, uint8_t* src) { bgra_to_v210(src, words(dst), colours); },
        [](uint8_t* dst, uint8_t* src) { tntvt_rgb32_v210(dst, 16, src, 24, 6, colours / 6); },
        [](uint8_t* dst, uint8_t* src) { tntvt_rgb32_v210(dst, 0, src, 0, 961, 66); },
        [](uint8_t* dst, uint8_t* src) { tntvt_rgb32_v210(dst, 0, src, 0, 962, 66); },
        [](uint8_t* dst, uint8_t* src) { tntvt_rgb32_v210(dst, 0, src, 0, colours, 1); },
    };
    over_every_colour(4, [&](Bytes& src, int run) {
        for (const Call& call : calls) expect_agreement(src, colours * 3, call, run);
    });
}

// Greys have whole numbers for chroma by one matrix, which doubles miss for some: each before, in and after a pair.
TEST_F(EveryCodeExhaustive, of_three_greys)
{
    constexpr int pixels = 4 * 65536;
    Bytes src(pixels * 4);
    for (int before = 0; before < 256; ++before) {
        for (size_t pair = 0; pair < pixels / 4; ++pair) {
            const size_t greys[] = {pair * 7, static_cast<size_t>(before), pair >> 8, pair};
            for (size_t i = 0; i < 16; ++i) src[16 * pair + i] = static_cast<uint8_t>(greys[i / 4]);
        }
        expect_agreement(
            src, pixels * 2, [](uint8_t* dst, uint8_t* from) { bgra_to_2vuy(from, dst, pixels); }, before);
        expect_agreement(
            src, pixels * 2, [](uint8_t* dst, uint8_t* from) { hd_rgb_to_2vuy(from, dst, pixels, 1); }, before);
    }
}

// Runs of greys among runs of colours, so that steps in whole numbers and steps in doubles follow one another.
TEST_F(EveryCode, of_greys_among_colours)
{
    constexpr int pixels = 60000;
    Random random(5);
    for (const long longest : {3, 40, 400}) {
        Bytes src = random.bytes(pixels * 4);
        for (long i = 0, end = 0; i < pixels; i = end + random.between(1, longest)) {
            end = std::min<long>(i + random.between(1, longest), pixels);
            const bool same = random.between(0, 1) == 1;
            const long level = random.between(0, 255);
            for (long x = i; x < end; ++x)
                std::memset(src.data() + 4 * x, static_cast<int>(same ? level : random.between(0, 255)), 4);
        }
        const int which = static_cast<int>(longest);
        expect_agreement(
            src, pixels * 2, [](uint8_t* dst, uint8_t* from) { argb_to_2vuy(from, dst, pixels); }, which);
        expect_agreement(
            src, pixels * 2, [](uint8_t* dst, uint8_t* from) { bgra_to_2vuy(from, dst, pixels); }, which);
        for (const int order : {0, 1})
            expect_agreement(
                src, pixels * 2, [=](uint8_t* dst, uint8_t* from) { hd_rgb_to_2vuy(from, dst, pixels, order); }, which);
    }
}

TEST_F(EveryCodeExhaustive, of_rgb24)
{
    over_every_colour(3, [&](Bytes& src, int run) {
        expect_agreement(
            src, colours * 3, [](uint8_t* dst, uint8_t* from) { argb_to_v210(from, words(dst), colours, 0); }, run);
    });
}

TEST_F(EveryCodeExhaustive, of_yuvijg)
{
    over_every_colour(3, [&](Bytes& src, int run) {
        expect_agreement(
            src, colours * 4, [](uint8_t* dst, uint8_t* from) { tntvt_yuvijg_rgb32(dst, 0, from, 0, colours, 1); },
            run);
    });
}

}  // namespace
}  // namespace tintvert::test
