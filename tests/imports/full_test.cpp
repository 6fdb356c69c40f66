// The block copies of tntvt_rgba_full. The double throws before it copies, so any count will do, and the
// exception has to come out.
#include <gtest/gtest.h>
#include <tintvert/rgb.h>

#include <string>
#include <vector>

#include "recorder.h"

namespace tintvert::test {
namespace {

class RgbaFullImports : public Imports {
protected:
    void SetUp() override
    {
        Imports::SetUp();
        calls().name("dst", dst.data(), dst.size());
        calls().name("src", src.data(), src.size());
    }

    std::vector<uint8_t> dst = std::vector<uint8_t>(64, 0xEE), src = std::vector<uint8_t>(64, 1);
};

TEST_F(RgbaFullImports, copies_one_block_with_equal_strides)
{
    struct Case {
        long stride, width, height;
        const char* bytes;
    };
    for (const auto& [stride, width, height, bytes] :
         {Case{6, 2, 2, "12"}, Case{7, 2, 2, "12"}, Case{8, 2, 3, "24"}, Case{9, 2, 3, "24"},
          // Other sizes a pixel than 3 and 4.
          Case{4, 2, 2, "8"}, Case{11, 2, 3, "30"}, Case{16, 2, 2, "32"}, Case{3, 4, 2, "0"}, Case{0, 4, 2, "0"},
          // `height` goes in unchanged.
          Case{6, 2, 0, "0"}, Case{6, 2, -2, "4294967284"}, Case{8, 2, -1, "4294967288"}, Case{4, 2, -3, "4294967284"},
          // So do `width` and the sign of the quotient: -3 x -2 x 2, -3 x 2 x 2, 4 x -2 x 1.
          Case{6, -2, 2, "12"}, Case{-6, 2, 2, "4294967284"}, Case{-8, -2, 1, "4294967288"}, Case{-8, -2, -1, "8"},
          // 32 bits of the product: 4 x 65537 x 65537, 3 x 2^16 x 2^16, 4 x 2^30, 3 x 2^31, 3 x 2^30 x -1.
          Case{4 * 65537, 65537, 65537, "524292"}, Case{3 << 16, 1 << 16, 1 << 16, "0"},
          Case{1l << 32, 1l << 30, 1, "0"}, Case{3l << 31, 1l << 31, 1, "2147483648"},
          Case{3l << 30, 1l << 30, -1, "1073741824"}, Case{4l * ((1l << 32) + 1), (1l << 32) + 1, 5, "20"},
          Case{4, 1, (1l << 32) + 2, "8"}}) {
        calls().log.clear();
        calls().throw_at("CopyMemoryFast", 1);
        EXPECT_THROW(tntvt_rgba_full(dst.data(), stride, src.data(), stride, width, height), Thrown);
        EXPECT_EQ(calls().log, (Log{std::string("CopyMemoryFast(dst, src, ") + bytes + ')'}))
            << stride << ", " << width << " x " << height;
    }
    EXPECT_EQ(dst, std::vector<uint8_t>(64, 0xEE));
}

TEST_F(RgbaFullImports, copies_the_block_once)
{
    tntvt_rgba_full(dst.data(), 9, src.data(), 9, 3, 2);
    EXPECT_EQ(calls().log, Log{"CopyMemoryFast(dst, src, 18)"});
    std::vector<uint8_t> expected(64, 0xEE);
    std::fill(expected.begin(), expected.begin() + 18, uint8_t{1});
    EXPECT_EQ(dst, expected);
}

TEST_F(RgbaFullImports, calls_nothing_line_by_line)
{
    for (const auto& [to, from] : {std::pair{6l, 8l}, {8l, 6l}, {6l, 7l}, {8l, 9l}, {4l, 8l}, {16l, 8l}})
        for (const long height : {2l, 1l, 0l, -1l}) {
            tntvt_rgba_full(dst.data(), to, src.data(), from, 2, height);
            tntvt_rgba_full(src.data(), to, src.data(), from, 2, height);
        }
    EXPECT_EQ(calls().log, Log{});
}

TEST_F(RgbaFullImports, calls_nothing_where_there_is_nothing_to_do)
{
    tntvt_rgba_full(nullptr, 8, src.data(), 8, 2, 2);
    tntvt_rgba_full(dst.data(), 8, nullptr, 8, 2, 2);
    tntvt_rgba_full(src.data(), 8, src.data(), 8, 2, 2);
    tntvt_rgba_full(src.data(), 8, src.data(), 8, 0, 2);
    EXPECT_EQ(calls().log, Log{});
}

}  // namespace
}  // namespace tintvert::test
