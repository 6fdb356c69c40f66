// compare: sample by sample, on every layout.
#include <cmath>
#include <nlohmann/json.hpp>

#include "tool/raw_frames.h"

namespace tintvert::test {
namespace {

using Json = nlohmann::json;

class Compare : public ToolTest {
protected:
    Result compare(const std::string& layout, const std::vector<std::string>& more = {}) const
    {
        std::vector<std::string> arguments{"compare", path("one"), path("other"), "--layout", layout, "--size", "12x4"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run(arguments);
    }
};

int64_t ramp(std::string_view, int64_t x, int64_t y) { return 20 + x + y; }

TEST_F(Compare, equal_files)
{
    save("one", raw_frame("2vuy", 12, 4, ramp));
    save("other", load("one"));
    const Result result = compare("2vuy");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "no sample of 1 frame differs\n");
    EXPECT_EQ(result.err, "");
}

// One sample of each component in turn, in every layout; 3 codes apart.
TEST_F(Compare, finds_the_one_sample_that_differs)
{
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        if (!form.form.empty()) continue;
        const std::string layout(form.layout);
        for (const catalog::Plane& plane : form.planes) {
            for (const catalog::Sample& field : plane.fields) {
                if (field.component.empty()) continue;
                const int64_t y = plane.field == 0 ? 2 : 1 + plane.field, x = plane.across + field.pixel;
                const auto changed = [&](std::string_view component, int64_t column, int64_t line) {
                    return ramp(component, column, line) % 30 +
                           (component == field.component && column == x && line == y ? 1 : 0);
                };
                save("one", raw_frame(layout, 12, 4, [](auto c, int64_t a, int64_t b) { return ramp(c, a, b) % 30; }));
                save("other", raw_frame(layout, 12, 4, changed));
                const Result result = compare(layout, {"--json"});
                EXPECT_EQ(result.code, 1) << result.err;
                const Json shown = Json::parse(result.out);
                EXPECT_EQ(shown["equal"], false);
                EXPECT_EQ(shown["first"]["frame"], 0);
                EXPECT_EQ(shown["first"]["line"], y) << layout;
                EXPECT_EQ(shown["first"]["pixel"], x) << layout;
                EXPECT_EQ(shown["first"]["component"], field.component) << layout;
                EXPECT_EQ(shown["first"]["one"].get<int>() + 1, shown["first"]["other"].get<int>());
                for (const Json& component : shown["components"]) {
                    const bool own = component["component"] == field.component;
                    EXPECT_EQ(component["different"], own ? 1 : 0);
                    EXPECT_EQ(component["largest"], own ? 1 : 0);
                    EXPECT_EQ(component["psnr"].is_null(), !own);
                }
            }
        }
    }
}

TEST_F(Compare, psnr_counts_against_the_highest_code)
{
    for (const auto& [layout, peak] : {std::pair{"2vuy", 255.0}, {"v210", 1023.0}, {"rgba64", 65535.0}}) {
        save("one", raw_frame(layout, 12, 4, [](auto, auto, auto) { return 10; }));
        save("other", raw_frame(layout, 12, 4, [](auto, int64_t x, int64_t) { return x < 6 ? 10 : 14; }));
        const Json component = Json::parse(compare(layout, {"--json"}).out)["components"][0];
        EXPECT_EQ(component["largest"], 4);
        EXPECT_DOUBLE_EQ(component["mean"], 2.0);
        EXPECT_NEAR(component["psnr"].get<double>(), 10 * std::log10(peak * peak / 8), 1e-9) << layout;
    }
}

TEST_F(Compare, text)
{
    save("one", raw_frame("i420", 12, 4, ramp));
    std::string other = load("one");
    other[12 * 4 + 7] = 90;  // Cb of the second line of chroma: pixels 2 and 3 of lines 2 and 3
    save("other", other);
    const Result result = compare("i420");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out,
              "first difference: frame 0, line 2, pixel 2, Cb: 24 and 90\n\n"
              "component      samples    different  largest       mean     PSNR\n"
              "Y                   48            0        0     0.0000      inf\n"
              "Cb                  12            1       66     5.5000    22.53\n"
              "Cr                  12            0        0     0.0000      inf\n");
}

// A chroma byte of 0xFF is one below neutral, and 0x01 one above.
TEST_F(Compare, signed_chroma)
{
    save("one", std::string(96, '\xFF'));
    save("other", std::string(96, '\x01'));
    const Json shown = Json::parse(compare("yuv2", {"--json"}).out);
    EXPECT_EQ(shown["components"][0]["largest"], 254);
    EXPECT_EQ(shown["components"][1]["largest"], 2);
    EXPECT_EQ(shown["first"]["component"], "Y");
}

TEST_F(Compare, bits_without_a_sample_count_with_exact_alone)
{
    save("one", raw_frame("v210", 12, 4, ramp));
    std::string other = load("one");
    other[3] = static_cast<char>(other[3] | 0x40);
    save("other", other);
    EXPECT_EQ(compare("v210").code, 0);
    EXPECT_EQ(compare("v210").out, "no sample of 1 frame differs\n1 bytes differ, the first at 3\n");
    EXPECT_EQ(compare("v210", {"--exact"}).code, 1);
    const Json shown = Json::parse(compare("v210", {"--exact", "--json"}).out);
    EXPECT_EQ(shown["first"], nullptr);
    EXPECT_EQ(shown["first_byte"], 3);
    EXPECT_EQ(shown["equal"], false);
}

TEST_F(Compare, tells_the_frame)
{
    const std::string frame = raw_frame("2vuy", 12, 4, ramp);
    save("one", frame + frame + frame);
    std::string other = frame + frame + frame;
    other[frame.size() * 2 + 1] = 99;
    save("other", other);
    const Json shown = Json::parse(compare("2vuy", {"--json"}).out);
    EXPECT_EQ(shown["frames"], 3);
    EXPECT_EQ(shown["first"],
              (Json{{"frame", 2}, {"line", 0}, {"pixel", 0}, {"component", "Y"}, {"one", 20}, {"other", 99}}));
}

TEST_F(Compare, slack_does_not_count)
{
    std::string one, other;
    for (int line = 0; line < 4; ++line) {
        one += std::string(24, 'a') + "left";
        other += std::string(24, 'a') + "over";
    }
    save("one", one);
    save("other", other);
    EXPECT_EQ(compare("2vuy", {"--stride", "28"}).code, 0);
    EXPECT_EQ(compare("2vuy", {"--stride", "28", "--exact"}).code, 1);
    EXPECT_EQ(compare("2vuy", {"--stride", "23"}).code, 4);
}

TEST_F(Compare, picture_shows_where)
{
    save("one", raw_frame("2vuy", 12, 4, ramp));
    save("other", raw_frame("2vuy", 12, 4, [](std::string_view component, int64_t x, int64_t y) {
             return ramp(component, x, y) + (component == "Cr" && x == 4 && y == 1 ? 255 - 25 : 0);
         }));
    EXPECT_EQ(compare("2vuy", {"--picture", path("diff.png")}).code, 1);
    const Pixels pixels = pixels_of(load("diff.png"));
    ASSERT_EQ(pixels.width, 12u);
    ASSERT_EQ(pixels.height, 4u);
    for (unsigned y = 0; y < 4; ++y)
        for (unsigned x = 0; x < 12; ++x)
            EXPECT_EQ(pixels.at(x, y), (y == 1 && (x == 4 || x == 5) ? std::array{0, 0, 235} : std::array{0, 0, 0}));
}

TEST_F(Compare, mismatched_files)
{
    save("one", std::string(96, 'a'));
    save("other", std::string(192, 'a'));
    for (const char* size : {"12x5", "11x4"}) {
        const Result result = run({"compare", path("one"), path("one"), "-l", "2vuy", "-s", size});
        EXPECT_EQ(result.code, 4) << size;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    }
    const Result two = compare("2vuy");
    EXPECT_EQ(two.code, 4);
    EXPECT_TRUE(two.has_one_line_of_error()) << two.err;
    EXPECT_EQ(two.out, "");
    EXPECT_EQ(files_in("").size(), 2u);
}

}  // namespace
}  // namespace tintvert::test
