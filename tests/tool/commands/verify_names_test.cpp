// verify and names: what others make of our routines, and how they call our layouts.
#include <map>
#include <nlohmann/json.hpp>

#include "catalog.h"
#include "facts.h"
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
    const Json shown = Json::parse(result.out);
    std::map<std::string, int> counts;
    for (const Json& check : shown["checks"]) {
        ++counts[check["peer"]];
        EXPECT_NE(catalog::find(check["routine"].get<std::string>()), nullptr);
        EXPECT_NE(check["result"], "differs") << check;
    }
    EXPECT_EQ(counts, (std::map<std::string, int>{
                          {"ffmpeg", 35}, {"gst-launch-1.0", 19}, {"libyuv", 38}, {"oiiotool", 3}, {"zimg", 4}}));
}

// The build knows which libraries it has, and asks those.
TEST_F(Verify, asks_the_libraries_that_it_has)
{
    const std::string version = run({"--version"}).out;
    const Json shown = Json::parse(verify({"--json"}).out);
    for (const std::string library : {"libyuv", "zimg"}) {
        const bool has = version.find("with " + library) != std::string::npos;
        EXPECT_NE(has, version.find("without " + library) != std::string::npos);
        for (const Json& check : shown["checks"]) {
            if (check["peer"] != library) continue;
            EXPECT_EQ(check["result"] == "skipped", !has) << check;
            EXPECT_EQ(check["why"] == library + " not built in", !has) << check;
        }
    }
}

// The catalogue's own commands are run.
TEST_F(Verify, asks_what_the_catalogue_tells)
{
    const Json shown = Json::parse(verify({"tntvt_2vuy_planar", "--json"}).out);
    EXPECT_EQ(shown["checks"][0]["asked"], catalog::peer_of(*catalog::find("tntvt_2vuy_planar"))->command);
}

TEST_F(Verify, says_what_is_missing)
{
    const auto said = [&](const char* routine) { return verify({routine}).out; };
    const std::string none = "\n0 equal, 0 near, 0 differ, 1 skipped\n";
    EXPECT_EQ(said("tntvt_flip_vert_flags"),
              "tntvt_flip_vert_flags               ffmpeg           skipped: ffmpeg not found\n" + none);
    EXPECT_EQ(said("tntvt_2vuy_v210"),
              "tntvt_2vuy_v210                     gst-launch-1.0   skipped: gst-launch-1.0 not found\n" + none);
    EXPECT_EQ(said("tntvt_rgb48_rgb12"),
              "tntvt_rgb48_rgb12                   oiiotool         skipped: oiiotool not found\n" + none);
    EXPECT_EQ(verify({"tntvt_rgb48_rgb12"}).code, 0);
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

// A TIFF of zeros, whose pixels begin at byte 8, and then files that are none.
TEST_F(Verify, notices_a_difference_in_a_file)
{
    install("oiiotool",
            "for file; do :; done\n{ printf 'II*\\0\\010\\331\\0\\0'; /usr/bin/head -c 55552 /dev/zero; printf "
            "'\\1\\0\\021\\1\\4\\0\\1\\0\\0\\0\\010\\0\\0\\0'; } > $file");
    const Result zeros = verify({"tntvt_rgb48_rgb12"});
    EXPECT_EQ(zeros.code, 1);
    EXPECT_NE(zeros.out.find("differs: byte 0 is 0, and ours "), std::string::npos) << zeros.out;
    for (const char* what :
         {":", "printf II", "printf 'II*\\0\\377\\377\\377\\377'", "printf 'II*\\0\\010\\0\\0\\0'"}) {
        install("oiiotool", "for file; do :; done\n" + std::string(what) + " > $file");
        const Result none = verify({"tntvt_rgb48_rgb12"});
        EXPECT_EQ(none.code, 0) << what;
        EXPECT_NE(none.out.find("skipped: oiiotool wrote no such file\n"), std::string::npos) << none.out;
    }
}

// Functions of the libraries that do nothing, in place of theirs.
TEST_F(Verify, notices_a_difference_in_a_library)
{
    if (std::string(TINTVERT_SANITIZE_FLAG) != "") GTEST_SKIP() << "skipped: sanitizers want to be loaded first";
    save("idle.c", "int ARGBToRGB24(void) { return 0; }\nint zimg_filter_graph_process(void) { return 0; }\n");
    save("broken.c", "int zimg_filter_graph_process(void) { return 1; }\n");
    for (const char* name : {"idle", "broken"})
        ASSERT_EQ(
            std::system((TINTVERT_C_COMPILER " -shared -fPIC -o " + path(name) + " " + path(name) + ".c").c_str()), 0);
    const std::string version = run({"--version"}).out, idle = path("idle"), broken = path("broken");
    const auto with = [](const std::string& functions, const char* routine) {
        return run({"verify", routine}, [&] {
            setenv("PATH", "", 1);
            setenv("LD_PRELOAD", functions.c_str(), 1);
        });
    };
    if (version.find("with libyuv") != std::string::npos) {
        const Result result = with(idle, "tntvt_rgb32_rgb24");
        EXPECT_EQ(result.code, 1);
        EXPECT_NE(result.out.find("libyuv           differs: line 0, pixel 0, B is 0, "), std::string::npos)
            << result.out;
    }
    if (version.find("with zimg") == std::string::npos) return;
    for (const char* routine : {"tntvt_yuv422_rgb24", "_v210_to_rgb", "tntvt_rgb_to_st2084"}) {
        const Result result = with(idle, routine);
        EXPECT_EQ(result.code, 1) << routine;
        EXPECT_NE(result.out.find("zimg             differs: line 0, pixel "), std::string::npos) << result.out;
    }
    EXPECT_NE(with(broken, "tntvt_yuv422_rgb24").out.find("zimg             skipped: zimg: "), std::string::npos);
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
    const Json shown = Json::parse(run({"names", "BGRA", "--json"}).out);
    const auto holds = [&](const Json& name) {
        return std::find(shown["names"].begin(), shown["names"].end(), name) != shown["names"].end();
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
