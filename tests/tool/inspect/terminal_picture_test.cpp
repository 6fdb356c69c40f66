// view in a terminal: what libchafa draws, and what is printed without it.
#include <algorithm>

#include "tool/raw_frames.h"
#include "tool/terminal.h"

namespace tintvert::test {
namespace {

bool has_chafa() { return run({"--version"}).out.find("by libchafa") != std::string::npos; }

class TerminalPicture : public ToolTest {
protected:
    // 40 x 20 pixels, red on the left and blue on the right.
    void SetUp() override
    {
        save("frame", raw_frame("rgb24", 40, 20, [](std::string_view component, int64_t x, int64_t) {
                 return component == (x < 20 ? "R" : "B") ? 255 : 0;
             }));
    }

    std::vector<std::string> view(const std::vector<std::string>& more) const
    {
        std::vector<std::string> words{"view", path("frame"), "-l", "rgb24", "-s", "40x20", "--width", "4"};
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }

    std::string drawn_as(const std::string& drawing) const
    {
        const Result result = run(view({"--as", drawing}));
        EXPECT_EQ(result.code, 0) << result.err;
        return result.out;
    }

    std::string on_terminal(const char* name, const std::vector<std::string>& more = {}) const
    {
        return shown_on_a_terminal(view(more), STDOUT_FILENO, [name] {
            clearenv();
            setenv("TERM", name, 1);
        });
    }
};

// Characters of a line, without those from ESC to m.
size_t characters(const std::string& line)
{
    size_t count = 0;
    for (size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '\x1b')
            at = line.find('m', at);
        else if ((line[at] & 0xC0) != 0x80)
            ++count;
    }
    return count;
}

std::string bytes_of_base64(const std::string& text)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    unsigned bits = 0, count = 0;
    for (const char c : text) {
        if (digits.find(c) == std::string_view::npos) break;
        bits = bits << 6 | static_cast<unsigned>(digits.find(c));
        count += 6;
        if (count < 8) continue;
        count -= 8;
        bytes += static_cast<char>(bits >> count);
    }
    return bytes;
}

TEST_F(TerminalPicture, letters_and_blocks_by_name)
{
    EXPECT_EQ(drawn_as("letters"), "::..\n");
    EXPECT_EQ(drawn_as("blocks"), run(view({"--color=always"})).out);
    EXPECT_EQ(run(view({"--as", "oils"})).code, 2);
}

// 4 columns of 8 pixels are 32, and so there are 16 pixels in height: one line of characters.
TEST_F(TerminalPicture, symbols)
{
    if (!has_chafa()) GTEST_SKIP() << "built without libchafa";
    const std::string picture = drawn_as("symbols");
    EXPECT_EQ(std::count(picture.begin(), picture.end(), '\n'), 1);
    EXPECT_TRUE(picture.ends_with("\x1b[0m\n"));
    EXPECT_EQ(characters(picture), 5u) << "four columns and the line feed";
    EXPECT_LT(picture.find("2;255;0;0"), picture.find("2;0;0;255"));
    EXPECT_NE(picture.find("2;0;0;255"), std::string::npos);
    const std::string wider = run({"view", path("frame"), "-l", "rgb24", "-s", "40x20", "--as", "symbols"}).out;
    EXPECT_EQ(std::count(wider.begin(), wider.end(), '\n'), 10);
    EXPECT_EQ(characters(wider), 10u * 41) << "no more columns than pixels";
}

// Whole rows of six pixels, as many as 16 have.
TEST_F(TerminalPicture, sixels)
{
    if (!has_chafa()) GTEST_SKIP() << "built without libchafa";
    const std::string picture = drawn_as("sixels");
    EXPECT_TRUE(picture.starts_with("\x1bP"));
    EXPECT_NE(picture.find("\"1;1;32;12#"), std::string::npos) << picture;
    EXPECT_NE(picture.find(";2;100;0;0"), std::string::npos) << picture;
    EXPECT_TRUE(picture.ends_with("\x1b\\\n"));
}

TEST_F(TerminalPicture, kitty)
{
    if (!has_chafa()) GTEST_SKIP() << "built without libchafa";
    const std::string picture = drawn_as("kitty");
    const std::string head = "\x1b_Ga=T,f=32,s=32,v=16,c=4,r=1,m=1\x1b\\", chunk = "\x1b_Gm=1;";
    ASSERT_TRUE(picture.starts_with(head)) << picture;
    EXPECT_TRUE(picture.ends_with("\x1b\\\n"));
    std::string pixels;
    for (size_t at = picture.find(chunk); at != std::string::npos; at = picture.find(chunk, at + 1))
        pixels += bytes_of_base64(picture.substr(at + chunk.size()));
    ASSERT_EQ(pixels.size(), 32u * 16 * 4);
    EXPECT_EQ(pixels.substr(0, 4), std::string("\xFF\0\0\xFF", 4));
    EXPECT_EQ(pixels.substr(31 * 4, 4), std::string("\0\0\xFF\xFF", 4));
}

// The finest that a terminal says it can. A pipe gets half blocks, whatever the terminal.
TEST_F(TerminalPicture, as_the_terminal_can)
{
    const std::string blocks = run(view({"--color=always"}), [] { setenv("TERM", "xterm-kitty", 1); }).out;
    EXPECT_TRUE(blocks.starts_with("\x1b[38;2;255;0;0m\x1b[48;2;255;0;0m\u2580")) << blocks;
    EXPECT_EQ(on_terminal("xterm-kitty", {"--color=never"}), "::..\r\n");
    if (!has_chafa()) {
        for (const char* name : {"xterm-kitty", "foot", "xterm-256color"})
            EXPECT_EQ(on_terminal(name), blocks.substr(0, blocks.size() - 1) + "\r\n") << name;
        return;
    }
    EXPECT_TRUE(on_terminal("xterm-kitty").starts_with("\x1b_Ga=T,f=32,s=12,v=6,c=4,r=1,"))
        << on_terminal("xterm-kitty");
    EXPECT_NE(on_terminal("foot").find("\"1;1;12;6#"), std::string::npos) << on_terminal("foot");
    EXPECT_NE(on_terminal("xterm-256color").find("2;255;0;0"), std::string::npos);
    const std::string sixteen = on_terminal("linux");
    EXPECT_TRUE(sixteen.find("2;255;0;0") == std::string::npos && sixteen.find('\x1b') == 0) << sixteen;
    EXPECT_EQ(on_terminal("xterm-kitty", {"--as", "blocks"}), blocks.substr(0, blocks.size() - 1) + "\r\n");
}

TEST_F(TerminalPicture, a_tool_without_libchafa_says_so)
{
    if (has_chafa()) GTEST_SKIP() << "built with libchafa";
    for (const char* drawing : {"symbols", "sixels", "kitty"}) {
        const Result result = run(view({"--as", drawing}));
        EXPECT_EQ(result.code, 2);
        EXPECT_TRUE(result.has_one_line_of_error());
        EXPECT_NE(result.err.find("built without libchafa"), std::string::npos);
    }
}

}  // namespace
}  // namespace tintvert::test
