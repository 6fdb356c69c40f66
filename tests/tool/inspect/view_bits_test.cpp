// view and bits: the contents of a frame, as a picture and field by field.
#include <nlohmann/json.hpp>

#include "tool/raw_frames.h"

namespace tintvert::test {
namespace {

using Json = nlohmann::json;

class View : public ToolTest {
protected:
    Pixels picture(const std::string& layout, const std::string& size) const
    {
        const Result result = run({"view", path("frame"), "-l", layout, "-s", size, "-o", path("out.png")});
        EXPECT_EQ(result.code, 0) << result.err;
        EXPECT_EQ(result.out, "");
        return pixels_of(load("out.png"));
    }
};

int bits_of(const catalog::SampleForm& form, std::string_view component)
{
    for (const catalog::Plane& plane : form.planes)
        for (const catalog::Sample& sample : plane.fields)
            if (sample.component == component) return sample.bits;
    return 0;
}

bool has(const catalog::SampleForm& form, std::string_view component) { return bits_of(form, component) != 0; }

// Red on the left and blue on the right; one component alone goes from black to white.
TEST_F(View, rgb_of_every_layout)
{
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        if (has(form, "Cb") || !form.form.empty()) continue;
        save("frame", raw_frame(std::string(form.layout), 4, 2, [&](std::string_view component, int64_t x, int64_t) {
                 const int64_t most = (1 << bits_of(form, component)) - 1;
                 return component == "R"                                           ? (x < 2 ? most : 0)
                        : component == "B" || component == "Y" || component == "A" ? (x < 2 ? 0 : most)
                                                                                   : 0;
             }));
        const Pixels pixels = picture(std::string(form.layout), "4x2");
        const bool grey = !has(form, "R");
        EXPECT_EQ(pixels.at(0, 0), (grey ? std::array{0, 0, 0} : std::array{255, 0, 0})) << form.layout;
        EXPECT_EQ(pixels.at(3, 1), (grey ? std::array{255, 255, 255} : std::array{0, 0, 255})) << form.layout;
    }
}

// Black, then white; then a strong Cr, which is red.
TEST_F(View, ycbcr_of_every_layout)
{
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        if (!has(form, "Cb")) continue;
        const std::string layout(form.layout);
        const bool full = layout == "yuv2" || layout == "yuvu" || layout == "yuvs" || layout == "yuvijg";
        const bool is_signed = layout == "yuv2" || layout == "yuvu";
        const int more = bits_of(form, "Y") - 8;
        save("frame", raw_frame(layout, 6, 4, [&](std::string_view component, int64_t x, int64_t) -> int64_t {
                 if (component == "Y") return (x < 2 ? full ? 0 : 16 : x < 4 ? full ? 255 : 235 : 81) << more;
                 const int64_t strong = component == "Cr" ? 240 : 90;
                 return ((x < 4 ? 128 : strong) << more) - (is_signed ? 128 : 0);
             }));
        const Pixels pixels = picture(layout, "6x4");
        EXPECT_EQ(pixels.at(0, 0), (std::array{0, 0, 0})) << layout;
        for (const int channel : pixels.at(3, 3)) EXPECT_GE(channel, 253) << layout;
        const auto red = pixels.at(4, 2);
        EXPECT_GE(red[0], 230) << layout;
        EXPECT_LE(std::max(red[1], red[2]), 30) << layout;
    }
}

TEST_F(View, letters_without_colour)
{
    save("frame", raw_frame("rgb24", 8, 4, [](auto, int64_t x, int64_t) { return x < 4 ? 0 : 255; }));
    const Result result = run({"view", path("frame"), "-l", "rgb24", "-s", "8x4"});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.out, "    @@@@\n    @@@@\n");
    EXPECT_EQ(run({"view", path("frame"), "-l", "rgb24", "-s", "8x4", "--width", "4"}).out, "  @@\n");
}

TEST_F(View, half_blocks_in_colour)
{
    save("frame", raw_frame("rgb24", 1, 3, [](std::string_view component, int64_t, int64_t y) {
             return component == "R" ? 10 + y : component == "G" ? 20 + y : 30 + y;
         }));
    const Result result = run({"view", path("frame"), "-l", "rgb24", "-s", "1x3", "--color=always"});
    EXPECT_EQ(result.out,
              "\x1b[38;2;10;20;30m\x1b[48;2;11;21;31m\u2580\x1b[0m\n"
              "\x1b[38;2;12;22;32m\u2580\x1b[0m\n");
}

TEST_F(View, frames_behind_each_other)
{
    save("frame", "ab" + std::string(24, '\0') + std::string(24, '\xFF'));
    const auto view = [&](const char* frame) {
        return run({"view", path("frame"), "-l", "rgb24", "-s", "4x2", "--offset", "2", "--frames", frame});
    };
    EXPECT_EQ(view("0").out, "    \n");
    EXPECT_EQ(view("1").out, "@@@@\n");
    EXPECT_EQ(view("2").code, 4);
    EXPECT_EQ(view("-1").code, 2);
}

class Bits : public ToolTest {};

TEST_F(Bits, of_v210)
{
    save("frame", raw_frame("v210", 12, 2, [](std::string_view component, int64_t x, int64_t y) {
             return (component == "Y" ? 100 : component == "Cb" ? 400 : 600) + x + 20 * y;
         }));
    const Result result = run({"bits", path("frame"), "--at", "7,1", "-l", "v210", "-s", "12x2"});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.out,
              "      byte  bytes, fields from the highest bit down; * those of pixel 7,1\n"
              "       144  aa f9 21 27    - 00  *Cr6  1001110010 626   Y6   0001111110 126  *Cb6  0110101010 426\n"
              "       148  7f b0 06 08    - 00   Y8   0010000000 128   Cb8  0110101100 428  *Y7   0001111111 127\n"
              "       152  74 06 e2 1a    - 00   Cb10 0110101110 430   Y9   0010000001 129   Cr8  1001110100 628\n"
              "       156  82 d8 39 08    - 00   Y11  0010000011 131   Cr10 1001110110 630   Y10  0010000010 130\n"
              "\n"
              "pixel 7,1: Cr 626, Cb 426, Y 127\n");
}

TEST_F(Bits, json_of_every_layout)
{
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        if (!form.form.empty()) continue;
        save("frame", raw_frame(std::string(form.layout), 12, 4, [](std::string_view component, int64_t x, int64_t y) {
                 return x % 2 + y % 2 * 2 + static_cast<int64_t>(component.front() % 4) * 4;
             }));
        const Result result =
            run({"bits", path("frame"), "--at", "8,2", "-l", std::string(form.layout), "-s", "12x4", "--json"});
        EXPECT_EQ(result.code, 0) << result.err;
        size_t own = 0;
        const Json shown = Json::parse(result.out);
        for (const Json& sample : shown["samples"]) {
            const int64_t x = sample["pixel"];
            EXPECT_EQ(sample["value"], x % 2 + sample["component"].get<std::string>().front() % 4 * 4) << form.layout;
            if (!sample["own"].get<bool>()) continue;
            ++own;
            EXPECT_EQ(x, 8);
        }
        const size_t components = has(form, "A") ? has(form, "R") ? 4 : 1 : form.layout == "alphay" ? 1 : 3;
        EXPECT_EQ(own, components) << form.layout;
    }
}

// Chroma of the pixel that it shares it with, luma of its own.
TEST_F(Bits, of_subsampled_planes)
{
    save("frame", raw_frame("i420", 4, 4, [](std::string_view component, int64_t x, int64_t y) {
             return (component == "Y" ? 0 : component == "Cb" ? 100 : 200) + x + 4 * y;
         }));
    const Result result = run({"bits", path("frame"), "--at", "3,3", "-l", "i420", "-s", "4x4"});
    EXPECT_TRUE(result.out.ends_with("\npixel 3,3: Y 15, Cb 110, Cr 210\n")) << result.out;
}

TEST_F(Bits, refuses_pixels_that_are_not_there)
{
    save("frame", std::string(32, 'a'));
    for (const auto& [at, code] : {std::pair{"4,0", 4},
                                   {"0,4", 4},
                                   {"-1,0", 4},
                                   {"99999999999999999999,0", 2},
                                   {"1", 2},
                                   {"", 2},
                                   {"1,2,3", 2}}) {
        const Result result = run({"bits", path("frame"), std::string("--at=") + at, "-l", "2vuy", "-s", "4x4"});
        EXPECT_EQ(result.code, code) << at;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    }
}

}  // namespace
}  // namespace tintvert::test
