// view, bits and compare read every kind of file that convert reads, and say geometry in the same words.
#include <fcntl.h>
#include <unistd.h>

#include <nlohmann/json.hpp>

#include "tool/noise.h"
#include "tool/raw_frames.h"

namespace tintvert::test {
namespace {

using Json = nlohmann::json;

class Looking : public ToolTest {
protected:
    Result with_stdin(const std::string& file, std::vector<std::string> words) const
    {
        return run(std::move(words), [name = path(file)] { dup2(open(name.c_str(), O_RDONLY), STDIN_FILENO); });
    }

    void convert(const std::string& from, const std::string& to, std::vector<std::string> more) const
    {
        more.insert(more.begin(), {"convert", path(from), path(to), "-q"});
        const Result result = run(more);
        ASSERT_EQ(result.code, 0) << result.err;
    }
};

// Red and green by place.
std::string rgb24(int64_t frame)
{
    return raw_frame("rgb24", 4, 2, [frame](std::string_view component, int64_t x, int64_t y) {
        return component == "R" ? 10 * x + 60 * frame : component == "G" ? 100 + y : 7;
    });
}

TEST_F(Looking, pictures_tell_layout_and_size)
{
    save("in.rgb24", rgb24(0));
    for (const char* file : {"in.png", "in.ppm", "in.bmp", "in.pam"}) {
        convert("in.rgb24", file, {"--from", "rgb24", "-s", "4x2"});
        const Result bits = run({"bits", path(file), "--at", "3,1"});
        EXPECT_TRUE(bits.out.ends_with("\npixel 3,1: B 7, G 101, R 30, A 255\n")) << bits.out << bits.err;
        EXPECT_EQ(run({"view", path(file), "-o", path("out.png")}).code, 0);
        EXPECT_EQ(pixels_of(load("out.png")).at(3, 1), (std::array{30, 101, 7}));
        EXPECT_EQ(run({"compare", path(file), path("in.png")}).out, "no sample of 1 frame differs\n") << file;
        EXPECT_EQ(run({"compare", path("in.rgb24"), path(file), "-l", "rgb24", "-s", "4x2"}).code, 0) << file;
    }
}

TEST_F(Looking, y4m_tells_layout_and_size)
{
    std::string frame = "FRAME\n" + std::string(4 * 2, '\x51') + std::string(2, '\x5A') + std::string(2, '\xF0');
    save("one.y4m", "YUV4MPEG2 W4 H2 F25:1 Ip A1:1 C420jpeg\n" + frame + frame);
    frame[6 + 5] = '\x52';
    save("other.y4m", load("one.y4m").substr(0, load("one.y4m").size() - frame.size()) + frame);
    EXPECT_TRUE(run({"bits", path("one.y4m"), "--at", "1,1"}).out.ends_with("\npixel 1,1: Y 81, Cb 90, Cr 240\n"));
    const Json shown = Json::parse(run({"compare", path("one.y4m"), path("other.y4m"), "--json"}).out);
    EXPECT_EQ(shown["frames"], 2);
    EXPECT_EQ(shown["first"],
              (Json{{"frame", 1}, {"line", 1}, {"pixel", 1}, {"component", "Y"}, {"one", 81}, {"other", 82}}));
    EXPECT_EQ(run({"compare", path("one.y4m"), path("other.y4m"), "--frames", "0"}).code, 0);
    EXPECT_EQ(run({"view", path("one.y4m"), "-l", "planar422"}).code, 2);
}

TEST_F(Looking, standard_input)
{
    save("in.rgb24", rgb24(0) + rgb24(1));
    const std::vector<std::string> geometry{"-l", "rgb24", "-s", "4x2"};
    const auto words = [&](std::vector<std::string> own) {
        own.insert(own.end(), geometry.begin(), geometry.end());
        return own;
    };
    EXPECT_EQ(with_stdin("in.rgb24", words({"compare", "-", path("in.rgb24")})).out, "no sample of 2 frames differs\n");
    const Result bits = with_stdin("in.rgb24", words({"bits", "-", "--at", "0,0", "--frames", "1", "--json"}));
    EXPECT_EQ(Json::parse(bits.out)["samples"][0]["byte"], 24);
    EXPECT_EQ(with_stdin("in.rgb24", words({"view", "-", "-o", path("out.png"), "--frames", "1"})).code, 0);
    EXPECT_EQ(pixels_of(load("out.png")).at(1, 0), (std::array{70, 100, 7}));
    EXPECT_EQ(run(words({"compare", "-", "-"})).code, 2);
    save("short", rgb24(0));
    for (const bool is_first : {true, false}) {
        const std::string whole = path("in.rgb24");
        const Result result = with_stdin("short", words({"compare", is_first ? "-" : whole, is_first ? whole : "-"}));
        EXPECT_EQ(result.code, 4);
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_EQ(result.out, "");
    }
}

// 10 pixels take 32 bytes of groups, and 128 by the usual rule.
TEST_F(Looking, strides_by_name)
{
    const std::string wide =
        raw_frame("v210", 10, 2, [](std::string_view, int64_t x, int64_t y) { return x + 20 * y; });
    ASSERT_EQ(wide.size(), 256u);
    save("wide", wide);
    save("packed", wide.substr(0, 32) + wide.substr(128, 32));
    save("auto64", wide.substr(0, 64) + wide.substr(128, 64));
    for (const auto& [file, stride, line] : {std::tuple{"wide", "auto48", 128},
                                             {"packed", "packed", 32},
                                             {"auto64", "auto64", 64},
                                             {"wide", "128", 128}}) {
        const Result bits =
            run({"bits", path(file), "--at", "0,1", "-l", "v210", "-s", "10x2", "--stride", stride, "--json"});
        ASSERT_EQ(bits.code, 0) << bits.err;
        const Json shown = Json::parse(bits.out);
        EXPECT_EQ(shown["samples"][0]["byte"], line) << file;
        EXPECT_EQ(shown["samples"][0]["value"], 20) << file;
        EXPECT_EQ(run({"view", path(file), "-l", "v210", "-s", "10x2", "--stride", stride}).code, 0);
        EXPECT_EQ(run({"compare", path(file), path(file), "-l", "v210", "-s", "10x2", "--stride", stride}).code, 0);
    }
    EXPECT_EQ(run({"view", path("packed"), "-l", "v210", "-s", "10x2"}).code, 4);
    EXPECT_EQ(run({"view", path("wide"), "-l", "2vuy", "-s", "10x2", "--stride", "auto48"}).code, 2);
}

TEST_F(Looking, first_byte_is_that_of_the_file)
{
    std::string frames = "head" + noise(3, 3 * 24);
    save("one", frames);
    frames[4 + 2 * 24 + 5] = static_cast<char>(frames[4 + 2 * 24 + 5] + 1);
    save("other", frames);
    const Json shown = Json::parse(run({"compare", path("one"), path("other"), "-l", "rgb24", "-s", "4x2", "--offset",
                                        "4", "--frames", "1:3", "--json"})
                                       .out);
    EXPECT_EQ(shown["frames"], 2);
    EXPECT_EQ(shown["first"]["frame"], 2);
    EXPECT_EQ(shown["first_byte"], 4 + 2 * 24 + 5);
}

TEST_F(Looking, what_does_not_fit)
{
    save("in.rgb24", rgb24(0));
    convert("in.rgb24", "in.png", {"--from", "rgb24", "-s", "4x2"});
    convert("in.rgb24", "flat.png", {"--from", "rgb24", "-s", "8x1"});
    convert("in.rgb24", "deep.png", {"--from", "rgb24", "--to", "rgba64", "-s", "4x2"});
    const std::vector<std::pair<std::vector<std::string>, int>> wrong = {
        {{"view", path("in.rgb24"), "-s", "4x2"}, 2},       {{"view", path("in.rgb24"), "-l", "rgb24"}, 2},
        {{"view", path("in.png"), "-s", "8x1"}, 2},         {{"view", path("in.png"), "-l", "v210"}, 2},
        {{"view", path("in.png"), "--offset", "1"}, 2},     {{"view", path("in.png"), "--frames", "1"}, 4},
        {{"bits", path("in.png"), "--at", "4,0"}, 4},       {{"compare", path("in.png"), path("flat.png")}, 4},
        {{"compare", path("in.png"), path("deep.png")}, 2}, {{"compare", path("in.png"), path("missing.png")}, 3}};
    for (const auto& [words, code] : wrong) {
        const Result result = run(words);
        EXPECT_EQ(result.code, code) << words[0] << ' ' << result.err;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_EQ(result.out, "");
    }
}

}  // namespace
}  // namespace tintvert::test
