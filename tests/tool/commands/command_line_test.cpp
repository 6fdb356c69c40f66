// What the tool answers to a command line: exit codes, one line of error, suggestions.
#include "tool/run.h"

namespace tintvert::test {
namespace {

TEST(CommandLine, tells_its_version)
{
    const Result result = run({"--version"});
    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(result.out.starts_with("tintvert " TINTVERT_VERSION "\nMOV and AVI: ")) << result.out;
    EXPECT_EQ(result.err, "");
}

TEST(CommandLine, helps_on_stdout)
{
    const Result result = run({"--help"});
    EXPECT_EQ(result.code, 0);
    for (const char* command : {"demo", "list", "show"}) EXPECT_NE(result.out.find(command), std::string::npos);
    EXPECT_EQ(result.err, "");
}

// Every option of every command: a word for its value, and no type of the parser's.
TEST(CommandLine, helps_in_words)
{
    const std::string all = run({"--help"}).out;
    EXPECT_NE(all.find("Usage: tintvert [OPTIONS] COMMAND\n"), std::string::npos);
    EXPECT_NE(all.find("\n\nCommands:\n  bits "), std::string::npos);
    EXPECT_TRUE(all.ends_with("\n\n`tintvert COMMAND --help` lists the options of a command.\n")) << all;
    const std::string view = run({"view", "--help"}).out;
    EXPECT_NE(view.find("  -s,--size WxH               width and height of raw frames"), std::string::npos) << view;
    EXPECT_NE(view.find("  --color auto|always|never (default auto)\n"), std::string::npos) << view;
    EXPECT_NE(run({"bits", "--help"}).out.find("  --at X,Y (required)         the pixel"), std::string::npos);
    EXPECT_NE(run({"capture", "--help"}).out.find("  --interlaced[=field|frame]  weave"), std::string::npos);
    for (const char* command : {"bits", "capture", "compare", "completions", "convert", "demo", "explain", "guess",
                                "layouts", "list", "man", "names", "show", "st2084", "verify", "view"}) {
        const Result help = run({command, "--help"});
        EXPECT_EQ(help.code, 0) << command;
        for (const char* word : {"TEXT", "INT", "REQUIRED", " in [", "{", "\n\n\n"})
            EXPECT_EQ(help.out.find(word), std::string::npos) << command << ": " << word << '\n' << help.out;
    }
}

TEST(CommandLine, says_where_the_help_is)
{
    EXPECT_TRUE(run({"view"}).err.ends_with(" (see tintvert view --help)\n")) << run({"view"}).err;
    EXPECT_TRUE(run({"veiw"}).err.ends_with(" (see tintvert --help)\n"));
}

TEST(CommandLine, refuses_what_makes_no_sense)
{
    const std::vector<std::vector<std::string>> wrong = {
        {}, {"convrt"}, {"--colour"}, {"show"}, {"list", "--jsn"}, {"list", "frame", "hdr"}, {"demo", "--input"}};
    for (const auto& arguments : wrong) {
        const Result result = run(arguments);
        EXPECT_EQ(result.code, 2) << result.err;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_EQ(result.out, "");
    }
}

void expect_suggestion(const std::vector<std::string>& arguments, const std::string& name)
{
    const Result result = run(arguments);
    EXPECT_EQ(result.code, 2);
    EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    EXPECT_NE(result.err.find("; did you mean '" + name + "'?"), std::string::npos) << result.err;
}

TEST(CommandLine, suggests_the_nearest_name)
{
    expect_suggestion({"lst"}, "list");
    expect_suggestion({"list", "ycbcr_8"}, "ycbcr8");
    expect_suggestion({"show", "bgra_to_2vyu"}, "bgra_to_2vuy");
    expect_suggestion({"show", "rgb32_2vuy"}, "tntvt_rgb32_2vuy");
    expect_suggestion({"show", "tntvt_yuv422_rgb23"}, "tntvt_yuv422_rgb24");
}

TEST(CommandLine, suggests_the_nearest_option)
{
    expect_suggestion({"convert", "--frm", "v210"}, "--from");
    expect_suggestion({"convert", "--frames", "2", "--szie=8x4"}, "--size");
    expect_suggestion({"list", "--jsn"}, "--json");
}

TEST(CommandLine, suggests_nothing_far_fetched)
{
    const Result result = run({"show", "photograph"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err, "tintvert: there is no routine 'photograph'\n");
}

// Data that nobody received is no success.
TEST(CommandLine, notices_that_stdout_is_full)
{
    const Result result = run({"list"}, [] {
        std::FILE* full = std::fopen("/dev/full", "w");
        dup2(fileno(full), STDOUT_FILENO);
    });
    EXPECT_EQ(result.code, 3);
    EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
}

}  // namespace
}  // namespace tintvert::test
