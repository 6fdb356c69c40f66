// Lines of a raw file that have more bytes than their pixels.
#include <algorithm>

#include "tool/noise.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Strides = ToolTest;

std::string with_lines(const std::string& tight, size_t line, size_t stride)
{
    std::string wide;
    for (size_t at = 0; at < tight.size(); at += line) wide += tight.substr(at, line) + std::string(stride - line, '#');
    return wide;
}

TEST_F(Strides, lines_with_slack)
{
    const std::string tight = noise(10, 2 * 10 * 4 * 2);  // two frames of 10 x 4
    save("tight", tight), save("auto64", with_lines(tight, 20, 64)), save("wide", with_lines(tight, 20, 33));
    const auto v210_of = [&](const char* file, const char* stride) {
        const Result result = run(
            {"convert", "--from", "2vuy", "--to", "v210", path(file), path("out"), "-s", "10x4", "--stride", stride});
        EXPECT_EQ(result.code, 0) << result.err;
        return load("out");
    };
    const std::string expected = v210_of("tight", "packed");
    EXPECT_EQ(expected.size(), 2u * 128 * 4);
    EXPECT_TRUE(v210_of("auto64", "auto64") == expected);
    EXPECT_TRUE(v210_of("wide", "33") == expected);
    // One routine alone gets them tight as well.
    ASSERT_EQ(run({"convert", "tntvt_2vuy_v210", path("wide"), path("out"), "-s", "10x4", "--stride", "33"}).code, 0);
    EXPECT_TRUE(load("out") == expected);
}

// Groups of v210 as samples, and samples as groups.
std::vector<unsigned> samples_of(const std::string& line, size_t count)
{
    std::vector<unsigned> samples;
    for (size_t n = 0; n < count; ++n) {
        uint32_t word = 0;
        std::copy_n(line.begin() + static_cast<long>(n / 3 * 4), 4, reinterpret_cast<char*>(&word));
        samples.push_back(word >> (10 * (n % 3)) & 0x3FF);
    }
    return samples;
}

std::string run_of(const std::vector<unsigned>& samples)
{
    std::string groups((samples.size() + 11) / 12 * 16, '\0');
    for (size_t n = 0; n < samples.size(); ++n)
        for (unsigned bit = 0; bit < 10; ++bit)
            if ((samples[n] >> bit & 1) != 0)
                groups[n / 3 * 4 + (10 * (n % 3) + bit) / 8] |= static_cast<char>(1 << (10 * (n % 3) + bit) % 8);
    return groups;
}

// _v210_to_rgb takes groups with no gap between lines. Files of every maker have lines of 128 bytes for 48 pixels.
TEST_F(Strides, padded_v210_for_a_routine_that_knows_no_lines)
{
    for (const size_t width : {12u, 48u, 50u, 1280u}) {
        const size_t line = (width + 47) / 48 * 128;
        const std::string padded = noise(width, line * 3);
        std::vector<unsigned> samples;
        for (size_t y = 0; y < 3; ++y)
            for (const unsigned sample : samples_of(padded.substr(y * line, line), width * 2))
                samples.push_back(sample);
        save("padded", padded), save("run", run_of(samples));
        const std::string size = std::to_string(width) + "x3";
        ASSERT_EQ(run({"convert", "_v210_to_rgb", path("run"), path("expected"), "-s", size}).code, 0);
        const Result result =
            run({"convert", "_v210_to_rgb", path("padded"), path("out"), "-s", size, "--stride", "auto48"});
        ASSERT_EQ(result.code, 0) << result.err;
        EXPECT_TRUE(load("out") == load("expected")) << width;
    }
}

TEST_F(Strides, v210_at_other_strides)
{
    const std::string packed = noise(11, 17 * 16 * 2);  // 100 pixels are 17 groups
    save("packed", packed), save("auto48", with_lines(packed, 272, 384)), save("auto64", with_lines(packed, 272, 320));
    std::string expected;
    for (const char* stride : {"packed", "auto48", "auto64"}) {
        const Result result = run({"convert", "--from", "v210", "--to", "2vuy", path(stride), path("out"), "-s",
                                   "100x2", "--stride", stride});
        ASSERT_EQ(result.code, 0) << result.err;
        if (expected.empty()) expected = load("out");
        EXPECT_TRUE(load("out") == expected) << stride;
    }
    EXPECT_EQ(expected.size(), 400u);
}

}  // namespace
}  // namespace tintvert::test
