// Frames through stdin and stdout, in parallel, with progress on a terminal.
#include <sched.h>
#include <unistd.h>

#include "tool/noise.h"
#include "tool/pam.h"
#include "tool/terminal.h"

namespace tintvert::test {
namespace {

using Streams = ToolTest;

// Runs the tool with `input` coming through a pipe, whose length nobody knows.
Result run_piped(const std::vector<std::string>& words, const std::string& input)
{
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t feeder = fork();
    if (feeder == 0) {
        close(ends[0]);
        signal(SIGPIPE, SIG_IGN);
        for (size_t at = 0; at < input.size();) {
            const ssize_t written = write(ends[1], input.data() + at, input.size() - at);
            if (written < 1) break;
            at += static_cast<size_t>(written);
        }
        _exit(0);
    }
    close(ends[1]);
    const Result result = run(words, [&] { dup2(ends[0], STDIN_FILENO); });
    close(ends[0]);
    waitpid(feeder, nullptr, 0);
    return result;
}

TEST_F(Streams, raw_frames_from_stdin_to_stdout)
{
    const std::string frames = noise(1, 5 * 48 * 4 * 2);
    save("in.2vuy", frames);
    ASSERT_EQ(run({"convert", "--from", "2vuy", "--to", "v210", path("in.2vuy"), path("out"), "-s", "48x4"}).code, 0);
    const Result result = run_piped({"convert", "--from", "2vuy", "--to", "v210", "-", "-", "-s", "48x4"}, frames);
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_TRUE(result.out == load("out"));
    const Result some = run_piped({"convert", "tntvt_2vuy_v210", "-", "-", "-s", "48x4", "--frames", "1:3"}, frames);
    EXPECT_EQ(some.code, 0) << some.err;
    EXPECT_TRUE(some.out == load("out").substr(128 * 4, 2 * 128 * 4));
    const Result offset =
        run_piped({"convert", "tntvt_2vuy_v210", "-", "-", "-s", "48x4", "--offset", "3"}, "abc" + frames);
    EXPECT_TRUE(offset.out == load("out"));
}

TEST_F(Streams, a_pipe_that_ends_early)
{
    const std::string frames = noise(2, 2 * 48 * 4 * 2);
    const auto convert = [&](const std::string& input, const std::vector<std::string>& more = {}) {
        std::vector<std::string> words{"convert", "--from",    "2vuy", "--to", "v210",
                                       "-",       path("out"), "-s",   "48x4", "-q"};
        words.insert(words.end(), more.begin(), more.end());
        const Result result = run_piped(words, input);
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_EQ(files_in(""), std::set<std::string>());
        return result.code;
    };
    EXPECT_EQ(convert(""), 4);
    EXPECT_EQ(convert(frames.substr(1)), 4);
    EXPECT_EQ(convert(frames, {"--frames", "2"}), 4);
    EXPECT_EQ(convert(frames, {"--frames", "1:4"}), 4);
    EXPECT_EQ(convert(frames, {"--offset", "10000"}), 4);
}

TEST_F(Streams, y4m_on_stdin_is_recognised)
{
    const std::string one = noise(3, 8 * 4 * 3 / 2), two = noise(4, 8 * 4 * 3 / 2);
    const std::string clip = "YUV4MPEG2 W8 H4 F30:1 It A1:1 C420jpeg\nFRAME\n" + one + "FRAME\n" + two;
    const Result result = run_piped({"convert", "--to", "i420", "-", "-"}, clip);
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_TRUE(result.out == one + two);
    const Result again = run_piped({"convert", "--format", "y4m", "-", "-"}, clip);
    EXPECT_TRUE(again.out == clip);
    const Result rgb = run_piped({"convert", "-", "-", "--format", "pam"}, clip);
    EXPECT_EQ(rgb.code, 0) << rgb.err;
    EXPECT_EQ(parse_pam(rgb.out).width, 8u);
    EXPECT_EQ(run_piped({"convert", "--to", "i420", "-", "-"}, clip.substr(0, clip.size() - 1)).code, 4);
}

TEST_F(Streams, stdout_needs_to_know_what)
{
    save("in.2vuy", noise(5, 64));
    const std::vector<std::string> words{"convert", "--from", "2vuy", path("in.2vuy"), "-", "-s", "8x4"};
    EXPECT_EQ(run(words).code, 2);
    std::vector<std::string> json = words;
    json.insert(json.end(), {"--to", "v210", "--json"});
    EXPECT_EQ(run(json).code, 2);
    std::vector<std::string> raw = words;
    raw.insert(raw.end(), {"--format", "raw"});
    EXPECT_EQ(run(raw).code, 2);
}

// Output that nobody reads is a failed write, reported in one line.
TEST_F(Streams, a_broken_pipe)
{
    save("in.2vuy", noise(6, 64 * 64 * 2 * 40));
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    const Result result = run({"convert", "--from", "2vuy", "--to", "v210", path("in.2vuy"), "-", "-s", "64x64", "-q"},
                              [&] { dup2(ends[1], STDOUT_FILENO); });
    close(ends[1]);
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.err, "tintvert: cannot write standard output: Broken pipe\n");
}

TEST_F(Streams, any_number_of_jobs_gives_the_same_bytes)
{
    save("in.2vuy", noise(12, 96 * 32 * 2 * 50));
    std::string expected;
    for (const char* jobs : {"1", "2", "3", "16"}) {
        const Result result = run({"convert", "--from", "2vuy", "--to", "rgb24", path("in.2vuy"), path("out"), "-s",
                                   "96x32", "--jobs", jobs});
        ASSERT_EQ(result.code, 0) << result.err;
        if (expected.empty()) expected = load("out");
        EXPECT_EQ(expected.size(), 96u * 32 * 3 * 50);
        EXPECT_TRUE(load("out") == expected) << jobs;
    }
}

// No terminal, no progress.
TEST_F(Streams, progress_stays_off_files)
{
    save("in.2vuy", noise(13, 64 * 20));
    EXPECT_EQ(run({"convert", "tntvt_2vuy_v210", path("in.2vuy"), path("out"), "-s", "8x4"}).err, "");
}

// On a terminal a bar shows frames, frames a second and the time left; not for --quiet.
TEST_F(Streams, progress_on_a_terminal)
{
    save("in.2vuy", noise(14, 64 * 20));
    const auto shown = [&](const std::string& more) {
        std::vector<std::string> words{"convert", "tntvt_2vuy_v210", path("in.2vuy"), path("out"), "-s", "8x4"};
        if (!more.empty()) words.push_back(more);
        return shown_on_a_terminal(words, STDERR_FILENO);
    };
    const std::string bar = shown("");
    EXPECT_NE(bar.find("[########################################] 20/20 frames"), std::string::npos) << bar;
    EXPECT_NE(bar.find(" fps "), std::string::npos);
    EXPECT_NE(bar.find(" s left"), std::string::npos);
    EXPECT_EQ(shown("--quiet"), "");
}

// An interrupted conversion leaves no file.
TEST_F(Streams, interrupted)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    Process process({"convert", "--from", "2vuy", "--to", "v210", "-", path("out"), "-s", "8x4", "-q"},
                    [&] { dup2(ends[0], STDIN_FILENO); });
    const std::string frame = noise(15, 64);
    ASSERT_EQ(write(ends[1], frame.data(), frame.size()), 64);
    while (files_in("").empty() && process.is_running()) sched_yield();  // until the unfinished file is there
    ASSERT_TRUE(process.is_running());
    kill(process.pid(), SIGINT);
    EXPECT_EQ(process.wait().code, 130);
    EXPECT_EQ(files_in(""), std::set<std::string>());
    close(ends[0]);
    close(ends[1]);
}

}  // namespace
}  // namespace tintvert::test
