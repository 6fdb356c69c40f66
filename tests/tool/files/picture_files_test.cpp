// PPM, PAM, BMP and PNG: what goes in comes out, and what is malformed is reported.
#include "support/random.h"
#include "tool/pam.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using PictureFiles = ToolTest;

TEST_F(PictureFiles, pictures_of_8_and_16_bits_come_back)
{
    for (const unsigned highest : {255u, 65535u}) {
        Pam picture{5, 3, highest, true, {}};
        for (const uint8_t byte : Random(14).bytes(5 * 3 * 4))
            picture.samples.push_back(highest == 255 ? byte : byte * 257u ^ 0x77u);
        save("in.pam", make_pam(picture));
        for (const char* format : {"pam", "png", "bmp"}) {
            if (highest > 255 && std::string(format) == "bmp") continue;
            const std::string file = path("picture.") + format;
            ASSERT_EQ(run({"convert", path("in.pam"), file, "--alpha", "-q"}).code, 0) << format;
            ASSERT_EQ(run({"convert", file, path("back.pam"), "--alpha", "-q"}).code, 0) << format;
            EXPECT_TRUE(load("back.pam") == load("in.pam")) << format << highest;
        }
        for (const char* format : {"ppm", "bmp"}) {
            if (highest > 255 && std::string(format) == "bmp") continue;
            const std::string file = path("picture.") + format;
            ASSERT_EQ(run({"convert", path("in.pam"), file, "-q"}).code, 0) << format;
            ASSERT_EQ(run({"convert", file, path("back.pam"), "-q"}).code, 0) << format;
            ASSERT_EQ(run({"convert", path("in.pam"), path("opaque.pam"), "-q"}).code, 0);
            EXPECT_TRUE(load("back.pam") == load("opaque.pam")) << format << highest;
        }
    }
    const Result deep = run({"convert", path("in.pam"), path("deep.bmp"), "--to", "rgba64"});
    EXPECT_EQ(deep.code, 2);
    EXPECT_NE(deep.err.find("stores 8 bits"), std::string::npos) << deep.err;
}

TEST_F(PictureFiles, a_ppm_byte_for_byte)
{
    save("in.ppm", std::string("P6 # two pixels\n2 1\n255\nRGBrgb"));
    ASSERT_EQ(run({"convert", "--to", "rgb24", path("in.ppm"), path("out"), "-q"}).code, 0);
    EXPECT_EQ(load("out"), "BGRbgr");
    ASSERT_EQ(run({"convert", "--from", "rgb24", path("out"), path("back.ppm"), "-s", "2x1", "-q"}).code, 0);
    EXPECT_EQ(load("back.ppm"), "P6\n2 1\n255\nRGBrgb");
    save("in.ppm", std::string("P6 1 1 31\n\x1f\x0f\x00", 13));
    ASSERT_EQ(run({"convert", "--to", "rgb24", path("in.ppm"), path("out"), "-q"}).code, 0);
    EXPECT_EQ(load("out"), std::string("\x00\x7b\xff", 3));
    ASSERT_EQ(run({"convert", "--from", "rgb48", "--to", "rgb48", path("out"), path("deep.ppm"), "-s", "1x1"}).code, 4);
    save("deep", "\1\2\3\4\5\6");
    ASSERT_EQ(run({"convert", "--from", "rgb48", path("deep"), path("deep.ppm"), "-s", "1x1", "-q"}).code, 0);
    EXPECT_EQ(load("deep.ppm"), "P6\n1 1\n65535\n\6\5\4\3\2\1");
}

TEST_F(PictureFiles, several_pictures_in_one_stream)
{
    const std::string one = "P6\n2 1\n255\nabcdef", two = "P6\n2 1\n255\nghijkl";
    save("two.ppm", one + two);
    ASSERT_EQ(run({"convert", "--to", "bgr24", path("two.ppm"), path("out"), "-q"}).code, 0);
    EXPECT_EQ(load("out"), "abcdefghijkl");
    ASSERT_EQ(run({"convert", "--from", "bgr24", path("out"), path("again.ppm"), "-s", "2x1", "-q"}).code, 0);
    EXPECT_EQ(load("again.ppm"), one + two);
    save("two.ppm", one + "P6\n1 1\n255\nabc");
    EXPECT_EQ(run({"convert", "--to", "bgr24", path("two.ppm"), path("bad"), "-q"}).code, 3);
    EXPECT_FALSE(files_in("").contains("bad"));
}

TEST_F(PictureFiles, broken_pictures)
{
    const auto code = [&](const char* name, const std::string& bytes) {
        save(name, bytes);
        const Result result = run({"convert", "--to", "rgb24", path(name), path("out"), "-q"});
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_FALSE(files_in("").contains("out"));
        return result.code;
    };
    for (const std::string bytes : {"", "P", "P5 1 1 255\nx", "P6", "P6 1", "P6 x 1 255\nabc", "P6 1 1 0\nabc",
                                    "P6 1 1 65536\nabc", "P6 1 1 255\nab", "P6 -1 1 255\nabc"})
        EXPECT_EQ(code("a.ppm", bytes), 3) << bytes;
    EXPECT_EQ(code("a.ppm", "P6 0 1 255\n"), 4);
    EXPECT_EQ(code("a.ppm", "P6 2000000000 2000000000 255\n"), 4);
    EXPECT_EQ(code("a.ppm", "P6 16384 16384 65535\n"), 3);
    EXPECT_EQ(code("a.pam", "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 1\nMAXVAL 255\nTUPLTYPE GRAYSCALE\nENDHDR\nx"), 3);
    EXPECT_EQ(code("a.pam", "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 9\nMAXVAL 255\nENDHDR\nx"), 3);
    EXPECT_EQ(code("a.pam", "P7\nWIDTH 1\n"), 3);
    for (const std::string& bytes :
         {std::string(), std::string("BM"), std::string(200, 'B'), "BM" + std::string(60, '\0')})
        EXPECT_EQ(code("a.bmp", bytes), 3);
}

}  // namespace
}  // namespace tintvert::test
