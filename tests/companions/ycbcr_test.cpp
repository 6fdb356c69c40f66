#include <gtest/gtest.h>
#include <ycbcr.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <vector>

#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

struct Rgb {
    double b, g, r;
};

// The matrix in double precision, from ten-bit codes.
Rgb exact(double y, double cb, double cr, double kr, double kb)
{
    const double kg = 1 - kr - kb;
    const double luma = (y - 64) / 876 * 255, pb = (cb - 512) / 896 * 255, pr = (cr - 512) / 896 * 255;
    const double r = luma + 2 * (1 - kr) * pr, b = luma + 2 * (1 - kb) * pb;
    return {b, (luma - kr * r - kb * b) / kg, r};
}

uint8_t code(double value) { return static_cast<uint8_t>(std::lround(std::fmin(255, std::fmax(0, value)))); }

struct Matrix {
    unsigned selector;
    double kr, kb;
};
constexpr Matrix matrices[] = {{601, 0.299, 0.114}, {709, 0.2126, 0.0722}, {2020, 0.2627, 0.0593}};

class Error {
public:
    void add(const uint8_t* pixel, const Rgb& expected)
    {
        for (const auto& [is, should] :
             {std::pair{pixel[0], expected.b}, {pixel[1], expected.g}, {pixel[2], expected.r}}) {
            const int difference = std::abs(is - code(should));
            largest_ = std::max(largest_, difference);
            sum_ += difference;
            ++count_;
        }
        opaque_ = opaque_ && pixel[3] == 255;
    }
    void expect_within_one(const char* what) const
    {
        std::printf("%-28s largest %d, mean %.5f\n", what, largest_, sum_ / static_cast<double>(count_));
        EXPECT_LE(largest_, 1) << what;
        EXPECT_TRUE(opaque_) << what;
    }

private:
    int largest_ = 0;
    double sum_ = 0;
    long count_ = 0;
    bool opaque_ = true;
};

uint32_t word_of(unsigned low, unsigned middle, unsigned top) { return low | middle << 10 | top << 20; }

// Every 8-bit triple, as pairs that share their chroma.
TEST(CycbcrExhaustive, uyvy_within_one_code)
{
    std::vector<uint8_t> src(512), dst(1024);
    for (const Matrix& matrix : matrices) {
        Error error;
        for (int cb = 0; cb < 256; ++cb) {
            for (int cr = 0; cr < 256; ++cr) {
                for (size_t y = 0; y < 256; ++y) {
                    src[y * 2 + 1] = static_cast<uint8_t>(y);
                    src[y * 2] = static_cast<uint8_t>(y % 2 == 0 ? cb : cr);
                }
                cycbcr_uyvy_to_rgb32(dst.data(), src.data(), 256, 1, 1024, 512, matrix.selector, 0);
                for (size_t y = 0; y < 256; ++y)
                    error.add(&dst[y * 4], exact(static_cast<double>(y) * 4, cb * 4, cr * 4, matrix.kr, matrix.kb));
            }
        }
        error.expect_within_one(("uyvy " + std::to_string(matrix.selector)).c_str());
    }
}

// Every luma code with chroma codes on a grid with both ends and the middle, and random triples.
TEST(CycbcrExhaustive, v210_within_one_code)
{
    std::vector<unsigned> grid;
    for (unsigned c = 0; c < 1024; c += 31) grid.push_back(c);
    for (const unsigned c : {511u, 512u, 513u, 1023u}) grid.push_back(c);
    std::vector<uint32_t> src(4);
    std::vector<uint8_t> dst(24);
    Random random(3);
    for (const Matrix& matrix : matrices) {
        Error error;
        const auto triple = [&](unsigned y, unsigned cb, unsigned cr) {
            src = {word_of(cb, y, cr), word_of(y, cb, y), word_of(cr, y, cb), word_of(y, cr, y)};
            for (uint32_t& word : src) word |= 0xC0000000;
            cycbcr_012v_to_rgb32(dst.data(), src.data(), 6, 1, 24, 16, matrix.selector, 0);
            for (size_t x = 0; x < 6; ++x) error.add(&dst[x * 4], exact(y, cb, cr, matrix.kr, matrix.kb));
        };
        for (const unsigned cb : grid)
            for (const unsigned cr : grid)
                for (unsigned y = 0; y < 1024; ++y) triple(y, cb, cr);
        for (int round = 0; round < 1000000; ++round) {
            const uint64_t bits = random.next();
            triple(bits & 1023, bits >> 10 & 1023, bits >> 20 & 1023);
        }
        error.expect_within_one(("v210 " + std::to_string(matrix.selector)).c_str());
    }
}

TEST(Cycbcr, an_unknown_selector_is_bt709)
{
    Random random(4);
    std::vector<uint8_t> src = random.bytes(64), one(128), other(128);
    cycbcr_uyvy_to_rgb32(one.data(), src.data(), 32, 1, 128, 64, 709, 0);
    for (const unsigned selector : {0u, 1u, 600u, 4000000000u}) {
        cycbcr_uyvy_to_rgb32(other.data(), src.data(), 32, 1, 128, 64, selector, 0);
        EXPECT_EQ(one, other) << selector;
    }
    cycbcr_uyvy_to_rgb32(other.data(), src.data(), 32, 1, 128, 64, 601, 0);
    EXPECT_NE(one, other);
}

using Routine = int (*)(void*, void*, int, int, int, int, unsigned, unsigned);

TEST(Cycbcr, the_flag_turns_the_picture_and_the_sign_of_height_does_not)
{
    Random random(5);
    constexpr int width = 20, height = 6, line = width * 4;
    for (const Routine routine :
         {&cycbcr_uyvy_to_rgb32, &cycbcr_012v_to_rgb32, &cycbcr_i420_to_rgb32, &cycbcr_yv12_to_rgb32}) {
        std::vector<uint8_t> src = random.bytes(64 * height * 2), up(line * height), down(up.size()),
                             negative(up.size());
        EXPECT_EQ(routine(up.data(), src.data(), width, height, line, 64, 709, 0), 0);
        EXPECT_EQ(routine(negative.data(), src.data(), width, -height, line, 64, 709, 0), 0);
        EXPECT_EQ(routine(down.data(), src.data(), width, -height, line, 64, 709, CYCBCR_BOTTOM_UP), 0);
        EXPECT_EQ(up, negative);
        for (int y = 0; y < height; ++y)
            EXPECT_EQ(0, std::memcmp(&up[static_cast<size_t>(y * line)],
                                     &down[static_cast<size_t>((height - 1 - y) * line)], line));
    }
}

// The 4:2:0 planes through the 4:2:2 decoder: the same pixels as a frame whose chroma was repeated by hand.
TEST(Cycbcr, planes_of_420)
{
    Random random(6);
    for (int round = 0; round < 300; ++round) {
        const int width = static_cast<int>(random.between(1, 70)), height = static_cast<int>(random.between(1, 9));
        const int stride = static_cast<int>(random.between(width, width + 20));
        const size_t n = static_cast<size_t>(stride) * static_cast<size_t>(height);
        std::vector<uint8_t> src = random.bytes(n + 2 * (n >> 2) + 64);
        const size_t out = static_cast<size_t>(width) * 4 * static_cast<size_t>(height);
        std::vector<uint8_t> i420(out), yv12(out), expected(out);
        for (const bool cb_first : {true, false}) {
            for (int y = 0; y < height; ++y) {
                std::vector<uint8_t> line(static_cast<size_t>(width + 1) / 2 * 4, 128);
                for (int x = 0; x < width; ++x) {
                    line[static_cast<size_t>(x) * 2 + 1] = src[static_cast<size_t>(y * stride + x)];
                    if (width < 2 || height < 2) continue;
                    const int cx = std::min(x / 2, width / 2 - 1), cy = std::min(y / 2, height / 2 - 1);
                    const uint8_t first = src[n + static_cast<size_t>(cy * (stride / 2) + cx)];
                    const uint8_t second = src[n + (n >> 2) + static_cast<size_t>(cy * (stride / 2) + cx)];
                    line[static_cast<size_t>(x) / 2 * 4] = cb_first ? first : second;
                    line[static_cast<size_t>(x) / 2 * 4 + 2] = cb_first ? second : first;
                }
                cycbcr_uyvy_to_rgb32(&expected[static_cast<size_t>(y * width) * 4], line.data(), width, 1, 0, 0, 601,
                                     0);
            }
            auto& is = cb_first ? i420 : yv12;
            (cb_first ? cycbcr_i420_to_rgb32 : cycbcr_yv12_to_rgb32)(is.data(), src.data(), width, height, width * 4,
                                                                     stride, 601, 0);
            EXPECT_EQ(is, expected) << width << 'x' << height << " stride " << stride;
        }
    }
}

// Between fences: `width` x 4 bytes are written, and what is read ends with the last sample.
TEST(Cycbcr, stays_in_its_lines)
{
    const struct {
        Routine routine;
        int64_t (*source)(int64_t width);
    } forms[] = {{cycbcr_uyvy_to_rgb32, [](int64_t w) { return w * 2 + w % 2; }},
                 {cycbcr_012v_to_rgb32, [](int64_t w) { return (w * 2 - (w % 2 == 0 ? 1 : 0)) / 3 * 4 + 4; }},
                 {cycbcr_i420_to_rgb32, [](int64_t w) { return w; }}};
    for (const auto& [routine, source] : forms) {
        for (int width = 1; width < 130; ++width) {
            for (const Side side : {Side::below, Side::above}) {
                const int64_t read = source(width), written = width * 4;
                FencedBuffer src({0, read}, side == Side::above ? read : 0, side, Closed::wholly);
                FencedBuffer dst({0, written}, side == Side::above ? written : 0, side, Closed::wholly);
                EXPECT_FALSE(faults([&, call = routine] {
                    call(dst.pointer(), src.pointer(), width, 1, 0, 0, 709, 0);
                })) << width;
            }
        }
    }
}

}  // namespace
}  // namespace tintvert::test
