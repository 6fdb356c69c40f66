// Many first callers at once. The tables are cold in the middle of every round, and every thread must find
// what a lone caller finds.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <barrier>
#include <functional>
#include <thread>
#include <vector>

#include "decode/tables.h"
#include "decode/v210_tables.h"
#include "support/random.h"
#include "ycbcr8/scale_tables.h"

namespace tintvert::test {
namespace {

constexpr int threads = 16, rounds = 50;
constexpr long width = 48, height = 4, source_bytes = 128 * height, result_bytes = width * 4 * height;

using Bytes = std::vector<uint8_t>;
using Convert = std::function<void(Bytes* dst, Bytes* src)>;

// `cool` takes the flag and a few entries back to what they are at load.
void expect_equal_results(const std::function<void()>& cool, const Convert& convert)
{
    const Bytes picture = Random(1).bytes(source_bytes);
    Bytes alone(result_bytes, 0), own = picture;
    convert(&alone, &own);
    for (int round = 0; round < rounds; ++round) {
        cool();
        std::vector<Bytes> results(threads, Bytes(result_bytes, 0));
        std::barrier start(threads);
        std::vector<std::thread> callers;
        for (int t = 0; t < threads; ++t)
            callers.emplace_back([&, t] {
                Bytes src = picture;
                start.arrive_and_wait();
                convert(&results[static_cast<size_t>(t)], &src);
            });
        for (std::thread& caller : callers) caller.join();
        for (const Bytes& result : results) EXPECT_EQ(result, alone);
    }
}

TEST(FirstUse, shared_decoding_tables)
{
    const auto cool = [] {
        std::fill(std::begin(Atab), std::end(Atab), int16_t{0});
        std::fill(std::begin(clip10to8), std::end(clip10to8), uint8_t{0});
        fTablesSet = 0;
    };
    expect_equal_results(cool, [](Bytes* dst, Bytes* src) {
        tntvt_yuv422_rgb24(dst->data(), width * 4, src->data(), width * 2, width, height, 1);
    });
    expect_equal_results(cool, [](Bytes* dst, Bytes* src) {
        tntvt_v210_rgb24(dst->data(), width * 4, src->data(), 128, width, height, 1);
    });
}

TEST(FirstUse, v210_tables)
{
    const auto cool = [] {
        std::fill(std::begin(v210_Atab), std::end(v210_Atab), int16_t{0});
        _v210_to_rgb_initted = 0;
    };
    expect_equal_results(
        cool, [](Bytes* dst, Bytes* src) { _v210_to_rgb(src->data(), dst->data(), width, height, width * 4, 1); });
}

// Entry 255 of the chroma table passes through another value while a late builder writes it, so the picture
// here has no 255.
TEST(FirstUse, scale_tables)
{
    const auto cool = [] {
        std::fill(gsbScaleLumaDown, gsbScaleLumaDown + 256, uint8_t{0});
        gsfScaleTablesReady = 0;
    };
    expect_equal_results(cool, [](Bytes* dst, Bytes* src) {
        for (uint8_t& byte : *src) byte &= 0x7F;
        tntvt_2vuy_scale(src->data(), source_bytes, 0);
        std::copy(src->begin(), src->end(), dst->begin());
    });
}

TEST(FirstUse, open)
{
    std::vector<std::thread> callers;
    for (int t = 0; t < threads; ++t) callers.emplace_back([] { EXPECT_EQ(tnvtt_open(1, 2, 3, 4), 0); });
    for (std::thread& caller : callers) caller.join();
}

}  // namespace
}  // namespace tintvert::test
