// Conversion paths: which routines they take, and what they report as lost.
#include "paths/path.h"

#include <gtest/gtest.h>

#include "failure.h"

namespace tintvert::test {
namespace {

using namespace core;

paths::Path path_of(const std::string& from, const std::string& to, const std::string& size = "")
{
    const std::string_view wanted[] = {to};
    return paths::find_path({from, false, size.empty() ? Size{} : size_of(size)}, wanted);
}

std::string failure_of(const std::string& from, const std::string& to)
{
    try {
        path_of(from, to);
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), Exit::usage);
        return failure.what();
    }
    return {};
}

struct Expected {
    std::string from, to, size;
    std::vector<std::string> routines, losses;
};

const std::string matrix_of_size = "YCbCr to RGB by the matrix for the size, rounded";
const std::string other_matrix = "RGB to YCbCr by BT.601, which is not the matrix for the size, rounded";
const std::string across = "chroma halved horizontally (averaged over neighbouring pixels)";

TEST(Path, of_least_loss_and_then_the_shortest)
{
    const std::vector<Expected> table = {
        {"v210", "v210", "", {}, {}},
        {"i420", "planar420", "", {}, {}},
        {"2vuy", "v210", "", {"tntvt_2vuy_v210"}, {}},
        {"v210", "2vuy", "", {"tntvt_v210_2vuy"}, {"10 bits to 8 by truncation"}},
        {"v210",
         "i420",
         "",
         {"tntvt_v210_2vuy", "tntvt_2vuy_i420"},
         {"10 bits to 8 by truncation", "chroma halved vertically (dropped)"}},
        {"pgroups",
         "planar422",
         "",
         {"tntvt_YCbCr10Packed_to_v210", "tntvt_v210_2vuy", "tntvt_2vuy_planar"},
         {"10 bits to 8 by truncation"}},
        {"v210",
         "rgb24",
         "1920x1080",
         {"tntvt_yuv422_10_rgb32", "tntvt_rgba32_rgb24"},
         {matrix_of_size, "10 bits to 8 by truncation"}},
        {"v210",
         "rgb24",
         "720x576",
         {"tntvt_v210_rgb24"},
         {"YCbCr to RGB by BT.601, rounded", "10 bits to 8 by truncation"}},
        {"2vuy", "rgb24", "1920x1080", {"tntvt_yuv422_8_rgb32", "tntvt_rgba32_rgb24"}, {matrix_of_size}},
        {"rgb32",
         "v210",
         "1920x1080",
         {"tntvt_rgb32_2vuy", "tntvt_2vuy_v210"},
         {other_matrix, "alpha dropped", across}},
        {"rgb24",
         "v210",
         "720x486",
         {"tntvt_rgb24_rgb32", "tntvt_rgb32_2vuy", "tntvt_2vuy_v210"},
         {"RGB to YCbCr by BT.601, rounded", across}},
        {"rgba64",
         "2vuy",
         "1920x1080",
         {"tntvt_rgba64_rgba32", "tntvt_rgb32_2vuy"},
         {"16 bits to 8 by truncation", other_matrix, "alpha dropped", across}},
        {"yuv444",
         "i420",
         "",
         {"tntvt_yuv444_yuv422_8", "tntvt_2vuy_i420"},
         {"chroma halved horizontally (dropped)", "chroma halved vertically (dropped)"}},
        {"yuvs", "v210", "", {"tntvt_yuvs_2vuy", "tntvt_2vuy_v210"}, {"full range to video range, rounded"}},
        {"YUY2", "2vuy", "", {"YUY2toYV12", "tntvt_i420_2vuy"}, {"chroma halved vertically (averaged over two lines)"}},
        {"2vuy", "alphay", "", {"tntvt_2yuv_to_alphay"}, {"colour dropped"}},
        {"alphay", "2vuy", "", {"tntvt_alphay_to_2yuv"}, {}},
        {"rgb12",
         "rgb24",
         "",
         {"tntvt_rgb12_bgr48", "tntvt_bgr48_rgba32", "tntvt_rgba32_rgb24"},
         {"12 bits to 8 by truncation"}},
        {"rgb48", "rgb12", "", {"tntvt_rgb48_rgb12"}, {"16 bits to 12 by truncation"}},
        {"rgb48",
         "rgba32",
         "",
         {"tntvt_rgb48_rgba32"},
         {"16 bits to 8 by truncation", "the alpha made is 0, transparent"}},
        {"rgb10", "bgr24", "", {"tntvt_rgb10_rgba32", "tntvt_rgb32_bgr24_inplace"}, {"10 bits to 8 by truncation"}},
        {"argb64be", "rgba64", "", {"tntvt_argb64be_rgba64"}, {}},
        {"bgra32", "abgr32", "", {"tntvt_rgba32_bgra32_inplace", "tntvt_rgba32_abgr32_inplace"}, {}},
        {"rgb32", "BGRA", "", {}, {"alpha dropped"}},
        {"BGRA", "rgb24", "", {"tntvt_rgba32_rgb24"}, {}},
    };
    for (const Expected& row : table) {
        const paths::Path path = path_of(row.from, row.to, row.size);
        std::vector<std::string> routines;
        for (const paths::Step& step : path.steps) routines.emplace_back(step.routine->name);
        EXPECT_EQ(routines, row.routines) << row.from << ' ' << row.to;
        EXPECT_EQ(path.losses(), row.losses) << row.from << ' ' << row.to;
    }
}

TEST(Path, none_names_what_can_be_reached)
{
    const std::string table[][2] = {{"2vuy", "yuvs"},    {"rgb24", "YUY2"},    {"rgb32", "rgb10"}, {"rgb32", "rgb16"},
                                    {"v210", "pgroups"}, {"rgb48_12", "2vuy"}, {"rle8", "rgb24"}};
    for (const auto& [from, to] : table) {
        const std::string text = failure_of(from, to);
        const std::string begin =
            "no conversion path leads from " + from + " to " + to + "; from " + from + " there are paths to ";
        ASSERT_TRUE(text.starts_with(begin)) << text;
        EXPECT_NE(text.find(from, begin.size()), std::string::npos) << text;
    }
    EXPECT_NE(failure_of("YUY2", "yuvs").find("i420"), std::string::npos);
}

TEST(Path, suggests_the_nearest_layout)
{
    EXPECT_EQ(failure_of("v201", "rgb24"), "there is no layout 'v201'; did you mean 'v210'?");
}

// `find_path` takes the best of several layouts.
TEST(Path, to_the_layout_of_least_loss)
{
    const std::string_view wanted[] = {"i420", "planar422"};
    EXPECT_EQ(paths::find_path({"2vuy"}, wanted).to, "planar422");
}

}  // namespace
}  // namespace tintvert::test
