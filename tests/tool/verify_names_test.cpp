// verify and names: what others make of our routines, and how they call our layouts.
#include <nlohmann/json.hpp>

#include "catalog.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Json = nlohmann::json;

class Verify : public ToolTest {
protected:
    // With nothing on the path but what the test has put there.
    Result verify(std::vector<std::string> arguments = {}) const
    {
        arguments.insert(arguments.begin(), "verify");
        const std::string folder = path("");
        return run(arguments, [&] { setenv("PATH", folder.c_str(), 1); });
    }

    void install(const std::string& program, const std::string& script) const
    {
        save(program, "#!/bin/sh\n" + script + "\n");
        std::filesystem::permissions(path(program), std::filesystem::perms::owner_all);
    }
};

// Whatever is installed here: nothing differs.
TEST_F(Verify, no_peer_differs)
{
    const Result result = run({"verify", "--json"});
    EXPECT_EQ(result.code, 0) << result.out;
    const Json told = Json::parse(result.out);
    EXPECT_GE(told["checks"].size(), 24u);
    for (const Json& check : told["checks"]) {
        EXPECT_NE(catalog::find(check["routine"].get<std::string>()), nullptr);
        EXPECT_NE(check["result"], "differs") << check;
    }
}

TEST_F(Verify, says_what_is_missing)
{
    const Result result = verify({"tntvt_rgb32_rgb24"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out,
              "tntvt_rgb32_rgb24                   ffmpeg           skipped: ffmpeg not found\n"
              "tntvt_rgb32_rgb24                   gst-launch-1.0   skipped: gst-launch-1.0 not found\n"
              "\n0 equal, 0 differ, 2 skipped\n");
}

// A program that gives back what it got agrees with nothing but a round trip.
TEST_F(Verify, notices_a_difference)
{
    install("ffmpeg", "/bin/cat");
    const Result result = verify({"tntvt_flip_vert"});
    EXPECT_EQ(result.code, 1);
    EXPECT_NE(result.out.find("differs: byte 0 is "), std::string::npos) << result.out;
    const Result fields = verify({"tntvt_rgba32_bgra32_inplace", "--json"});
    EXPECT_EQ(fields.code, 1);
    EXPECT_EQ(Json::parse(fields.out)["checks"][0]["why"].get<std::string>().substr(0, 19), "line 0, pixel 0, R ");
    const Result length = verify({"tntvt_rgb32_rgb24"});
    EXPECT_NE(length.out.find("differs: 49152 bytes, and ours are 36864\n"), std::string::npos) << length.out;
}

TEST_F(Verify, a_peer_that_fails_is_skipped_with_its_words)
{
    install("ffmpeg", "echo no such codec >&2; exit 3");
    const Result result = verify({"tntvt_flip_vert"});
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.out.find("skipped: ffmpeg ended with 3: no such codec\n"), std::string::npos) << result.out;
}

TEST_F(Verify, names_of_routines)
{
    EXPECT_EQ(verify({"tntvt_flip_vrt"}).code, 2);
    const Result none = verify({"tnvtt_open"});
    EXPECT_EQ(none.code, 2);
    EXPECT_EQ(none.err, "tintvert: no peer is asked about tnvtt_open\n");
}

TEST(Names, whole_words_before_parts)
{
    const Result result = run({"names", "uyvy"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out,
              "2vuy          8-bit 4:2:2, chroma first, unsigned chroma\n"
              "              GStreamer UYVY, FourCC 2vuy UYVY, libyuv UYVY\n"
              "2yuv          The bytes of 2vuy; which chroma is which does not matter\n"
              "              GStreamer UYVY, FourCC 2vuy UYVY, libyuv UYVY\n");
    EXPECT_NE(run({"names", "uyv"}).out.find("FFmpeg uyvy422"), std::string::npos);
}

// One name for two layouts, by who says it.
TEST(Names, json_tells_who)
{
    const Json told = Json::parse(run({"names", "BGRA", "--json"}).out);
    const auto holds = [&](const Json& name) {
        return std::find(told["names"].begin(), told["names"].end(), name) != told["names"].end();
    };
    EXPECT_TRUE(holds({{"layout", "rgb32"}, {"who", "GStreamer"}, {"name", "BGRA"}}));
    EXPECT_TRUE(holds({{"layout", "abgr32"}, {"who", "libyuv"}, {"name", "BGRA"}}));
    EXPECT_FALSE(holds({{"layout", "rgba64"}, {"who", "GStreamer"}, {"name", "BGRA64_LE"}}));
}

TEST(Names, suggests)
{
    const Result result = run({"names", "uyvy423"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err, "tintvert: no layout is called 'uyvy423' elsewhere; did you mean 'uyvy422'?\n");
    EXPECT_EQ(run({"names", ""}).code, 2);
}

}  // namespace
}  // namespace tintvert::test
