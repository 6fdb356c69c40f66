// explain: what a call reads and writes, and the C that makes it.
#include <nlohmann/json.hpp>

#include "catalog.h"
#include "facts.h"
#include "geometry.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Json = nlohmann::json;

class Explain : public ToolTest {};

Json explained(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "explain");
    arguments.push_back("--json");
    const Result result = run(arguments);
    EXPECT_EQ(result.code, 0) << result.err;
    return Json::parse(result.out, nullptr, false);
}

TEST_F(Explain, text)
{
    const Result result = run({"explain", "tntvt_v210_2vuy", "-s", "1280x720"});
    EXPECT_EQ(result.code, 0) << result.err;
    for (const char* line :
         {"tntvt_v210_2vuy(dst, src, width 1280, height 720, srcStride 3456)\n", "reads         2488320 bytes, v210\n",
          "writes        1843200 bytes, 2vuy\n", "  2564 past its end\n", "  keeps_double_length_lines\n",
          "\npeer, with the same bytes\n  gst-launch-1.0 filesrc location=in '!' rawvideoparse "
          "format=v210 width=1280 height=720 '!' "})
        EXPECT_NE(result.out.find(line), std::string::npos) << result.out;
}

TEST_F(Explain, extents_are_those_of_the_catalogue)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        if (routine.from->name == "rle8") continue;  // as far as the stream says
        const Json shown = explained({std::string(routine.name), "--size", "96x6"});
        const catalog::Arguments call = catalog::plain_call(routine, {96, 6});
        for (const catalog::Touch& touch : routine.extents(call)) {
            Json own;
            for (const Json& buffer : shown["buffers"])
                if (buffer["name"] == catalog::describe(touch.buffer).name) own = buffer;
            const auto range = [](catalog::Range r) { return r.empty() ? Json() : Json{r.begin, r.end}; };
            EXPECT_EQ(own["read"], range(touch.read)) << routine.name;
            EXPECT_EQ(own["written"], range(touch.written)) << routine.name;
        }
    }
}

TEST_F(Explain, arguments_of_the_routine)
{
    const Json shown = explained({"tntvt_yuv422_rgb24", "-s", "64x8", "--scale", "2", "--dstStride", "128"});
    EXPECT_EQ(shown["arguments"]["dstStride"], 128);
    EXPECT_EQ(shown["arguments"]["scale"], 2);
    EXPECT_EQ(shown["bytes_out"], 128 * 4);
    EXPECT_EQ(run({"explain", "tntvt_2vuy_v210", "-s", "64x8", "--scale", "2"}).code, 2);
}

TEST_F(Explain, quirks_are_those_of_the_catalogue_in_the_words_of_the_page)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        const Json shown = explained({std::string(routine.name), "--size", "96x6"})["quirks"];
        const auto names = catalog::quirks_of(routine);
        ASSERT_EQ(shown.size(), names.size()) << routine.name;
        for (size_t i = 0; i < names.size(); ++i) {
            EXPECT_EQ(shown[i]["name"], names[i]);
            const std::string what = shown[i]["what"];
            EXPECT_TRUE(what.size() > 10 && what.ends_with('.') && what.find('|') == std::string::npos) << what;
        }
    }
}

TEST_F(Explain, says_which_quirks_a_call_meets)
{
    const auto here = [](std::vector<std::string> call, const std::string& name) {
        const Json shown = explained(std::move(call));
        for (const Json& quirk : shown["quirks"])
            if (quirk["name"] == name) return quirk["here"];
        return Json("there is none");
    };
    const std::string luma = "keeps_long_luma_lines_of_odd_width", matrix = "keeps_matrix_change_at_962";
    EXPECT_EQ(here({"tntvt_i420_2vuy", "-s", "5x4"}, luma), "met: the width is odd");
    EXPECT_EQ(here({"tntvt_i420_2vuy", "-s", "6x4"}, luma), "not met: the width is even");
    EXPECT_EQ(here({"tntvt_rgb32_v210", "-s", "960x4"}, matrix), "the width is below 962: BT.601");
    EXPECT_EQ(here({"tntvt_rgb32_v210", "-s", "962x4"}, matrix), "the width is 962 or more: BT.709");
    EXPECT_EQ(here({"tntvt_rgb32_v210", "-s", "962x4"}, "keeps_chroma_across_lines"), nullptr);
    EXPECT_EQ(here({"tntvt_yuv422_8_rgb24", "-s", "96x4", "--scale", "2"}, "keeps_10_bit_decoder_for_8_bit_data"),
              "not met: reduced");
}

TEST_F(Explain, peers_are_those_of_the_catalogue_at_this_size)
{
    const Json peer = explained({"tntvt_2vuy_planar", "-s", "96x6"})["peer"];
    EXPECT_EQ(peer, (Json{{"agreement", "exact"},
                          {"command",
                           "ffmpeg -f rawvideo -pix_fmt uyvy422 -s 96x6 -i in -f rawvideo -pix_fmt "
                           "yuv422p out"}}));
    EXPECT_EQ(explained({"tntvt_2yuv_to_alphay", "-s", "96x6"})["peer"]["agreement"], "near");
    EXPECT_EQ(explained({"tntvt_rgba_full", "-s", "96x6"})["peer"].is_null(),
              !catalog::peer_of(*catalog::find("tntvt_rgba_full")));
}

TEST_F(Explain, refusals_have_names)
{
    const Result result = run({"explain", "tntvt_v210_frame_to_rtp_4175", "-s", "7x8"});
    EXPECT_EQ(result.code, 4);
    EXPECT_TRUE(result.err.ends_with(" (never_returns)\n")) << result.err;
    EXPECT_TRUE(
        run({"explain", "tntvt_yuv422_rgb24", "-s", "8x8", "--scale", "0"}).err.ends_with(" (divides_by_zero)\n"));
}

TEST_F(Explain, stride_by_name)
{
    const auto argument = [](const char* routine, const char* stride, const char* name) {
        return explained({routine, "-s", "10x4", "--stride", stride})["arguments"][name];
    };
    EXPECT_EQ(argument("tntvt_v210_2vuy", "auto48", "srcStride"), 128);
    EXPECT_EQ(argument("tntvt_v210_2vuy", "packed", "srcStride"), 32);
    EXPECT_EQ(argument("tntvt_v210_rgb24", "auto64", "srcStride"), 64);
    EXPECT_EQ(argument("tntvt_i420_2vuy", "auto64", "stride"), 64);
    EXPECT_EQ(argument("tntvt_2vuy_i420", "24", "stride"), 24);
    EXPECT_EQ(run({"explain", "_v210_to_rgb", "-s", "10x4", "--stride", "auto48"}).code, 2);
    EXPECT_EQ(run({"explain", "tntvt_v210_2vuy", "-s", "10x4", "--stride", "31"}).code, 4);
}

// Every call as a program: it compiles in both languages without a warning, and runs.
TEST_F(Explain, calls_compile_and_run)
{
    std::string source, all;
    for (const catalog::Routine& routine : catalog::routines()) {
        const Result result = run({"explain", std::string(routine.name), "-s", "48x4", "--show-call"});
        ASSERT_EQ(result.code, 0) << result.err;
        std::string call = result.out;
        const std::string main = "int main(void)", name = "call_" + std::string(routine.name);
        const size_t at = call.find(main);
        ASSERT_NE(at, std::string::npos);
        source += call.replace(at, main.size(), "static int " + name + "(void)");
        all += name + "() + ";
    }
    source += "int main(void) { return " + all + "0; }\n";
    save("calls.c", source);
    const std::string warnings = " -Wall -Wextra -Wpedantic -Werror -I" TINTVERT_PROJECT "/include ";
    const auto shell = [](const std::string& command) { return std::system(command.c_str()); };
    EXPECT_EQ(shell(TINTVERT_CXX_COMPILER " -std=c++20 -x c++ -fsyntax-only" + warnings + path("calls.c")), 0);
    ASSERT_EQ(shell(TINTVERT_C_COMPILER " -std=c11 " TINTVERT_SANITIZE_FLAG + warnings + path("calls.c") + " -o " +
                    path("calls") + " -L" TINTVERT_LIBRARIES " -Wl,-rpath," TINTVERT_LIBRARIES " -ltintvert"),
              0);
    EXPECT_EQ(shell(path("calls")), 0);
}

TEST_F(Explain, refuses)
{
    const std::vector<std::pair<std::vector<std::string>, int>> wrong = {
        {{"tntvt_2vuy_v20", "-s", "64x8"}, 2},
        {{"tntvt_2vuy_v210"}, 2},
        {{"tntvt_2vuy_v210", "-s", "64"}, 2},
        {{"tntvt_2vuy_v210", "-s", "0x8"}, 4},
        {{"tntvt_2vuy_v210", "-s", "64x-8"}, 4},
        {{"tntvt_2vuy_v210", "-s", "2147483648x1"}, 4},
        {{"tntvt_2vuy_v210", "-s", "65536x65536"}, 4},
        {{"tntvt_2vuy_v210", "-s", "99999999999999999999x2"}, 4},
        {{"tntvt_yuv422_rgb24", "-s", "8x8", "--scale", "0"}, 4},
        {{"tntvt_v210_frame_to_rtp_4175", "-s", "7x8"}, 4}};
    for (const auto& [arguments, code] : wrong) {
        std::vector<std::string> words = arguments;
        words.insert(words.begin(), "explain");
        const Result result = run(words);
        EXPECT_EQ(result.code, code) << result.err;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_EQ(result.out, "");
    }
}

}  // namespace
}  // namespace tintvert::test
