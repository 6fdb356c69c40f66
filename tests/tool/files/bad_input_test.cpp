// Files and geometry that make no sense: one line, the exit code of the docs, and no file.
#include "tool/noise.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using BadInput = ToolTest;

TEST_F(BadInput, a_full_disk)
{
    save("in.2vuy", noise(7, 64));
    for (const char* format : {"raw", "png", "ppm", "bmp", "pam"}) {
        const Result result = run({"convert", "--from", "2vuy", "--to", "rgb24", path("in.2vuy"), "/dev/full", "-s",
                                   "8x4", "-q", "--format", format});
        EXPECT_EQ(result.code, 3) << format;
        EXPECT_EQ(result.err, "tintvert: cannot write /dev/full: No space left on device\n");
    }
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST_F(BadInput, what_cannot_be_written)
{
    save("in.2vuy", noise(8, 64));
    save("file", "");
    for (const std::string& out : {path("none/out"), path("file/out"), path("")}) {
        const Result result =
            run({"convert", "--from", "2vuy", "--to", "v210", path("in.2vuy"), out, "-s", "8x4", "-q"});
        EXPECT_EQ(result.code, 3) << out;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    }
    EXPECT_EQ(files_in(""), (std::set<std::string>{"in.2vuy", "file"}));
}

TEST_F(BadInput, absurd_geometry)
{
    save("in.raw", noise(9, 4096));
    const auto code = [&](const std::vector<std::string>& more) {
        std::vector<std::string> words{"convert", "--from", "2vuy", "--to", "v210", path("in.raw"), path("out"), "-q"};
        words.insert(words.end(), more.begin(), more.end());
        const Result result = run(words);
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        return result.code;
    };
    for (const char* size : {"0x0", "0x4", "-8x4", "8x-4", "2147483648x2", "2147483648x2147483648", "65536x65536",
                             "4294967296x4294967296", "99999999999999999999x4", "4x99999999999999999999"})
        EXPECT_EQ(code({"--size", size}), 4) << size;
    for (const char* size : {"", "8", "8x", "x8", "8X4", "8x4x2", "8.5x4", "eight"})
        EXPECT_EQ(code({"--size", size}), 2) << size;
    for (const char* frames : {"-1", ":", "1:", ":2", "2:1", "a:b", "99999999999999999999"})
        EXPECT_EQ(code({"--size", "8x4", "--frames", frames}), 2) << frames;
    EXPECT_EQ(code({"--size", "8x4", "--frames", "64"}), 4);
    EXPECT_EQ(code({"--size", "8x4", "--frames", "0:99999999999999999999"}), 4);
    EXPECT_EQ(code({"--size", "8x4", "--offset", "5000"}), 4);
    EXPECT_EQ(code({"--size", "8x4", "--offset", "-1"}), 2);
    EXPECT_EQ(code({"--size", "8x4", "--offset", "99999999999999999999"}), 4);
    EXPECT_EQ(code({"--size", "8x4", "--jobs", "0"}), 2);
    EXPECT_EQ(code({"--size", "8x4", "--stride", "15"}), 4);
    EXPECT_EQ(code({"--size", "8x4", "--stride", "2147483648"}), 4);
    EXPECT_EQ(code({"--size", "8x4", "--stride", "99999999999999999999"}), 4);
    EXPECT_EQ(code({"--size", "8x4", "--stride", "auto48"}), 2);
    EXPECT_EQ(code({"--size", "8x4", "--stride", "auto"}), 2);
    EXPECT_EQ(code({"--size", "8x4", "--bits", "12"}), 2);
    EXPECT_EQ(files_in(""), std::set<std::string>{"in.raw"});
}

TEST_F(BadInput, files_that_do_not_fit_what_is_asked)
{
    save("in.ppm", "P6\n2 1\n255\nabcdef");
    const auto code = [&](const std::vector<std::string>& more) {
        std::vector<std::string> words{"convert", path("in.ppm"), path("out")};
        words.insert(words.end(), more.begin(), more.end());
        const Result result = run(words);
        EXPECT_TRUE(result.code == 0 || result.has_one_line_of_error()) << result.err;
        return result.code;
    };
    EXPECT_EQ(code({"--to", "rgb24", "-q"}), 0);
    EXPECT_EQ(code({"--to", "rgb24", "-q", "--size", "2x1"}), 0);
    EXPECT_EQ(code({"--to", "rgb24", "--size", "4x1"}), 2);
    EXPECT_EQ(code({"--to", "rgb24", "--offset", "1"}), 2);
    EXPECT_EQ(code({"--to", "rgb24", "--from", "v210"}), 2);
    EXPECT_EQ(code({}), 2);
    EXPECT_EQ(code({"--format", "y4m"}), 0);
    EXPECT_EQ(run({"convert", "--to", "2vuy", path("in.ppm"), path("out.png")}).code, 2);
    EXPECT_EQ(run({"convert", "--to", "rgb24", path("in.ppm"), path("out.mov")}).code, 2);
    EXPECT_EQ(run({"convert", "--to", "rgb24", path("missing.ppm"), path("out")}).code, 3);
    EXPECT_EQ(run({"convert", "--to", "rgb24", path(""), path("out")}).code, 3);
}

}  // namespace
}  // namespace tintvert::test
