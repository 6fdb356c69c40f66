// Completions, manual pages and the examples of docs/inspect.md, by the shells and programs that read them.
#include <algorithm>
#include <cstdlib>

#include "tool/run.h"

namespace tintvert::test {
namespace {

class Shell : public ToolTest {
protected:
    // The exit code of a script that finds the tool on its path and works in the test's folder.
    int shell(const std::string& script) const
    {
        save("script", "cd '" + path("") + "' && PATH='" + std::filesystem::path(TINTVERT_TOOL).parent_path().string() +
                           "':$PATH\n" + script);
        return std::system(("bash -e " + path("script") + " > " + path("said") + " 2>&1").c_str());
    }

    bool has(const std::string& program) const { return shell("command -v " + program) == 0; }

    std::string completed(const std::string& words) const
    {
        EXPECT_EQ(shell("tintvert completions bash > c; . ./c\nCOMP_WORDS=(" + words +
                        ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_tintvert || true\necho \"${COMPREPLY[@]}\""),
                  0)
            << load("said");
        return load("said");
    }
};

TEST_F(Shell, completions_are_sound)
{
    for (const std::string name : {"bash", "zsh", "fish"}) {
        if (!has(name)) continue;
        EXPECT_EQ(shell("tintvert completions " + name + " > c; " + name + " -n c"), 0) << load("said");
    }
    EXPECT_EQ(run({"completions", "csh"}).code, 2);
}

TEST_F(Shell, bash_completes)
{
    EXPECT_EQ(completed("tintvert comp"), "compare completions\n");
    EXPECT_EQ(completed("tintvert show tntvt_yuv422_rgb"), "tntvt_yuv422_rgb24 tntvt_yuv422_rgb16\n");
    EXPECT_EQ(completed("tintvert view file --layout v2"), "v210\n");
    EXPECT_EQ(completed("tintvert view file --color a"), "auto always\n");
    EXPECT_EQ(completed("tintvert view file --as s"), "symbols sixels\n");
    EXPECT_EQ(completed("tintvert convert --format p"), "png ppm pam\n");
    EXPECT_EQ(completed("tintvert list yc"), "ycbcr8 ycbcr10\n");
    EXPECT_EQ(completed("tintvert compare --pic"), "--picture\n");
    save("frame.v210", "");
    EXPECT_EQ(completed("tintvert view fra"), "frame.v210\n");
}

// In a folder of $fpath, zsh runs the file as the body of _tintvert when it first completes.
TEST_F(Shell, zsh_completes_at_first_sight)
{
    if (!has("zsh")) GTEST_SKIP() << "skipped: zsh not found";
    EXPECT_EQ(shell("tintvert completions zsh > _tintvert\n"
                    "zsh -fc 'fpath=($PWD); autoload -Uz _tintvert; compadd() { echo $* }\n"
                    "words=(tintvert view file --color \"\"); CURRENT=5; _tintvert; _tintvert'"),
              0);
    EXPECT_EQ(load("said"), "-- auto always never\n-- auto always never\n");
}

TEST_F(Shell, fish_completes)
{
    if (!has("fish")) GTEST_SKIP() << "skipped: fish not found";
    EXPECT_EQ(shell("tintvert completions fish > c\nHOME=$PWD fish -c 'source c; complete -C \"tintvert layouts v2\"'"),
              0);
    EXPECT_TRUE(load("said").starts_with("v210")) << load("said");
}

TEST_F(Shell, manual_pages_are_sound)
{
    if (!has("groff")) GTEST_SKIP() << "skipped: groff not found";
    const std::string check =
        " | groff -ww -man -Tutf8 > page 2> warnings; cat warnings; test -s page; test ! -s warnings\n";
    EXPECT_EQ(shell("tintvert man" + check), 0) << load("said");
    for (const char* command : {"bits", "capture", "compare", "completions", "convert", "demo", "explain", "guess",
                                "layouts", "list", "man", "names", "show", "st2084", "verify", "view"}) {
        EXPECT_EQ(shell("tintvert man " + std::string(command) + check), 0) << command << load("said");
        EXPECT_NE(run({"man"}).out.find(".B " + std::string(command) + "\n"), std::string::npos) << command;
    }
    EXPECT_NE(run({"man", "compare"}).out.find(".B \\-\\-picture FILE\n"), std::string::npos);
    EXPECT_EQ(run({"man", "comare"}).err, "tintvert: there is no command 'comare'; did you mean 'compare'?\n");
}

TEST_F(Shell, examples_of_the_docs_run)
{
    std::ifstream page(TINTVERT_PROJECT "/docs/inspect.md");
    std::string examples;
    bool inside = false;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("```"))
            inside = line == "```sh";
        else if (inside)
            examples += line + "\n";
    }
    EXPECT_GE(std::count(examples.begin(), examples.end(), '\n'), 20);
    EXPECT_EQ(shell("set -o pipefail\n" + examples), 0) << load("said");
    for (const char* file : {"diff.png", "card.png", "tintvert.bash", "tintvert-compare.1"})
        EXPECT_TRUE(std::filesystem::file_size(path(file)) > 0) << file;
}

}  // namespace
}  // namespace tintvert::test
