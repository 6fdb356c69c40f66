// 10-bit and 12-bit RGB, run-length images and the frame copy touch exactly what their rules tell.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

#include "catalog.h"
#include "rle_scan.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

TEST(Extents, rgb10)
{
    Random random(541);
    for (const char* name : {"tntvt_rgb10_rgba64", "tntvt_rgb10_rgb48", "tntvt_rgb10_rgba32"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(-1, 90);
            call[Arg::height] = random.between(-2, 12);
            call[Arg::swapBytes] = random.between(0, 1) * random.between(1, 255);
            call[Arg::flipLines] = random.between(0, 1) * random.between(1, 255);
            // No bit of the lowest eight of a word goes into 16 bits a channel.
            const int64_t idle = std::string_view{name} == "tntvt_rgb10_rgba32" ? 0 : 1;
            expect_exact_extents(*catalog::find(name), call, {}, idle);
        }
    }
}

TEST(Extents, rgb12)
{
    Random random(551);
    for (const char* name : {"tntvt_rgb12_bgr48", "tntvt_rgb12_rgb48", "tntvt_rgb12_rgba32", "tntvt_rgb48_12_rgb12",
                             "tntvt_rgb48_rgb12", "tntvt_rgb48_12_rgba32"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(-1, 60);
            call[Arg::height] = random.between(-8, 8);
            call[Arg::dstStride] = random.between(-400, 400);
            call[Arg::srcStride] = random.between(-400, 400);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

// Codes of every kind, with `lines` ends of line on average, and one of the two ends of bitmap behind them.
std::vector<uint8_t> random_stream(Random& random, long lines)
{
    std::vector<uint8_t> stream;
    const auto put = [&](long byte) { stream.push_back(static_cast<uint8_t>(byte)); };
    for (long codes = random.between(0, 3 * lines); codes > 0; --codes) {
        const long kind = random.between(0, 2);
        put(kind == 0 ? random.between(1, 255) : 0);
        put(kind == 0 ? random.between(0, 255) : kind == 1 ? 0 : random.between(3, 255));
        if (kind == 2)
            for (long indices = stream.back(), stored = indices + indices % 2; stored > 0; --stored)
                put(random.between(0, 255));
    }
    put(0);
    put(random.between(1, 2));
    return stream;
}

TEST(Extents, rle8)
{
    Random random(561);
    for (const char* name : {"tntvt_rle8_rgb24", "tntvt_rle8_rgba32", "tntvt_rle8_rgb32"}) {
        const bool is_rgb24 = std::string_view(name) == "tntvt_rle8_rgb24";
        int proved = 0;
        for (int tries = 0; proved < rounds && tries < 20 * rounds; ++tries) {
            catalog::Arguments call;
            call[Arg::height] = random.between(-8, 8);
            call[Arg::dstStride] = random.between(-3000, 3000);
            const std::vector<uint8_t> stream = random_stream(random, 1 + std::labs(call[Arg::height]));
            // Read at another parity, as indices that are taken for codes are, few streams end.
            if (is_rgb24 && !catalog::scan_rle8_rgb24(stream, call[Arg::height]).ends) continue;
            call[Arg::src] = reinterpret_cast<int64_t>(stream.data());
            call[Arg::streamSize] = static_cast<int64_t>(stream.size());
            expect_exact_extents(*catalog::find(name), call, [&](Arg buffer, uint8_t* pointer, catalog::Range hull) {
                const auto bytes = static_cast<int64_t>(stream.size());
                if (buffer == Arg::src) std::copy_n(stream.data(), std::min(bytes, hull.end), pointer);
            });
            ++proved;
        }
        EXPECT_EQ(proved, rounds) << name;
    }
}

TEST(Extents, rgba_full)
{
    Random random(571);
    for (int round = 0; round < 5 * rounds; ++round) {
        catalog::Arguments call;
        call[Arg::width] = random.between(1, 70);
        call[Arg::height] = random.between(-2, 10);
        const auto stride = [&] {
            return call[Arg::width] * random.between(-1, 5) + random.between(0, call[Arg::width] - 1);
        };
        call[Arg::dstStride] = stride();
        call[Arg::srcStride] = random.between(0, 3) == 0 ? call[Arg::dstStride] : stride();
        // A product below 0 is a block of nearly 4 GiB.
        if (call[Arg::srcStride] == call[Arg::dstStride] && (call[Arg::height] < 0 || call[Arg::srcStride] < 0))
            continue;
        expect_exact_extents(*catalog::find("tntvt_rgba_full"), call);
    }
}

// Bytes a pixel and lines of a negative width: the block's product may still come out above 0.
TEST(Extents, rgba_full_of_negative_width)
{
    Random random(572);
    for (int round = 0; round < rounds; ++round) {
        catalog::Arguments call;
        call[Arg::width] = random.between(-70, -1);
        call[Arg::height] = random.between(0, 10);
        call[Arg::srcStride] = random.between(0, 400);
        call[Arg::dstStride] = random.between(0, 1) == 0 ? call[Arg::srcStride] : random.between(-400, 400);
        expect_exact_extents(*catalog::find("tntvt_rgba_full"), call);
    }
}

}  // namespace
}  // namespace tintvert::test
