// layouts and st2084: pages that say what the library holds.
#include <tintvert.h>

#include <nlohmann/json.hpp>

#include "catalog.h"
#include "layouts.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Json = nlohmann::json;

TEST(Layouts, page_in_the_docs_is_the_one_that_the_tool_makes)
{
    std::ifstream page(TINTVERT_PROJECT "/docs/layouts.md");
    EXPECT_EQ(run({"layouts", "--markdown"}).out, std::string(std::istreambuf_iterator<char>(page), {}));
}

// Every layout that a routine names is drawn, except the RTP packet.
TEST(Layouts, hold_every_name_of_the_catalogue)
{
    for (const catalog::Routine& routine : catalog::routines())
        for (const std::string_view name : {routine.from->name, routine.to->name})
            EXPECT_TRUE(name == "none" || name == "rtp4175" || catalog::find_layout(name) != nullptr) << name;
}

TEST(Layouts, text_and_json)
{
    const Result one = run({"layouts", "v210"});
    EXPECT_EQ(one.code, 0);
    EXPECT_EQ(
        one.out,
        "v210\n"
        "  10-bit 4:2:2, six pixels in four little-endian words\n"
        "  FFmpeg codec v210, GStreamer v210, FourCC v210\n"
        "\n"
        "           31 30  29 ..... 20  19 ..... 10  9 ....... 0\n"
        " word 0     -        Cr0           Y0          Cb0\n"
        " word 1     -         Y2          Cb2           Y1\n"
        " word 2     -        Cb4           Y3          Cr2\n"
        " word 3     -         Y5          Cr4           Y4       one group of 6 pixels, 16 bytes\n"
        "\n"
        " b0  Cb0 7..0   b1  Y0 5..0 | Cb0 9..8   b2  Cr0 3..0 | Y0 9..6   b3  - | Cr0 9..4\n"
        " b4  Y1 7..0    b5  Cb2 5..0 | Y1 9..8   b6  Y2 3..0 | Cb2 9..6   b7  - | Y2 9..4\n"
        " b8  Cr2 7..0   b9  Y3 5..0 | Cr2 9..8   b10 Cb4 3..0 | Y3 9..6   b11 - | Cb4 9..4\n"
        " b12 Y4 7..0    b13 Cr4 5..0 | Y4 9..8   b14 Y5 3..0 | Cr4 9..6   b15 - | Y5 9..4   one group of 6 pixels, "
        "16 bytes\n");
    const Json all = Json::parse(run({"layouts", "--json"}).out);
    EXPECT_EQ(all["schema"], 1);
    EXPECT_EQ(all["layouts"].size(), catalog::layouts().size());
    const Result wrong = run({"layouts", "v201"});
    EXPECT_EQ(wrong.code, 2);
    EXPECT_NE(wrong.err.find("did you mean"), std::string::npos);
}

TEST(Layouts, json_tells_where_every_sample_stands)
{
    const Json v210 = Json::parse(run({"layouts", "v210", "--json"}).out)["layouts"][0]["forms"];
    ASSERT_EQ(v210.size(), 1u);
    const Json plane = v210[0]["planes"][0];
    EXPECT_EQ(plane["pixels_across"], 6);
    EXPECT_EQ(plane["unit_bytes"], 16);
    ASSERT_EQ(plane["samples"].size(), 12u);
    EXPECT_EQ(plane["samples"][0],
              (Json{{"component", "Cr"}, {"pixel", 0}, {"word", 0}, {"low_bit", 20}, {"bits", 10}, {"signed", false}}));
    const Json rgb10 = Json::parse(run({"layouts", "rgb10", "--json"}).out)["layouts"][0]["forms"];
    ASSERT_EQ(rgb10.size(), 2u);
    EXPECT_EQ(rgb10[0]["planes"][0]["byte_order"], "big");
    EXPECT_EQ(rgb10[1]["form"], "little");
}

// The colours of a component go around its label alone, so what is left without them is the plain picture.
TEST(Layouts, color_changes_no_letter)
{
    std::string painted = run({"layouts", "v210", "--color", "always"}).out;
    EXPECT_NE(painted.find("\x1b[33mY5 9..4\x1b[0m"), std::string::npos);
    for (size_t at; (at = painted.find('\x1b')) != std::string::npos;)
        painted.erase(at, painted.find('m', at) + 1 - at);
    EXPECT_EQ(painted, run({"layouts", "v210"}).out);
    EXPECT_EQ(run({"layouts", "v210", "--color", "sometimes"}).code, 2);
}

TEST(Layouts, line_lengths)
{
    EXPECT_EQ(catalog::find_layout("v210")->line_bytes(1920), 5120);
    EXPECT_EQ(catalog::find_layout("v210")->line_bytes(6), 128);
    EXPECT_EQ(catalog::find_layout("pgroups")->line_bytes(1920), 4800);
    EXPECT_EQ(catalog::find_layout("2vuy")->line_bytes(1920), 3840);
    EXPECT_EQ(catalog::find_layout("rgb12")->line_bytes(8), 36);
    EXPECT_EQ(catalog::frame_bytes(*catalog::find_layout("i420"), 8, 4), 48);
    EXPECT_EQ(catalog::frame_bytes(*catalog::find_layout("planar422"), 8, 4), 64);
}

TEST(St2084, json_holds_every_entry)
{
    const Json shown = Json::parse(run({"st2084", "--table", "RGB_to_SMPTE2048_10Bit", "--json"}).out);
    EXPECT_EQ(shown["schema"], 1);
    ASSERT_EQ(shown["entries"].size(), 1024u);
    for (size_t i = 0; i < 1024; ++i) {
        EXPECT_EQ(shown["entries"][i], get_ardwRGB_to_SMPTE2048_10Bit()[i]);
        EXPECT_NEAR(shown["curve"][i].get<double>(), shown["entries"][i].get<double>() + 0.5, 0.5 + 1e-9);
    }
}

TEST(St2084, plots_every_table)
{
    for (const char* table : {"RGB_to_SMPTE2048_8Bit", "RGB_to_SMPTE2048_12Bit", "SMPTE2048_to_RGB_8Bit",
                              "SMPTE2048_to_RGB_10Bit", "SMPTE2048_to_RGB_12Bit"}) {
        const Result result = run({"st2084", "--table", table});
        EXPECT_EQ(result.code, 0);
        EXPECT_NE(result.out.find('#'), std::string::npos);
    }
    EXPECT_EQ(run({"st2084", "--table", "RGB_to_SMPTE2048_9Bit"}).code, 2);
}

class St2084Picture : public ToolTest {};

TEST_F(St2084Picture, png)
{
    EXPECT_EQ(run({"st2084", "--png", path("curve.png")}).code, 0);
    EXPECT_EQ(load("curve.png").substr(1, 3), "PNG");
}

}  // namespace
}  // namespace tintvert::test
