// Every example of the docs is run as it is written: the commands of a fence succeed, and print what the fence after
// them shows.
#include <sys/wait.h>

#include <cstdlib>
#include <sstream>

#include "support/packet_maker.h"
#include "tool/noise.h"
#include "tool/png_maker.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

struct Example {
    std::string commands, output;  // no output where none is shown
};

std::vector<Example> examples_in(const std::string& page)
{
    std::ifstream file(std::string(TINTVERT_PROJECT "/") + page);
    std::vector<Example> examples;
    std::string fence;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("```")) {
            const bool opens = fence.empty();
            fence = opens ? line.substr(3) : "";
            if (opens && fence == "sh") examples.emplace_back();
            if (opens && fence.empty()) fence = "plain";
        } else if (fence == "sh") {
            examples.back().commands += line + '\n';
        } else if (fence == "text" && !examples.empty()) {
            examples.back().output += line + '\n';
        }
    }
    return examples;
}

std::string run_length_coded_bmp()
{
    const std::string head("BM\0\0\0\0\0\0\0\0\x36\4\0\0\x28\0\0\0\3\0\0\0\2\0\0\0\1\0\x8\0\1\0\0\0", 34);
    return head + std::string(20, '\0') + noise(1, 1024) + std::string("\3\1\0\0\0\3\2\3\4\0\0\1", 12);
}

bool has_ffmpeg() { return std::system("command -v ffmpeg >/dev/null") == 0; }
bool reads_clips() { return run({"--version"}).out.find("MOV and AVI: read") != std::string::npos; }

class Docs : public ToolTest {
protected:
    // The files that the examples read.
    void SetUp() override
    {
        save("photo.png", make_png(PngKind{}, 64, 48));
        save("clip.2vuy", noise(2, 3 * 1920 * 1080 * 2));
        save("clip.v210", noise(3, 3 * 5120 * 1080));
        for (const char* again : {"again.v210", "clip_1920x1080_25.v210"})
            std::filesystem::create_hard_link(path("clip.v210"), path(again));
        save("padded.v210", noise(4, 3456 * 720));
        save("clip.y4m", "YUV4MPEG2 W1920 H1080 F25:1 Ip A1:1 C420jpeg\nFRAME\n" + noise(5, 1920 * 1080 * 3 / 2));
        save("picture.bmp", run_length_coded_bmp());
        save("video.pcap", framed(Sender{{1920, 1080}, 250}.frames(1)));
        if (!has_ffmpeg() || !reads_clips()) return;
        const std::string words =
            "ffmpeg -v error -f lavfi -i testsrc=s=64x48 -frames:v 2 -c:v v210 " + path("clip.mov") + " </dev/null";
        ASSERT_EQ(std::system(words.c_str()), 0);
    }

    void run_example(const Example& example) const
    {
        std::istringstream lines(example.commands);
        std::string script;
        for (std::string line; std::getline(lines, line);) {
            if (line.find("ffmpeg") != std::string::npos && !has_ffmpeg()) continue;
            if (line.find(".mov") != std::string::npos && !files_in("").contains("clip.mov")) continue;
            script += line + '\n';
        }
        save("example.sh", "set -euo pipefail\n" + script);
        const std::string tool = std::filesystem::path(TINTVERT_TOOL).parent_path();
        const std::string shell =
            "cd " + path("") + " && PATH=" + tool + ":$PATH bash example.sh >printed 2>&1 </dev/null";
        const int status = std::system(shell.c_str());
        EXPECT_EQ(WEXITSTATUS(status), 0) << script << load("printed");
        if (!example.output.empty()) {
            EXPECT_EQ(load("printed"), example.output) << script;
        }
    }
};

TEST_F(Docs, the_page_of_the_tool)
{
    const std::vector<Example> examples = examples_in("docs/tool.md");
    EXPECT_GT(examples.size(), 8u);
    for (const Example& example : examples) run_example(example);
}

// Those of the tool; the others build it.
TEST_F(Docs, the_readme)
{
    int found = 0;
    for (const Example& example : examples_in("README.md")) {
        if (!example.commands.starts_with("tintvert ")) continue;
        run_example({example.commands, ""});
        ++found;
    }
    EXPECT_GE(found, 1);
}

}  // namespace
}  // namespace tintvert::test
