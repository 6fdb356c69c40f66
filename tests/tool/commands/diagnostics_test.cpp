// Messages: stderr that cannot be written does not change the result, and no byte of a file reaches the terminal as it
// is.
#include <fcntl.h>

#include <nlohmann/json.hpp>

#include "support/packet_maker.h"
#include "tool/noise.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Diagnostics = ToolTest;

void into_a_full_device() { dup2(open("/dev/full", O_WRONLY), STDERR_FILENO); }
void without_stderr() { close(STDERR_FILENO); }
void without_descriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) close(descriptor);
}

TEST_F(Diagnostics, stderr_that_cannot_be_written_loses_no_frame)
{
    save("in.2vuy", noise(1, 64));
    const std::vector<std::string> words{"convert",       "--from",    "2vuy", "--to", "v210",
                                         path("in.2vuy"), path("out"), "-s",   "8x4"};
    ASSERT_EQ(run(words).code, 0);
    const std::string expected = load("out");
    for (const auto in_child : {into_a_full_device, without_stderr, without_descriptors}) {
        std::filesystem::remove(path("out"));
        EXPECT_EQ(run(words, in_child).code, 0);
        EXPECT_TRUE(load("out") == expected);
    }
}

TEST_F(Diagnostics, stderr_that_cannot_be_written_loses_no_capture)
{
    save("in", framed(Sender{{96, 4}, 250}.frames(1)));
    const std::vector<std::string> words{"capture", path("in"), path("out"), "-s", "96x4"};
    ASSERT_EQ(run(words).code, 0);
    const std::string expected = load("out");
    for (const auto in_child : {into_a_full_device, without_stderr}) {
        std::filesystem::remove(path("out"));
        EXPECT_EQ(run(words, in_child).code, 0);
        EXPECT_TRUE(load("out") == expected);
    }
}

TEST_F(Diagnostics, exit_codes_do_not_depend_on_stderr)
{
    for (const auto in_child : {into_a_full_device, without_stderr}) {
        EXPECT_EQ(run({"convert", path("none.png"), path("out.ppm")}, in_child).code, 3);
        EXPECT_EQ(run({"convrt"}, in_child).code, 2);
    }
}

TEST_F(Diagnostics, closed_stdout_is_a_failed_write)
{
    const Result result = run({"list"}, [] { close(STDOUT_FILENO); });
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.err, "tintvert: cannot write standard output: Bad file descriptor\n");
    const Result full = run({"layouts", "--json"}, [] { dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO); });
    EXPECT_EQ(full.code, 3);
    EXPECT_EQ(full.err, "tintvert: cannot write standard output: No space left on device\n");
}

bool is_shown_safely(const std::string& text)
{
    return std::ranges::all_of(text, [](unsigned char c) { return c == '\n' || (c >= ' ' && c < 0x7F); });
}

TEST_F(Diagnostics, bytes_of_a_file_are_escaped)
{
    const std::string title = "\x1B]0;title\x07";
    save("in.y4m", "YUV4MPEG2 W4 H2 C" + title + "\nFRAME\n" + noise(2, 12));
    save("size.y4m", "YUV4MPEG2 W" + title + " H2\nFRAME\n");
    save("in.pam", "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 3\nMAXVAL 255\nTUPLTYPE " + title + "\nENDHDR\nabc");
    save("in.ppm", "P6\n" + title + " 1\n255\nabc");
    for (const char* name : {"in.y4m", "size.y4m", "in.pam", "in.ppm"}) {
        const Result result = run({"convert", path(name), path("out.bmp")});
        EXPECT_EQ(result.code, 3) << name;
        EXPECT_TRUE(is_shown_safely(result.err)) << name;
        EXPECT_NE(result.err.find("\\x1B]0;title\\x07"), std::string::npos) << result.err;
    }
}

TEST_F(Diagnostics, a_zero_byte_does_not_shorten_the_message)
{
    save("in.y4m", std::string("YUV4MPEG2 W4 H2 C4\0", 19) + "20\nFRAME\n");
    const Result result = run({"convert", path("in.y4m"), path("out.bmp")});
    EXPECT_EQ(result.code, 3);
    EXPECT_NE(result.err.find("'4\\x0020' is not"), std::string::npos) << result.err;
    EXPECT_TRUE(result.has_one_line_of_error());
}

// One name has a newline, a C1 control (U+009B, which some terminals take as ESC [), a byte that is no UTF-8, and a
// change of the writing direction (U+202E); the other has letters.
TEST_F(Diagnostics, names_of_files_are_escaped_and_letters_stay)
{
    const Result odd = run({"convert", path("a\nb\xC2\x9B\xFF\xE2\x80\xAE"), path("out.bmp")});
    EXPECT_EQ(odd.err, "tintvert: cannot read " + path("a\\x0Ab\\xC2\\x9B\\xFF\\xE2\\x80\\xAE") +
                           ": No such file or directory\n");
    const Result letters = run({"convert", path("Größe 大きさ.png"), path("out.bmp")});
    EXPECT_EQ(letters.err, "tintvert: cannot read " + path("Größe 大きさ.png") + ": No such file or directory\n");
}

TEST_F(Diagnostics, reports_and_json_are_escaped)
{
    const std::string name = path("in\x1B[2J\xC2\x9B\x7F");
    std::ofstream(name, std::ios::binary) << framed(Sender{{96, 4}, 250}.frames(1));
    const Result text = run({"capture", name, path("out"), "-s", "96x4"});
    EXPECT_EQ(text.code, 0);
    EXPECT_TRUE(is_shown_safely(text.err)) << text.err;
    EXPECT_TRUE(text.err.starts_with(path("in\\x1B[2J\\xC2\\x9B\\x7F: ")));
    const Result json = run({"capture", name, path("out"), "-s", "96x4", "--json"});
    EXPECT_TRUE(is_shown_safely(json.out)) << json.out;
    EXPECT_EQ(nlohmann::json::parse(json.out)["capture"]["file"], name);
}

}  // namespace
}  // namespace tintvert::test
