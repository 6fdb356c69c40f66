// The decode entries: which go to libycbcr and with what, and that the others call nothing.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <initializer_list>
#include <utility>

#include "recorder.h"
#include "reference/decode/decoding_tables.h"
#include "support/library_memory.h"
#include "support/sanitized.h"

namespace tintvert::test {
namespace {

struct Entry {
    const char* name;
    int (*routine)(void*, long, void*, long, long, long, long);
    bool ten_bits;
    int bytes_a_pixel;
    const char* decoder;  // null: the tables at every scale
};

const Entry entries[] = {
    {"tntvt_yuv422_10_rgb24", tntvt_yuv422_10_rgb24, true, 3, nullptr},
    {"tntvt_yuv422_10_rgb32", tntvt_yuv422_10_rgb32, true, 4, "cycbcr_012v_to_rgb32"},
    {"tntvt_yuv422_8_rgb24", tntvt_yuv422_8_rgb24, false, 3, "cycbcr_012v_to_rgb32"},
    {"tntvt_yuv422_8_rgb32", tntvt_yuv422_8_rgb32, false, 4, "cycbcr_uyvy_to_rgb32"},
};

struct Geometry {
    long dstStride, srcStride, width, height;
};

class DecodeEntries : public Imports {
protected:
    std::array<uint8_t, 8> src{}, dst{};

    void SetUp() override
    {
        Imports::SetUp();
        calls().name("src", src.data(), src.size());
        calls().name("dst", dst.data(), dst.size());
        calls().matrix = 0xC0FFEE42;
    }

    // What a call at full size logs.
    Log at_full_size(const Entry& entry, const Geometry& g)
    {
        calls().log.clear();
        entry.routine(dst.data(), g.dstStride, src.data(), g.srcStride, g.width, g.height, 1);
        return calls().log;
    }
};

std::string list(std::initializer_list<long> numbers)
{
    std::string text;
    for (const long number : numbers) text += (text.empty() ? "" : ", ") + std::to_string(number);
    return text;
}

// The matrix is 0xC0FFEE42; width, height and the strides are those that the decoder is to see.
Log expected(const char* decoder, long width, long height, long dstStride, long srcStride, long flags)
{
    return {
        "GetMatrixBySize(" + list({width, height, 0}) + ')',
        std::string{decoder} + "(dst, src, " + list({width, height, dstStride, srcStride, 0xC0FFEE42, flags}) + ')'};
}

TEST_F(DecodeEntries, at_full_size_ask_for_the_matrix_once_and_decode_once)
{
    EXPECT_EQ(at_full_size(entries[1], {0, 0, 1920, 1080}),
              expected("cycbcr_012v_to_rgb32", 1920, 1080, 7680, 5120, 0));
    EXPECT_EQ(at_full_size(entries[1], {0, 0, 1280, 720}), expected("cycbcr_012v_to_rgb32", 1280, 720, 5120, 3456, 0));
    EXPECT_EQ(at_full_size(entries[3], {0, 0, 1920, 1080}),
              expected("cycbcr_uyvy_to_rgb32", 1920, 1080, 7680, 3840, 0));
}

// An 8-bit frame with 8-bit lines, to lines of three bytes a pixel.
TEST_F(DecodeEntries, keeps_10_bit_decoder_for_8_bit_data)
{
    EXPECT_EQ(at_full_size(entries[2], {0, 0, 1920, 1080}),
              expected("cycbcr_012v_to_rgb32", 1920, 1080, 5760, 3840, 0));
    EXPECT_EQ(at_full_size(entries[2], {6000, 4000, 720, -576}),
              expected("cycbcr_012v_to_rgb32", 720, -576, 6000, 4000, 0x8000));
}

TEST_F(DecodeEntries, resolve_strides_of_0_and_below)
{
    for (const Entry& entry : entries) {
        if (entry.decoder == nullptr) continue;
        for (const long width : {0L, 1L, 2L, 47L, 48L, 49L, 96L, 97L, 720L, 1921L}) {
            const long dst_line = width * entry.bytes_a_pixel;
            const long src_line = entry.ten_bits ? (width + 47) / 48 * 128 : width * 2;
            EXPECT_EQ(at_full_size(entry, {0, 0, width, 2}), expected(entry.decoder, width, 2, dst_line, src_line, 0));
            EXPECT_EQ(at_full_size(entry, {1, 1, width, 2}), expected(entry.decoder, width, 2, 1, 1, 0));
            EXPECT_EQ(at_full_size(entry, {-1, 7, width, 2}), expected(entry.decoder, width, 2, dst_line, 7, 0));
            EXPECT_EQ(at_full_size(entry, {9, LONG_MIN, width, 2}), expected(entry.decoder, width, 2, 9, src_line, 0));
        }
        EXPECT_EQ(at_full_size(entry, {1, 1, -5, 0}), expected(entry.decoder, -5, 0, 1, 1, 0));
    }
}

TEST_F(DecodeEntries, default_lines_of_v210)
{
    for (const auto& [width, line] : {std::pair{48L, 128L}, {49L, 256L}, {96L, 256L}, {1280L, 3456L}, {1920L, 5120L}})
        EXPECT_EQ(at_full_size(entries[1], {0, 0, width, 2}),
                  expected("cycbcr_012v_to_rgb32", width, 2, width * 4, line, 0));
}

// 0x8000 is raised by a negative height and by nothing else; the height keeps its sign.
TEST_F(DecodeEntries, raise_the_flag_for_a_negative_height)
{
    for (const Entry& entry : entries) {
        if (entry.decoder == nullptr) continue;
        for (const long height : {-1080L, -1L, 0L, 1L, 1080L, static_cast<long>(INT_MIN), static_cast<long>(INT_MAX)})
            EXPECT_EQ(at_full_size(entry, {100, 200, 720, height}),
                      expected(entry.decoder, 720, height, 100, 200, height < 0 ? 0x8000 : 0));
    }
}

// Whatever the number is, it goes on as it came.
TEST_F(DecodeEntries, hand_the_matrix_on)
{
    for (const unsigned int matrix : {0u, 1u, 601u, 0x80000000u, 0xFFFFFFFFu}) {
        calls().matrix = matrix;
        calls().log.clear();
        for (const Entry& entry : entries) {
            if (entry.decoder == nullptr) continue;
            entry.routine(dst.data(), 4, src.data(), 4, 2, 1, 1);
            EXPECT_EQ(calls().log.back(),
                      std::string{entry.decoder} + "(dst, src, 2, 1, 4, 4, " + std::to_string(matrix) + ", 0)");
        }
        tntvt_i420_rgb32(dst.data(), src.data(), 2, 1, 4);
        EXPECT_EQ(calls().log.back(), "cycbcr_i420_to_rgb32(dst, src, 2, 1, 8, 4, " + std::to_string(matrix) + ", 0)");
    }
}

// ... and whatever the decoder returns. The tables return 0.
TEST_F(DecodeEntries, return_what_the_decoder_returns)
{
    for (const int decoded : {0, 1, -1, -7, INT_MAX, INT_MIN}) {
        calls().decoded = decoded;
        for (const Entry& entry : entries) {
            EXPECT_EQ(entry.routine(dst.data(), 4, src.data(), 4, 0, 0, 1), entry.decoder == nullptr ? 0 : decoded)
                << entry.name;
            EXPECT_EQ(entry.routine(dst.data(), 4, src.data(), 4, 0, 0, 2), 0) << entry.name;
        }
        EXPECT_EQ(tntvt_i420_rgb32(dst.data(), src.data(), 2, 1, 4), decoded);
        EXPECT_EQ(tntvt_yv12_rgb32(dst.data(), src.data(), 2, 1, 4), decoded);
    }
}

// Numbers above 32 bits are cut as they are handed on; the flag goes by the height as it came.
TEST_F(DecodeEntries, hand_on_32_bits)
{
    EXPECT_EQ(at_full_size(entries[3], {0x100000007, 0x200000009, 0x10000000A, 0x10000000B}),
              expected("cycbcr_uyvy_to_rgb32", 10, 11, 7, 9, 0));
    EXPECT_EQ(at_full_size(entries[3], {7, 9, 10, 0x80000000}), expected("cycbcr_uyvy_to_rgb32", 10, INT_MIN, 7, 9, 0));
    EXPECT_EQ(at_full_size(entries[3], {7, 9, 10, -0xFFFFFFFFL}),
              expected("cycbcr_uyvy_to_rgb32", 10, 1, 7, 9, 0x8000));
}

TEST_F(DecodeEntries, decode_planes_into_packed_lines)
{
    tntvt_i420_rgb32(dst.data(), src.data(), 720, 576, 768);
    EXPECT_EQ(calls().log, expected("cycbcr_i420_to_rgb32", 720, 576, 2880, 768, 0));
    calls().log.clear();
    tntvt_yv12_rgb32(dst.data(), src.data(), 1920, 1080, 1920);
    EXPECT_EQ(calls().log, expected("cycbcr_yv12_to_rgb32", 1920, 1080, 7680, 1920, 0));
}

// `srcStride` has no default, and no height is negative: flags stay 0.
TEST_F(DecodeEntries, decode_planes_by_the_given_numbers)
{
    tntvt_i420_rgb32(dst.data(), src.data(), 0, 0, 0);
    EXPECT_EQ(calls().log, expected("cycbcr_i420_to_rgb32", 0, 0, 0, 0, 0));
    calls().log.clear();
    tntvt_yv12_rgb32(dst.data(), src.data(), 3, 0x80000000, 0xFFFFFFFF);
    EXPECT_EQ(calls().log, expected("cycbcr_yv12_to_rgb32", 3, INT_MIN, 12, -1, 0));
}

// Every scale but 1, and every one of tntvt_yuv422_10_rgb24.
TEST_F(DecodeEntries, call_nothing_for_the_tables)
{
    std::vector<uint8_t> picture(64 * 1024), out(64 * 1024);
    for (const Entry& entry : entries) {
        for (const long scale : {-1L, 2L, 3L, 4L, 5L, 0x100000001L}) {
            std::fill(out.begin(), out.end(), uint8_t{0xEE});
            entry.routine(out.data(), 0, picture.data(), 0, 48, 8, scale);
            EXPECT_EQ(out[3] == 255, scale >= 2 && scale <= 8) << entry.name << ' ' << scale;
            entry.routine(out.data(), 0, picture.data(), 0, 48, -8, scale == -1 ? 2 : scale);
        }
    }
    std::fill(out.begin(), out.end(), uint8_t{0xEE});
    tntvt_yuv422_10_rgb24(out.data(), 0, picture.data(), 0, 48, 8, 1);
    EXPECT_EQ(out[48 * 3 * 8 - 1], 0);
    EXPECT_EQ(out[48 * 3 * 8], 0xEE);
    tntvt_yuv422_10_rgb24(out.data(), 0, picture.data(), 0, 48, -8, 1);
    tntvt_yuvijg_rgb32(out.data(), 192, picture.data(), 144, 48, 8);
    EXPECT_EQ(calls().log, Log{});
}

TEST_F(DecodeEntries, let_exceptions_through)
{
    for (const Entry& entry : entries) {
        if (entry.decoder == nullptr) continue;
        for (const char* thrower : {"GetMatrixBySize", entry.decoder}) {
            calls().throw_at(thrower, 1);
            EXPECT_THROW(at_full_size(entry, {0, 0, 48, 2}), Thrown) << entry.name << ", " << thrower;
            EXPECT_EQ(calls().log.size(), thrower == entry.decoder ? 2u : 1u);
        }
    }
    calls().throw_at("GetMatrixBySize", 1);
    EXPECT_THROW(tntvt_i420_rgb32(dst.data(), src.data(), 2, 2, 2), Thrown);
    calls().throw_at("cycbcr_yv12_to_rgb32", 1);
    EXPECT_THROW(tntvt_yv12_rgb32(dst.data(), src.data(), 2, 2, 2), Thrown);
}

TEST_F(DecodeEntries, divide_by_zero_at_scale_0_and_call_nothing_first)
{
    if (sanitized) GTEST_SKIP() << "sanitizers report the division in their own way";
    for (const Entry& entry : entries) {
        for (const char* import : {"GetMatrixBySize", "cycbcr_012v_to_rgb32", "cycbcr_uyvy_to_rgb32"})
            calls().throw_at(import, 1);
        EXPECT_EXIT(entry.routine(dst.data(), 0, src.data(), 0, 2, 1, 0), testing::KilledBySignal(SIGFPE), "")
            << entry.name;
    }
}

bool tables_are_built()
{
    const auto stands = [](const reference::Table& table) { return !places_in_library(table.bytes).empty(); };
    const std::vector<reference::Table> tables = reference::tables_of_2vuy();
    return std::ranges::any_of(tables, stands);
}

// In a process of its own, for tables are built once.
TEST_F(DecodeEntries, at_full_size_leave_the_tables_unbuilt)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            for (const Entry& entry : entries)
                if (entry.decoder != nullptr) at_full_size(entry, {0, 0, 48, 2});
            tntvt_i420_rgb32(dst.data(), src.data(), 2, 2, 2);
            tntvt_yv12_rgb32(dst.data(), src.data(), 2, 2, 2);
            const bool before = tables_are_built();
            tntvt_yuv422_10_rgb32(dst.data(), 0, src.data(), 0, 48, 0, 2);
            std::_Exit(!before && tables_are_built() ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace tintvert::test
