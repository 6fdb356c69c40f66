// Frames through stdin and stdout, at strides of their own, in parallel, and in the files of pictures.
#include <fcntl.h>
#include <unistd.h>

#include "catalog.h"
#include "geometry.h"
#include "support/random.h"
#include "tool/pam.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using Streams = ToolTest;

std::string noise(uint64_t seed, size_t count)
{
    const auto bytes = Random(seed).bytes(count);
    return {bytes.begin(), bytes.end()};
}

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

// Output that nobody reads is a failed write, told in one line.
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

TEST_F(Streams, a_full_disk)
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

TEST_F(Streams, what_cannot_be_written)
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

TEST_F(Streams, absurd_geometry)
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

std::string with_lines(const std::string& tight, size_t line, size_t stride)
{
    std::string wide;
    for (size_t at = 0; at < tight.size(); at += line) wide += tight.substr(at, line) + std::string(stride - line, '#');
    return wide;
}

TEST_F(Streams, lines_with_slack)
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
TEST_F(Streams, padded_v210_for_a_routine_that_knows_no_lines)
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

TEST_F(Streams, v210_at_other_strides)
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

// On a terminal a bar tells frames, frames a second and the time left; not for --quiet.
TEST_F(Streams, progress_on_a_terminal)
{
    save("in.2vuy", noise(14, 64 * 20));
    const auto shown = [&](const std::string& more) {
        const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
        EXPECT_EQ(grantpt(terminal), 0);
        EXPECT_EQ(unlockpt(terminal), 0);
        const int side = open(ptsname(terminal), O_RDWR | O_NOCTTY);
        std::vector<std::string> words{"convert", "tntvt_2vuy_v210", path("in.2vuy"), path("out"), "-s", "8x4"};
        if (!more.empty()) words.push_back(more);
        EXPECT_EQ(run(words, [&] { dup2(side, STDERR_FILENO); }).code, 0);
        EXPECT_EQ(write(side, "!", 1), 1);
        char text[4096];
        std::string all;
        while (!all.ends_with('!')) {
            const ssize_t got = read(terminal, text, sizeof text);
            if (got < 1) break;
            all.append(text, static_cast<size_t>(got));
        }
        close(side);
        close(terminal);
        return all;
    };
    const std::string bar = shown("");
    EXPECT_NE(bar.find("[########################################] 20/20 frames"), std::string::npos) << bar;
    EXPECT_NE(bar.find(" fps "), std::string::npos);
    EXPECT_NE(bar.find(" s left"), std::string::npos);
    EXPECT_EQ(shown("--quiet"), "!");
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
    while (files_in("").empty()) usleep(1000);  // the unfinished file
    kill(process.pid(), SIGINT);
    EXPECT_EQ(process.wait().code, 130);
    EXPECT_EQ(files_in(""), std::set<std::string>());
    close(ends[0]);
    close(ends[1]);
}

TEST_F(Streams, pictures_of_8_and_16_bits_come_back)
{
    for (const unsigned highest : {255u, 65535u}) {
        Pam picture{5, 3, highest, true, {}};
        for (const uint8_t byte : Random(14).bytes(5 * 3 * 4))
            picture.samples.push_back(highest == 255 ? byte : byte * 257u ^ 0x77u);
        save("in.pam", make_pam(picture));
        for (const char* format : {"pam", "png", "bmp"}) {
            if (highest > 255 && std::string(format) == "bmp") continue;
            const std::string file = path("picture.") + format;
            ASSERT_EQ(run({"convert", path("in.pam"), file, "--alpha", "-q"}).code, 0) << format;
            ASSERT_EQ(run({"convert", file, path("back.pam"), "--alpha", "-q"}).code, 0) << format;
            EXPECT_TRUE(load("back.pam") == load("in.pam")) << format << highest;
        }
        for (const char* format : {"ppm", "bmp"}) {
            if (highest > 255 && std::string(format) == "bmp") continue;
            const std::string file = path("picture.") + format;
            ASSERT_EQ(run({"convert", path("in.pam"), file, "-q"}).code, 0) << format;
            ASSERT_EQ(run({"convert", file, path("back.pam"), "-q"}).code, 0) << format;
            ASSERT_EQ(run({"convert", path("in.pam"), path("opaque.pam"), "-q"}).code, 0);
            EXPECT_TRUE(load("back.pam") == load("opaque.pam")) << format << highest;
        }
    }
    const Result deep = run({"convert", path("in.pam"), path("deep.bmp"), "--to", "rgba64"});
    EXPECT_EQ(deep.code, 2);
    EXPECT_NE(deep.err.find("holds 8 bits"), std::string::npos) << deep.err;
}

TEST_F(Streams, a_ppm_byte_for_byte)
{
    save("in.ppm", std::string("P6 # two pixels\n2 1\n255\nRGBrgb"));
    ASSERT_EQ(run({"convert", "--to", "rgb24", path("in.ppm"), path("out"), "-q"}).code, 0);
    EXPECT_EQ(load("out"), "BGRbgr");
    ASSERT_EQ(run({"convert", "--from", "rgb24", path("out"), path("back.ppm"), "-s", "2x1", "-q"}).code, 0);
    EXPECT_EQ(load("back.ppm"), "P6\n2 1\n255\nRGBrgb");
    save("in.ppm", std::string("P6 1 1 31\n\x1f\x0f\x00", 13));
    ASSERT_EQ(run({"convert", "--to", "rgb24", path("in.ppm"), path("out"), "-q"}).code, 0);
    EXPECT_EQ(load("out"), std::string("\x00\x7b\xff", 3));
    ASSERT_EQ(run({"convert", "--from", "rgb48", "--to", "rgb48", path("out"), path("deep.ppm"), "-s", "1x1"}).code, 4);
    save("deep", "\1\2\3\4\5\6");
    ASSERT_EQ(run({"convert", "--from", "rgb48", path("deep"), path("deep.ppm"), "-s", "1x1", "-q"}).code, 0);
    EXPECT_EQ(load("deep.ppm"), "P6\n1 1\n65535\n\6\5\4\3\2\1");
}

TEST_F(Streams, several_pictures_in_one_stream)
{
    const std::string one = "P6\n2 1\n255\nabcdef", two = "P6\n2 1\n255\nghijkl";
    save("two.ppm", one + two);
    ASSERT_EQ(run({"convert", "--to", "bgr24", path("two.ppm"), path("out"), "-q"}).code, 0);
    EXPECT_EQ(load("out"), "abcdefghijkl");
    ASSERT_EQ(run({"convert", "--from", "bgr24", path("out"), path("again.ppm"), "-s", "2x1", "-q"}).code, 0);
    EXPECT_EQ(load("again.ppm"), one + two);
    save("two.ppm", one + "P6\n1 1\n255\nabc");
    EXPECT_EQ(run({"convert", "--to", "bgr24", path("two.ppm"), path("bad"), "-q"}).code, 3);
    EXPECT_FALSE(files_in("").contains("bad"));
}

TEST_F(Streams, broken_pictures)
{
    const auto code = [&](const char* name, const std::string& bytes) {
        save(name, bytes);
        const Result result = run({"convert", "--to", "rgb24", path(name), path("out"), "-q"});
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_FALSE(files_in("").contains("out"));
        return result.code;
    };
    for (const std::string bytes : {"", "P", "P5 1 1 255\nx", "P6", "P6 1", "P6 x 1 255\nabc", "P6 1 1 0\nabc",
                                    "P6 1 1 65536\nabc", "P6 1 1 255\nab", "P6 -1 1 255\nabc"})
        EXPECT_EQ(code("a.ppm", bytes), 3) << bytes;
    EXPECT_EQ(code("a.ppm", "P6 0 1 255\n"), 4);
    EXPECT_EQ(code("a.ppm", "P6 2000000000 2000000000 255\n"), 4);
    EXPECT_EQ(code("a.pam", "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 1\nMAXVAL 255\nTUPLTYPE GRAYSCALE\nENDHDR\nx"), 3);
    EXPECT_EQ(code("a.pam", "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 9\nMAXVAL 255\nENDHDR\nx"), 3);
    EXPECT_EQ(code("a.pam", "P7\nWIDTH 1\n"), 3);
    for (const std::string& bytes :
         {std::string(), std::string("BM"), std::string(200, 'B'), "BM" + std::string(60, '\0')})
        EXPECT_EQ(code("a.bmp", bytes), 3);
}

TEST_F(Streams, files_that_do_not_fit_what_is_asked)
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
