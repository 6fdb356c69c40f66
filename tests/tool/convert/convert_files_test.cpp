// convert: every kind of file that goes in or out.
#include "tool/noise.h"
#include "tool/png_maker.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Convert = ToolTest;

TEST_F(Convert, png_in_and_out)
{
    const PngKind kind;
    save("in.png", make_png(kind, 12, 6));
    ASSERT_EQ(run({"convert", "tntvt_rgb32_bgr32_inplace", path("in.png"), path("out.raw")}).code, 0);
    std::string expected;
    for (unsigned y = 0; y < 6; ++y)
        for (unsigned x = 0; x < 12; ++x) {
            const auto pixel = png_pixel(kind, x, y);
            expected += {static_cast<char>(pixel[0]), static_cast<char>(pixel[1]), static_cast<char>(pixel[2]), '\xff'};
        }
    EXPECT_EQ(load("out.raw"), expected);
    // ... and back: the exchange undone, the picture is the one that went in.
    ASSERT_EQ(run({"convert", "bgra2rgba", path("out.raw"), path("rgb32.raw"), "-s", "12x6"}).code, 0);
    ASSERT_EQ(run({"convert", "tntvt_rgb32_rgb24", path("rgb32.raw"), path("back.png"), "-s", "12x6"}).code, 0);
    ASSERT_EQ(run({"convert", "tntvt_rgb24_rgb32", path("in.png"), path("whole.png")}).code, 0);
    EXPECT_EQ(load("back.png"), load("whole.png"));
}

// Deep layouts keep the upper bits of 16-bit pictures, and give 16-bit pictures.
TEST_F(Convert, deep_png)
{
    PngKind kind;
    kind.depth = 16;
    save("in.png", make_png(kind, 8, 4));
    ASSERT_EQ(run({"convert", "tntvt_rgba64_rgba32", path("in.png"), path("out.raw"), "--bits", "16"}).code, 0);
    std::string expected;
    for (unsigned y = 0; y < 4; ++y)
        for (unsigned x = 0; x < 8; ++x) {
            const auto pixel = png_pixel(kind, x, y);
            expected += {static_cast<char>(pixel[2]), static_cast<char>(pixel[1]), static_cast<char>(pixel[0]), '\xff'};
        }
    EXPECT_EQ(load("out.raw"), expected);
    ASSERT_EQ(run({"convert", "tntvt_rgba32_rgba64", path("out.raw"), path("out.png"), "-s", "8x4"}).code, 0);
    EXPECT_EQ(static_cast<unsigned char>(load("out.png")[24]), 16);
}

TEST_F(Convert, png_holds_rgb_alone)
{
    save("in.png", make_png(PngKind{}, 8, 4));
    save("in.raw", noise(4, 8 * 4 * 2));
    EXPECT_EQ(run({"convert", "tntvt_yuv422_rgb24", path("in.png"), path("o.raw")}).code, 2);
    EXPECT_EQ(run({"convert", "tntvt_2vuy_v210", path("in.raw"), path("o.png"), "-s", "8x4"}).code, 2);
    save("two.raw", noise(4, 2 * 8 * 4 * 2));
    EXPECT_EQ(run({"convert", "tntvt_yuv422_rgb24", path("two.raw"), path("o.png"), "-s", "8x4"}).code, 2);
    EXPECT_EQ(run({"convert", "tntvt_yuv422_rgb24", path("two.raw"), path("o.png"), "-s", "8x4", "--frames", "1"}).code,
              0);
}

TEST_F(Convert, y4m_in_and_out)
{
    const std::string one = noise(5, 8 * 4 * 3 / 2), two = noise(6, 8 * 4 * 3 / 2);
    save("in.y4m", "YUV4MPEG2 W8 H4 F25:1 Ip A1:1 C420jpeg XCOMMENT\nFRAME\n" + one + "FRAME\n" + two);
    ASSERT_EQ(run({"convert", "tntvt_i420_2vuy", path("in.y4m"), path("out.2vuy")}).code, 0);
    save("planes.raw", one + two);
    ASSERT_EQ(run({"convert", "tntvt_i420_2vuy", path("planes.raw"), path("raw.2vuy"), "-s", "8x4"}).code, 0);
    EXPECT_EQ(load("out.2vuy"), load("raw.2vuy"));
    // yv12 has its chroma the other way about in memory, and the same in the clip.
    ASSERT_EQ(run({"convert", "tntvt_yv12_2vuy", path("in.y4m"), path("yv12.2vuy")}).code, 0);
    EXPECT_EQ(load("yv12.2vuy"), load("out.2vuy"));
    ASSERT_EQ(run({"convert", "tntvt_2vuy_yv12", path("out.2vuy"), path("yv12.y4m"), "-s", "8x4"}).code, 0);
    ASSERT_EQ(run({"convert", "tntvt_2vuy_i420", path("out.2vuy"), path("i420.y4m"), "-s", "8x4"}).code, 0);
    EXPECT_EQ(load("i420.y4m"), load("yv12.y4m"));
    EXPECT_EQ(load("i420.y4m"), "YUV4MPEG2 W8 H4 F25:1 Ip A1:1 C420jpeg\nFRAME\n" + one + "FRAME\n" + two);
    ASSERT_EQ(run({"convert", "tntvt_2vuy_planar", path("out.2vuy"), path("422.y4m"), "-s", "8x4"}).code, 0);
    ASSERT_EQ(run({"convert", "tntvt_planar_2vuy", path("422.y4m"), path("back.2vuy")}).code, 0);
    EXPECT_EQ(load("back.2vuy"), load("out.2vuy"));
}

TEST_F(Convert, broken_y4m)
{
    const std::string header = "YUV4MPEG2 W8 H4 F25:1 C420jpeg\n", frame = "FRAME\n" + noise(7, 48);
    const auto code = [&](const std::string& clip) {
        save("in.y4m", clip);
        const Result result = run({"convert", "tntvt_i420_2vuy", path("in.y4m"), path("o")});
        EXPECT_TRUE(result.code == 0 || result.has_one_line_of_error()) << result.err;
        return result.code;
    };
    EXPECT_EQ(code(header + frame), 0);
    EXPECT_EQ(code(""), 3);
    EXPECT_EQ(code("YUV4MPEG3 W8 H4\n"), 3);
    EXPECT_EQ(code("YUV4MPEG2 W8 H4"), 3);
    EXPECT_EQ(code("YUV4MPEG2 H4\n" + frame), 3);
    EXPECT_EQ(code("YUV4MPEG2 W0 H4\n" + frame), 3);
    EXPECT_EQ(code("YUV4MPEG2 W8x H4\n" + frame), 3);
    EXPECT_EQ(code("YUV4MPEG2 W8 H4 C444\n" + frame), 3);
    EXPECT_EQ(code("YUV4MPEG2 W8 H4 C422\n" + frame), 2);
    EXPECT_EQ(code(header + frame.substr(0, 50)), 4);
    EXPECT_EQ(code(header + "FRAMX\n" + frame.substr(6)), 3);
}

TEST_F(Convert, planes_in_files_of_their_own)
{
    const std::string y = noise(8, 32), cb = noise(9, 16), cr = noise(10, 16);
    save("y", y), save("cb", cb), save("cr", cr), save("all", y + cb + cr);
    const std::string planes = path("y") + ',' + path("cb") + ',' + path("cr");
    ASSERT_EQ(run({"convert", "tntvt_planar_2vuy", "--planes", planes, path("out"), "-s", "8x4"}).code, 0);
    ASSERT_EQ(run({"convert", "tntvt_planar_2vuy", path("all"), path("one"), "-s", "8x4"}).code, 0);
    EXPECT_EQ(load("out"), load("one"));
    const std::string back = path("y2") + ',' + path("cb2") + ',' + path("cr2");
    ASSERT_EQ(run({"convert", "tntvt_2vuy_planar", path("out"), "--planes", back, "-s", "8x4"}).code, 0);
    EXPECT_EQ(load("y2"), y);
    EXPECT_EQ(load("cb2"), cb);
    EXPECT_EQ(load("cr2"), cr);
    EXPECT_EQ(
        run({"convert", "tntvt_planar_2vuy", "--planes", path("y") + ',' + path("cb"), path("o"), "-s", "8x4"}).code,
        2);
    save("cr", cr + cr);
    EXPECT_EQ(run({"convert", "tntvt_planar_2vuy", "--planes", planes, path("o"), "-s", "8x4"}).code, 4);
}

std::string little(uint32_t value, int bytes)
{
    std::string text;
    for (; bytes > 0; --bytes, value >>= 8) text += static_cast<char>(value);
    return text;
}

// 3 x 2, two lines: entries 1, 1, 1 at the bottom and 2, 3, 4 as an absolute run at the top.
std::string bmp(const std::string& stream)
{
    std::string palette;
    for (int i = 0; i < 256; ++i)
        palette += {static_cast<char>(i), static_cast<char>(i + 1), static_cast<char>(i + 2), '\0'};
    const std::string head = "BM" + little(0, 8) + little(54 + 1024, 4) + little(40, 4) + little(3, 4) + little(2, 4) +
                             little(1, 2) + little(8, 2) + little(1, 4) + little(0, 20);
    return head + palette + stream;
}

TEST_F(Convert, run_length_coded_bmp)
{
    save("in.bmp", bmp({"\3\1\0\0\0\3\2\3\4\0\0\1", 12}));
    const Result result = run({"convert", "tntvt_rle8_rgb32", path("in.bmp"), path("out.raw")});
    ASSERT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(load("out.raw"), std::string("\2\3\4\0\3\4\5\0\4\5\6\0\1\2\3\0\1\2\3\0\1\2\3\0", 24));
    EXPECT_EQ(run({"convert", "tntvt_rle8_rgba32", path("in.bmp"), path("out.png")}).code, 0);
}

TEST_F(Convert, run_length_coded_bmp_of_nothing)
{
    save("in.bmp", bmp({"\0\1", 2}));
    for (const char* routine : {"tntvt_rle8_rgb32", "tntvt_rle8_rgb24"}) {
        const Result result = run({"convert", routine, path("in.bmp"), path("out.raw")});
        ASSERT_EQ(result.code, 0) << result.err;
        EXPECT_EQ(load("out.raw"), std::string(routine[14] == '3' ? 24 : 18, '\0'));
    }
}

TEST_F(Convert, run_length_streams_that_go_wrong)
{
    const auto refused = [&](const char* routine, const std::string& stream) {
        save("in.bmp", bmp(stream));
        const Result result = run({"convert", routine, path("in.bmp"), path("o")});
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_EQ(result.code, 4);
        return result.err;
    };
    EXPECT_NE(refused("tntvt_rle8_rgb32", {"\3\1\0\0\3", 5}).find("byte 5"), std::string::npos);
    EXPECT_NE(refused("tntvt_rle8_rgb32", {"\0\3\1", 3}).find("byte 3"), std::string::npos);
    refused("tntvt_rle8_rgb32", "");
    refused("tntvt_rle8_rgb32", {"\7\1\0\1", 4});
    refused("tntvt_rle8_rgb24", {"\6\1\0\1", 4});
    save("in.bmp", bmp("").substr(0, 300));
    EXPECT_EQ(run({"convert", "tntvt_rle8_rgb32", path("in.bmp"), path("o")}).code, 3);
}

TEST_F(Convert, raw_run_length_stream_with_its_palette)
{
    save("in.rle", "xx" + std::string("\2\5\0\1", 4));
    save("palette", noise(11, 1024));
    const std::string palette = load("palette");
    ASSERT_EQ(run({"convert", "tntvt_rle8_rgb24", path("in.rle"), path("out"), "-s", "3x1", "--palette",
                   path("palette"), "--offset", "2"})
                  .code,
              0);
    EXPECT_EQ(load("out"), palette.substr(20, 3) + palette.substr(20, 3) + palette.substr(20, 3));
}

}  // namespace
}  // namespace tintvert::test
