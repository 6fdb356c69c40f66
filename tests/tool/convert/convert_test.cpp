// convert: the same bytes as the routine gives when it is called directly, for every routine that turns pictures into
// pictures; and calls that it refuses.
#include <algorithm>
#include <map>

#include "catalog.h"
#include "geometry.h"
#include "tool/noise.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using catalog::Arg;
using catalog::Content;
using catalog::Range;
using catalog::Routine;

using Convert = ToolTest;

int64_t bytes_in(const std::vector<Content>& contents)
{
    int64_t sum = 0;
    for (const Content& content : contents) sum += content.in ? content.bytes : 0;
    return sum;
}

bool converts(const std::vector<Content>& contents)
{
    return std::ranges::any_of(contents, &Content::in) && std::ranges::any_of(contents, &Content::out);
}

// One call over buffers of zeros, with `input` spread over those that are read.
std::string by_hand(const Routine& routine, catalog::Arguments call, const std::string& input)
{
    constexpr int64_t margin = 1 << 16;
    const std::vector<Content> contents = catalog::contents(routine, call);
    std::map<Arg, std::vector<uint8_t>> buffers;
    for (const Arg argument : routine.arguments) {
        if (catalog::describe(argument).kind != catalog::Argument::buffer) continue;
        auto& buffer = buffers.emplace(argument, std::vector<uint8_t>(margin * 2 + (1 << 16))).first->second;
        call[argument] = reinterpret_cast<int64_t>(buffer.data() + margin);
    }
    size_t at = 0;
    for (const Content& content : contents) {
        if (!content.in) continue;
        std::copy_n(input.begin() + static_cast<long>(at), content.bytes,
                    buffers[content.buffer].begin() + margin + content.origin);
        at += static_cast<size_t>(content.bytes);
    }
    routine.call(call);
    std::string output;
    for (const Content& content : contents) {
        if (!content.out) continue;
        const auto first = buffers[content.buffer].begin() + margin + content.origin;
        output.append(first, first + content.bytes);
    }
    return output;
}

TEST_F(Convert, every_routine_as_by_hand)
{
    int converted = 0;
    for (const Routine& routine : catalog::routines()) {
        const catalog::Arguments call = catalog::plain_call(routine, {48, 8});
        const std::vector<Content> contents = catalog::contents(routine, call);
        if (!converts(contents) || routine.name.find("rle") != std::string_view::npos) continue;
        const std::string input = noise(routine.name.size(), static_cast<size_t>(bytes_in(contents)));
        save("in.raw", input);
        const Result result =
            run({"convert", std::string{routine.name}, path("in.raw"), path("out.raw"), "-s", "48x8"});
        EXPECT_EQ(result.code, 0) << routine.name << ' ' << result.err;
        EXPECT_TRUE(load("out.raw") == by_hand(routine, call, input)) << routine.name;
        ++converted;
    }
    EXPECT_GT(converted, 110);
}

TEST_F(Convert, every_field_mode_as_by_hand)
{
    const Routine& routine = *catalog::find("tntvt_change_field_rgb");
    save("in.raw", noise(12, 2 * 48 * 4 * 8));
    for (int mode = 1; mode <= 14; ++mode) {
        catalog::Arguments call = catalog::plain_call(routine, {48, 8});
        call[Arg::mode] = mode;
        const std::string input =
            load("in.raw").substr(0, static_cast<size_t>(bytes_in(catalog::contents(routine, call))));
        save("frames.raw", input);
        EXPECT_EQ(input.size(), (mode < 5 ? 1u : 2u) * 48 * 4 * 8) << mode;
        const Result result = run({"convert", "tntvt_change_field_rgb", path("frames.raw"), path("out.raw"), "-s",
                                   "48x8", "--mode", std::to_string(mode)});
        EXPECT_EQ(result.code, 0) << mode << ' ' << result.err;
        EXPECT_TRUE(load("out.raw") == by_hand(routine, call, input)) << mode;
    }
}

TEST_F(Convert, refuses_what_turns_no_picture_into_another)
{
    save("in.raw", "1234");
    for (const char* name : {"tnvtt_open", "malloc_own_cache_lines", "tntvt_rgb8_rgb32", "tntvt_yuv411_yuv422_8",
                             "get_ardwRGB_to_SMPTE2048_8Bit", "init_v210_to_rgb", "tntvt_rle4_rgb24"}) {
        const Result result = run({"convert", name, path("in.raw"), path("out.raw"), "-s", "2x2"});
        EXPECT_EQ(result.code, 2) << name;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    }
    EXPECT_TRUE(files_in(".").contains("in.raw"));
    EXPECT_FALSE(files_in(".").contains("out.raw"));
}

TEST_F(Convert, frames_and_offset)
{
    const std::string frames = noise(1, 3 * 8 * 4 * 2);
    save("in.2vuy", "head" + frames);
    const auto convert = [&](std::vector<std::string> more) {
        std::vector<std::string> words{
            "convert", "tntvt_2vuy_v210", path("in.2vuy"), path("out.v210"), "-s", "8x4", "--offset", "4"};
        words.insert(words.end(), more.begin(), more.end());
        return run(words);
    };
    EXPECT_EQ(convert({}).code, 0);
    const std::string all = load("out.v210");
    EXPECT_EQ(all.size(), 3u * 128 * 4);
    EXPECT_EQ(convert({"--frames", "1:3"}).code, 0);
    EXPECT_EQ(load("out.v210"), all.substr(128 * 4));
    EXPECT_EQ(convert({"--frames", "2"}).code, 0);
    EXPECT_EQ(load("out.v210"), all.substr(2 * 128 * 4));
    EXPECT_EQ(convert({"--frames", "2:4"}).code, 4);
    EXPECT_EQ(convert({"--frames", "2:2"}).code, 2);
    EXPECT_EQ(convert({"--frames", "x"}).code, 2);
}

TEST_F(Convert, unsafe_calls_exit_with_4_and_write_nothing)
{
    save("in.raw", noise(2, 4096));
    const std::vector<std::vector<std::string>> calls = {
        {"tntvt_yuv422_rgb24", "-s", "0x4"},
        {"tntvt_yuv422_rgb24", "-s", "-8x4"},
        {"tntvt_yuv422_rgb24", "-s", "8x0"},
        {"tntvt_2vuy_v210", "-s", "8x0"},
        {"tntvt_yuv422_rgb24", "-s", "32x64", "--scale", "0"},
        {"tntvt_yuv422_10_rgb32", "-s", "48x32", "--scale", "0"},
        {"tntvt_yuv422_rgb24", "-s", "32x65"},
        {"tntvt_yuv422_rgb24", "-s", "2147483647x2147483647"},
        {"tntvt_v210_frame_to_rtp_4175", "-s", "47x32"},
        {"tntvt_change_field_rgb", "-s", "32x1", "--mode", "3"},
        {"tntvt_change_field_rgb", "-s", "32x3", "--mode", "5"},
        {"tntvt_planarfields_2vuy", "-s", "32x32", "--groups", "0"},
    };
    for (std::vector<std::string> call : calls) {
        call.insert(call.begin(), "convert");
        call.insert(call.begin() + 2, {path("in.raw"), path("out.raw")});
        const Result result = run(call);
        EXPECT_EQ(result.code, 4) << call[1] << ' ' << result.err;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    }
    EXPECT_EQ(files_in("."), std::set<std::string>{"in.raw"});
}

TEST_F(Convert, wrong_words)
{
    save("in.raw", noise(3, 64));
    const auto code = [&](std::vector<std::string> call) {
        call.insert(call.begin(), "convert");
        const Result result = run(call);
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        return result.code;
    };
    EXPECT_EQ(code({"tntvt_yuv422_rgb42", path("in.raw"), path("o")}), 2);
    EXPECT_EQ(code({"tntvt_yuv422_rgb24", path("in.raw"), path("o")}), 2);
    EXPECT_EQ(code({"tntvt_yuv422_rgb24", path("in.raw"), path("o"), "-s", "8by4"}), 2);
    EXPECT_EQ(code({"tntvt_yuv422_rgb24", path("in.raw"), path("o"), "-s", "8x4", "--bits", "12"}), 2);
    EXPECT_EQ(code({"tntvt_yuv422_rgb24", path("in.raw"), "-s", "8x4"}), 2);
    EXPECT_EQ(code({"tntvt_yuv422_rgb24", path("none.raw"), path("o"), "-s", "8x4"}), 3);
    EXPECT_EQ(code({"tntvt_yuv422_rgb24", path("."), path("o"), "-s", "8x4"}), 3);
    EXPECT_EQ(code({"tntvt_yuv422_rgb24", path("in.raw"), path("no/o"), "-s", "8x4"}), 3);
    EXPECT_EQ(code({"tntvt_flip_vert", path("in.raw"), path("o"), "-s", "8x2", "--layout", "rgb23"}), 2);
    EXPECT_EQ(files_in("."), std::set<std::string>{"in.raw"});
}

}  // namespace
}  // namespace tintvert::test
