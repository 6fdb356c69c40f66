// The demo: right pixels from every kind of PNG, and nothing half-written when something is wrong.
#include <sys/resource.h>
#include <sys/stat.h>
#include <tintvert.h>

#include <algorithm>
#include <cmath>

#include "tool/png_maker.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Demo = ToolTest;

std::string geometry(unsigned width, unsigned height)
{
    return std::to_string(width + width % 2) + "x" + std::to_string(height);
}

// The frame as the library makes it from the pixels of `kind`, an odd last column repeated.
std::string frame_of(const PngKind& kind, unsigned width, unsigned height)
{
    std::vector<uint8_t> rgb32;
    for (unsigned y = 0; y < height; ++y) {
        for (unsigned x = 0; x < width + width % 2; ++x) {
            const auto [r, g, b] = png_pixel(kind, std::min(x, width - 1), y);
            rgb32.insert(rgb32.end(), {b, g, r, 0});
        }
    }
    std::string frame(rgb32.size() / 2, '\0');
    tntvt_rgb32_2vuy(frame.data(), 0, rgb32.data(), 0, width + width % 2, height);
    return frame;
}

// Red, green, blue of a file.
std::vector<uint8_t> pixels_of(const std::string& png, unsigned width, unsigned height)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    EXPECT_NE(png_image_begin_read_from_memory(&image, png.data(), png.size()), 0);
    EXPECT_EQ(image.width, width);
    EXPECT_EQ(image.height, height);
    image.format = PNG_FORMAT_RGB;
    std::vector<uint8_t> pixels(PNG_IMAGE_SIZE(image));
    EXPECT_NE(png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr), 0);
    return pixels;
}

TEST_F(Demo, card_by_default)
{
    const Result result = run({"demo", "--output", path("out")});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(files_in("out"),
              (std::set<std::string>{"card_1920x1080.2vuy", "card_scale1.png", "card_scale2.png", "card_scale4.png"}));
    EXPECT_EQ(load("out/card_1920x1080.2vuy").size(), 1920u * 1080 * 2);
    pixels_of(load("out/card_scale1.png"), 1920, 1080);
    pixels_of(load("out/card_scale2.png"), 960, 540);
    pixels_of(load("out/card_scale4.png"), 480, 270);
}

TEST_F(Demo, takes_every_kind_of_png)
{
    std::vector<PngKind> kinds;
    for (const bool interlaced : {false, true}) {
        for (const int depth : {1, 2, 4, 8, 16}) kinds.push_back({PNG_COLOR_TYPE_GRAY, depth, interlaced});
        for (const int depth : {1, 2, 4, 8}) kinds.push_back({PNG_COLOR_TYPE_PALETTE, depth, interlaced});
        for (const int type : {PNG_COLOR_TYPE_GRAY_ALPHA, PNG_COLOR_TYPE_RGB, PNG_COLOR_TYPE_RGB_ALPHA})
            for (const int depth : {8, 16}) kinds.push_back({type, depth, interlaced});
    }
    kinds.push_back({PNG_COLOR_TYPE_GRAY, 4, false, true});
    kinds.push_back({PNG_COLOR_TYPE_GRAY, 16, false, true});
    kinds.push_back({PNG_COLOR_TYPE_PALETTE, 8, false, true});
    kinds.push_back({PNG_COLOR_TYPE_RGB, 8, true, true});
    for (const PngKind& kind : kinds) {
        save("in.png", make_png(kind, 23, 9));
        const Result result = run({"demo", "--input", path("in.png"), "--output", path("out")});
        const std::string what =
            "type " + std::to_string(kind.colour_type) + ", " + std::to_string(kind.depth) + " bits";
        EXPECT_EQ(result.code, 0) << what << ": " << result.err;
        EXPECT_EQ(load("out/in_24x9.2vuy"), frame_of(kind, 23, 9)) << what;
        std::filesystem::remove_all(path("out"));
    }
}

// Every small geometry, odd ones foremost; the last whole group must stay inside the buffers.
TEST_F(Demo, small_and_odd_sizes)
{
    const PngKind kind;
    for (unsigned width = 1; width <= 9; ++width) {
        for (unsigned height = 1; height <= 5; ++height) {
            save("in.png", make_png(kind, width, height));
            const Result result = run({"demo", "--input", path("in.png"), "--output", path("out")});
            ASSERT_EQ(result.code, 0) << result.err;
            EXPECT_EQ(load("out/in_" + geometry(width, height) + ".2vuy"), frame_of(kind, width, height));
            std::set<std::string> expected = {"in_" + geometry(width, height) + ".2vuy"};
            for (const unsigned scale : {1u, 2u, 4u}) {
                if (width < scale || height < scale) continue;
                const std::string name = "in_scale" + std::to_string(scale) + ".png";
                expected.insert(name);
                pixels_of(load("out/" + name), width / scale, height / scale);
            }
            EXPECT_EQ(files_in("out"), expected);
            std::filesystem::remove_all(path("out"));
        }
    }
}

// The numbers after "1/<scale>" in the lower table, computed again from the files.
TEST_F(Demo, tells_the_differences_of_its_files)
{
    const PngKind kind;
    save("in.png", make_png(kind, 61, 40));
    const Result result = run({"demo", "--input", path("in.png"), "--output", path("out")});
    ASSERT_EQ(result.code, 0) << result.err;
    for (const unsigned scale : {1u, 2u, 4u}) {
        const unsigned width = 61 / scale, height = 40 / scale;
        const auto pixels = pixels_of(load("out/in_scale" + std::to_string(scale) + ".png"), width, height);
        std::array<int, 3> largest{};
        std::array<double, 3> sum{};
        for (unsigned y = 0; y < height; ++y) {
            for (unsigned x = 0; x < width; ++x) {
                for (size_t c = 0; c < 3; ++c) {
                    const int apart =
                        std::abs(pixels[(y * width + x) * 3 + c] - png_pixel(kind, x * scale, y * scale)[c]);
                    largest[c] = std::max(largest[c], apart);
                    sum[c] += apart;
                }
            }
        }
        const size_t line = result.out.find("\n1/" + std::to_string(scale));
        ASSERT_NE(line, std::string::npos) << result.out;
        std::array<int, 3> told_largest{};
        std::array<double, 3> told_mean{};
        ASSERT_EQ(std::sscanf(result.out.c_str() + line, " 1/%*d %d %d %d %lf %lf %lf", &told_largest[0],
                              &told_largest[1], &told_largest[2], &told_mean[0], &told_mean[1], &told_mean[2]),
                  6);
        EXPECT_EQ(told_largest, largest);
        EXPECT_GT(*std::ranges::max_element(largest), 0);
        for (size_t c = 0; c < 3; ++c) EXPECT_NEAR(told_mean[c], sum[c] / (width * height), 0.0006);
    }
}

void expect_unreadable(const Result& result)
{
    EXPECT_EQ(result.code, 3);
    EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    EXPECT_EQ(result.out, "");
}

TEST_F(Demo, missing_or_unsuitable_input)
{
    save("empty.png", "");
    save("text.png", "This is not a picture.\n");
    for (const char* name : {"missing.png", "empty.png", "text.png", "."}) {
        expect_unreadable(run({"demo", "--input", path(name), "--output", path("out")}));
        EXPECT_FALSE(std::filesystem::exists(path("out")));
    }
}

TEST_F(Demo, input_cut_short_anywhere)
{
    const std::string whole = make_png({}, 7, 5);
    for (size_t size = 0; size < whole.size(); ++size) {
        save("in.png", whole.substr(0, size));
        expect_unreadable(run({"demo", "--input", path("in.png"), "--output", path("out")}));
    }
    EXPECT_FALSE(std::filesystem::exists(path("out")));
}

// Every chunk of this file is critical and has a checksum, so no byte may change unnoticed.
TEST_F(Demo, input_damaged_anywhere)
{
    const std::string whole = make_png({}, 7, 5);
    for (size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ 0x01);
        save("in.png", damaged);
        expect_unreadable(run({"demo", "--input", path("in.png"), "--output", path("out")}));
    }
    EXPECT_FALSE(std::filesystem::exists(path("out")));
}

// A header of 29 bytes can promise a million lines of a million pixels.
TEST_F(Demo, refuses_a_huge_promise)
{
    std::string png = make_png({}, 1, 1);
    const std::string header("IHDR\x00\x01\x00\x00\x00\x01\x00\x00\x08\x02\x00\x00\x00", 17);
    const uint32_t checksum = [&] {
        uint32_t crc = ~0u;
        for (const char c : header) {
            crc ^= static_cast<uint8_t>(c);
            for (int bit = 0; bit < 8; ++bit) crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0);
        }
        return ~crc;
    }();
    png.replace(12, 17, header);
    for (size_t i = 0; i < 4; ++i) png[29 + i] = static_cast<char>(checksum >> (24 - 8 * i));
    save("in.png", png);
    const Result result = run({"demo", "--input", path("in.png"), "--output", path("out")});
    EXPECT_EQ(result.code, 4);
    EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
}

void expect_unwritable(const Result& result)
{
    EXPECT_EQ(result.code, 3);
    EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    EXPECT_NE(result.err.find("cannot "), std::string::npos) << result.err;
}

TEST_F(Demo, unwritable_output)
{
    save("in.png", make_png({}, 8, 8));
    save("file", "");
    expect_unwritable(run({"demo", "--input", path("in.png"), "--output", path("file")}));
    expect_unwritable(run({"demo", "--input", path("in.png"), "--output", path("file/below")}));
    std::filesystem::create_directories(path("out/in_scale1.png"));
    expect_unwritable(run({"demo", "--input", path("in.png"), "--output", path("out")}));
    EXPECT_EQ(files_in("out"), (std::set<std::string>{"in_8x8.2vuy", "in_scale1.png"}));
}

// Files may only grow to a limit. The first fits no frame of the card, the second a frame but no PNG.
TEST_F(Demo, a_full_disk_leaves_nothing)
{
    const auto limit_files = [](rlim_t bytes) {
        return [bytes] {
            const rlimit limit = {bytes, bytes};
            setrlimit(RLIMIT_FSIZE, &limit);
        };
    };
    expect_unwritable(run({"demo", "--output", path("out")}, limit_files(2'000'000)));
    EXPECT_EQ(files_in("out"), std::set<std::string>{});

    save("in.png", make_png({}, 64, 64));  // noise: a frame of 8192 bytes and a PNG of 12 thousand
    expect_unwritable(run({"demo", "--input", path("in.png"), "--output", path("out")}, limit_files(8192)));
    EXPECT_EQ(files_in("out"), std::set<std::string>{"in_64x64.2vuy"});
}

// The fifo is open at both ends when the signal comes, so the tool is at its input.
TEST_F(Demo, interrupted_while_it_reads)
{
    ASSERT_EQ(mkfifo(path("in.png").c_str(), 0600), 0);
    Process tool({"demo", "--input", path("in.png"), "--output", path("out")});
    std::FILE* other_end = std::fopen(path("in.png").c_str(), "wb");
    kill(tool.pid(), SIGINT);
    EXPECT_EQ(tool.wait().code, 130);
    std::fclose(other_end);
    EXPECT_FALSE(std::filesystem::exists(path("out")));
}

bool holds_unfinished(const std::set<std::string>& names)
{
    return std::ranges::any_of(names, [](const std::string& name) { return name.ends_with(".part"); });
}

bool has_ended(pid_t pid)
{
    siginfo_t info = {};
    waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WNOHANG | WNOWAIT);
    return info.si_pid != 0;
}

// Holds the tool still and looks again, so that the answer stays true.
bool is_stopped_with(pid_t pid, const std::function<bool()>& condition)
{
    kill(pid, SIGSTOP);
    siginfo_t info = {};
    waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WSTOPPED | WNOWAIT);
    if (info.si_code == CLD_STOPPED && condition()) return true;
    kill(pid, SIGCONT);
    return false;
}

// The signal finds a temporary file there. A run in which none was seen in time is tried again.
TEST_F(Demo, interrupted_while_it_writes)
{
    const auto unfinished = [&] { return holds_unfinished(files_in("out")); };
    for (int attempt = 0; attempt < 20; ++attempt) {
        Process tool({"demo", "--output", path("out")});
        bool caught = false;
        while (!caught && !has_ended(tool.pid())) caught = unfinished() && is_stopped_with(tool.pid(), unfinished);
        if (caught) {
            kill(tool.pid(), SIGINT);
            kill(tool.pid(), SIGCONT);
        }
        const Result result = tool.wait();
        EXPECT_FALSE(unfinished());
        if (!caught) continue;
        EXPECT_EQ(result.code, 130);
        return;
    }
    FAIL() << "no run was caught while it wrote";
}

}  // namespace
}  // namespace tintvert::test
