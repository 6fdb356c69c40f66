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

// Every layout that a routine names is drawn, but for the packet that stands over a frame.
TEST(Layouts, hold_every_name_of_the_catalogue)
{
    for (const catalog::Routine& routine : catalog::routines())
        for (const std::string_view name : {routine.from, routine.to})
            EXPECT_TRUE(name == "none" || name == "rtp4175" || catalog::find_layout(name) != nullptr) << name;
}

TEST(Layouts, text_and_json)
{
    const Result one = run({"layouts", "v210"});
    EXPECT_EQ(one.code, 0);
    EXPECT_NE(one.out.find("word 0     -        Cr0          Y0           Cb0"), std::string::npos);
    const Json all = Json::parse(run({"layouts", "--json"}).out);
    EXPECT_EQ(all["schema"], 1);
    EXPECT_EQ(all["layouts"].size(), catalog::layouts().size());
    const Result wrong = run({"layouts", "v201"});
    EXPECT_EQ(wrong.code, 2);
    EXPECT_NE(wrong.err.find("did you mean"), std::string::npos);
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
    const Json told = Json::parse(run({"st2084", "--table", "RGB_to_SMPTE2048_10Bit", "--json"}).out);
    EXPECT_EQ(told["schema"], 1);
    ASSERT_EQ(told["entries"].size(), 1024u);
    for (size_t i = 0; i < 1024; ++i) {
        EXPECT_EQ(told["entries"][i], get_ardwRGB_to_SMPTE2048_10Bit()[i]);
        EXPECT_NEAR(told["curve"][i].get<double>(), told["entries"][i].get<double>() + 0.5, 0.5 + 1e-9);
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
