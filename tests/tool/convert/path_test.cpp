// Conversion paths on the command line: nothing is lost that is not reported.
#include <map>
#include <nlohmann/json.hpp>

#include "catalog.h"
#include "layouts.h"
#include "support/random.h"
#include "tool/noise.h"
#include "tool/pam.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Json = nlohmann::json;
using PathTest = ToolTest;

TEST_F(PathTest, suggests_the_nearest_layout)
{
    const Result result = run({"convert", "--from", "v201", "--to", "rgb24", "--dry-run"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err, "tintvert: there is no layout 'v201'; did you mean 'v210'?\n");
}

// Layouts that pictures go into and come out of, with their bits; and whether they keep alpha.
struct RgbLayout {
    unsigned bits;
    bool alpha;
};

const std::map<std::string, RgbLayout> rgb_layouts = {
    {"rgb32", {8, true}},   {"bgra32", {8, true}},  {"abgr32", {8, true}},   {"argb32", {8, true}},
    {"rgb24", {8, false}},  {"bgr24", {8, false}},  {"rgb16", {5, false}},   {"rgb10", {10, false}},
    {"rgb48", {16, false}}, {"bgr48", {16, false}}, {"rgba64", {16, true}},  {"bgra64", {16, true}},
    {"argb64", {16, true}}, {"abgr64", {16, true}}, {"argb64be", {16, true}}};

// A picture put into one layout and taken out of the other has kept the bits that the path says it keeps, in every
// channel: each step leads where it claims to.
TEST_F(PathTest, of_rgb_keeps_every_channel)
{
    Pam picture{7, 5, 65535, true, {}};
    for (const uint8_t byte : Random(3).bytes(7 * 5 * 4)) picture.samples.push_back(byte * 257u ^ 0x5Au);
    save("in.pam", make_pam(picture));
    int paths = 0;
    for (const auto& [from, a] : rgb_layouts) {
        for (const auto& [to, b] : rgb_layouts) {
            const Result result =
                run({"convert", "--from", from, "--to", to, "--alpha", "--json", path("in.pam"), path("out.pam")});
            if (result.code == 2) continue;
            ASSERT_EQ(result.code, 0) << from << ' ' << to << ' ' << result.err;
            ++paths;
            unsigned bits = std::min(a.bits, b.bits);
            bool alpha = a.alpha && b.alpha;
            const Json report = Json::parse(result.out);
            for (const std::string loss : report["losses"]) {
                if (loss.ends_with("8 by truncation")) bits = std::min(bits, 8u);
                if (loss == "alpha dropped") alpha = false;
            }
            const Pam got = parse_pam(load("out.pam"));
            ASSERT_EQ(got.samples.size(), picture.samples.size());
            for (size_t i = 0; i < got.samples.size(); ++i) {
                if (i % 4 == 3 && !alpha) continue;
                ASSERT_EQ(got.samples[i] >> (16 - bits), picture.samples[i] >> (16 - bits))
                    << from << ' ' << to << " sample " << i;
            }
        }
    }
    EXPECT_GT(paths, 130);
}

// What a path without loss converts comes back the same.
TEST_F(PathTest, without_loss_comes_back)
{
    const std::vector<std::array<std::string, 2>> pairs = {
        {"2vuy", "v210"},    {"2vuy", "planar422"}, {"2vuy", "yuv444"}, {"i420", "2vuy"},
        {"yv12", "2vuy"},    {"i420", "yv12"},      {"i420", "v210"},   {"rgb24", "rgb32"},
        {"rgb24", "bgra32"}, {"rgb32", "rgba64"},   {"bgr24", "rgb24"}, {"alphay", "2vuy"}};
    for (const char* size : {"50x6", "96x4", "14x2"}) {
        for (const auto& [from, to] : pairs) {
            const std::string text = size;
            const auto x = text.find('x');
            const auto bytes =
                catalog::frame_bytes(*catalog::find_layout(from), std::stoi(text), std::stoi(text.substr(x + 1)));
            save("in.raw", noise(1, static_cast<size_t>(bytes) * 2));
            const auto go = [&](const std::string& a, const std::string& b, const char* in, const char* out) {
                const Result result =
                    run({"convert", "--from", a, "--to", b, path(in), path(out), "--size", size, "--json"});
                EXPECT_EQ(result.code, 0) << result.err;
                return result.code == 0 ? Json::parse(result.out)["losses"] : Json();
            };
            EXPECT_EQ(go(from, to, "in.raw", "there.raw"), Json::array()) << from << ' ' << to;
            go(to, from, "there.raw", "back.raw");
            EXPECT_TRUE(load("back.raw") == load("in.raw")) << from << ' ' << to << ' ' << size;
        }
    }
}

// BT.601 red is red in every layout of YCbCr.
TEST_F(PathTest, from_ycbcr_shows_red)
{
    std::string red;
    for (int i = 0; i < 48 * 4 / 2; ++i) red += "\x5A\x51\xF0\x51";
    save("red.2vuy", red);
    for (const char* layout : {"2vuy", "v210", "planar422", "i420", "yv12", "yuv444"}) {
        ASSERT_EQ(
            run({"convert", "--from", "2vuy", "--to", layout, path("red.2vuy"), path("red.raw"), "-s", "48x4"}).code,
            0);
        for (const char* to : {"rgb24", "rgb32", "bgr24", "rgba64"}) {
            const Result result =
                run({"convert", "--from", layout, "--to", to, path("red.raw"), path("red.pam"), "-s", "48x4"});
            ASSERT_EQ(result.code, 0) << result.err;
            const Pam picture = parse_pam(load("red.pam"));
            ASSERT_EQ(picture.samples.size(), 48u * 4 * 3);
            for (size_t i = 0; i < picture.samples.size(); ++i)
                ASSERT_NEAR(picture.samples[i] >> 8, i % 3 == 0 ? 254 : 1, 1.5) << layout << ' ' << to << ' ' << i;
        }
    }
}

// Samples of 12 bits in little-endian words from bit 0 upward: red, green, blue.
TEST_F(PathTest, from_rgb12_keeps_the_upper_bits)
{
    const auto samples = Random(4).bytes(8 * 3);
    std::string packed(36, '\0');
    for (size_t n = 0; n < samples.size(); ++n)
        for (size_t bit = 0; bit < 12; ++bit)
            if ((samples[n] * 16u + 9) >> bit & 1)
                packed[(12 * n + bit) / 8] |= static_cast<char>(1 << (12 * n + bit) % 8);
    save("in.rgb12", packed);
    ASSERT_EQ(run({"convert", "--from", "rgb12", "--to", "bgr24", path("in.rgb12"), path("out"), "-s", "8x1"}).code, 0);
    EXPECT_EQ(load("out"), std::string(samples.begin(), samples.end()));
}

TEST_F(PathTest, odd_sizes_are_refused_where_a_layout_has_pairs)
{
    save("in.raw", std::string(9 * 5 * 4, 'x'));
    for (const auto& [to, code] : std::map<std::string, int>{{"2vuy", 4}, {"i420", 4}, {"v210", 4}, {"rgb24", 0}}) {
        const Result result = run({"convert", "--from", "rgb32", "--to", to, path("in.raw"), path("out"), "-s", "9x5"});
        EXPECT_EQ(result.code, code) << to << result.err;
    }
    save("in.raw", std::string(8 * 5 * 4, 'x'));
    EXPECT_EQ(run({"convert", "--from", "rgb32", "--to", "i420", path("in.raw"), path("out"), "-s", "8x5"}).code, 4);
    EXPECT_EQ(run({"convert", "--from", "rgb32", "--to", "2vuy", path("in.raw"), path("out"), "-s", "8x5"}).code, 0);
}

// What a picture loses on its way into the first layout, and out of the last.
TEST_F(PathTest, reports_what_picture_files_lose)
{
    save("in.pam", make_pam({1, 1, 65535, true, {1, 2, 3, 4}}));
    const auto printed = [&](const std::vector<std::string>& more) {
        std::vector<std::string> words{"convert", path("in.pam"), path("out.png")};
        words.insert(words.end(), more.begin(), more.end());
        return run(words).err;
    };
    EXPECT_EQ(printed({}), "rgba64 -> rgba64  the same bytes  alpha dropped, which --alpha keeps\n");
    EXPECT_EQ(printed({"--alpha"}), "rgba64 -> rgba64  the same bytes  nothing lost\n");
    EXPECT_EQ(printed({"--from", "rgb32", "--to", "rgb32", "--alpha"}),
              "rgb32 -> rgb32  the same bytes  16 bits of the picture read to 8 by truncation\n");
    save("in.pam", make_pam({1, 1, 65535, true, {1, 2, 3, 65535}}));
    EXPECT_EQ(printed({}), "rgba64 -> rgba64  the same bytes  nothing lost\n");
}

TEST_F(PathTest, is_on_stderr_unless_quiet)
{
    save("in.raw", std::string(8 * 4 * 2, 'x'));
    const std::vector<std::string> words{"convert",      "--from",    "2vuy", "--to", "i420",
                                         path("in.raw"), path("out"), "-s",   "8x4"};
    const Result loud = run(words);
    EXPECT_EQ(loud.err, "2vuy -> i420  tntvt_2vuy_i420  chroma halved vertically (dropped)\n");
    EXPECT_EQ(loud.out, "");
    std::vector<std::string> quiet = words;
    quiet.push_back("--quiet");
    EXPECT_EQ(run(quiet).err, "");
    std::vector<std::string> dry = words;
    std::filesystem::remove(path("out"));
    dry.push_back("--dry-run");
    EXPECT_EQ(run(dry).err, loud.err);
    EXPECT_FALSE(files_in("").contains("out"));
}

}  // namespace
}  // namespace tintvert::test
