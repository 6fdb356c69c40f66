// What makes no sense, for every command: one line, the exit code of the docs, nothing on stdout and no file.
#include <fcntl.h>
#include <unistd.h>

#include "tool/noise.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

struct Wrong {
    std::vector<std::string> words;  // a word that begins with @ is a file in the test's folder
    int code;
    std::string hint = {};  // what the line has to say
};

class EveryCommand : public ToolTest {
protected:
    void SetUp() override
    {
        save("empty", "");
        save("frame", noise(1, 64));
        save("truncated", noise(2, 63));
        save("two", noise(3, 128));
        save("empty.png", "");
        save("truncated.png", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR");
        save("truncated.ppm", "P6\n4 2\n255\nabc");
        save("huge.ppm", "P6\n2147483648 2147483648\n255\n");
        save("truncated.bmp", "BM");
        save("truncated.y4m", "YUV4MPEG2 W4 H2 F25:1\nFRAME\nabc");
        save("huge.y4m", "YUV4MPEG2 W4294967297 H4294967297 F25:1\n");
        save("truncated.mov", std::string("\0\0\0\x14"
                                          "ftypqt  ",
                                          12));
        std::filesystem::create_directory(path("folder"));
        save("huge", "");
        std::filesystem::resize_file(path("huge"), uintmax_t{1} << 40);
        before_ = files_in("");
    }

    std::vector<std::string> placed(std::vector<std::string> words) const
    {
        for (std::string& word : words)
            if (word.starts_with('@')) word = path(word.substr(1));
        return words;
    }

    void expect_all(const std::vector<Wrong>& table) const
    {
        for (const Wrong& wrong : table) {
            std::string line;
            for (const std::string& word : wrong.words) line += word + ' ';
            const Result result = run(placed(wrong.words), [] { dup2(open("/dev/null", O_RDONLY), STDIN_FILENO); });
            EXPECT_EQ(result.code, wrong.code) << line << result.err;
            EXPECT_TRUE(result.has_one_line_of_error()) << line << result.err;
            EXPECT_NE(result.err.find(wrong.hint), std::string::npos) << line << result.err;
            EXPECT_EQ(result.out, "") << line;
            EXPECT_EQ(files_in(""), before_) << line;
        }
    }

    std::set<std::string> before_;
};

TEST_F(EveryCommand, wrong_names)
{
    expect_all({
        {{"lists"}, 2},
        {{"list", "decod"}, 2, "'decode'"},
        {{"show", "tntvt_v210_2vu"}, 2, "'tntvt_v210_2vuy'"},
        {{"show"}, 2},
        {{"layouts", "v211"}, 2, "'v210'"},
        {{"explain", "v210_2vuy_", "-s", "8x4"}, 2, "'tntvt_v210_2vuy'"},
        {{"explain", "tntvt_flip_vert", "-s", "8x4", "-l", "rgb33"}, 2, "'rgb32'"},
        {{"verify", "tntvt_v210_2vu"}, 2, "'tntvt_v210_2vuy'"},
        {{"view", "@frame", "-l", "2vuz", "-s", "8x4"}, 2, "'2vuy'"},
        {{"bits", "@frame", "-l", "2vuz", "-s", "8x4", "--at", "0,0"}, 2, "'2vuy'"},
        {{"compare", "@frame", "@frame", "-l", "2vuz", "-s", "8x4"}, 2, "'2vuy'"},
        {{"convert", "tntvt_2vuy_v21", "@frame", "@out", "-s", "8x4"}, 2, "'tntvt_2vuy_v210'"},
        {{"convert", "--from", "2vuz", "--to", "v210", "@frame", "@out", "-s", "8x4"}, 2, "'2vuy'"},
        {{"convert", "tntvt_flip_vert", "@frame", "@out", "-s", "8x4", "--layout", "2vuz"}, 2, "'2vuy'"},
        {{"st2084", "--table", "RGB_to_SMPTE2048_10Bi", "--png", "@out.png"}, 2},
        {{"completions", "tcsh"}, 2},
        {{"man", "compar"}, 2},
    });
}

TEST_F(EveryCommand, files_that_cannot_be_read)
{
    std::vector<Wrong> table;
    for (const char* file : {"@missing", "@folder", "@empty.png", "@truncated.png", "@truncated.ppm", "@truncated.bmp",
                             "@truncated.y4m", "@truncated.mov", "@frame/below"}) {
        for (const std::vector<std::string>& command :
             {std::vector<std::string>{"view", file, "-l", "rgb32", "-o", "@out.png"},
              {"bits", file, "--at", "0,0", "-l", "rgb32"},
              {"compare", file, file, "-l", "rgb32"},
              {"convert", file, "@out", "--to", "rgb32"}})
            table.push_back({command, 3});
    }
    table.push_back({{"capture", "@missing", "@out", "-s", "8x4"}, 3});
    table.push_back({{"capture", "@empty", "@out", "-s", "8x4"}, 3});
    table.push_back({{"capture", "@frame", "@out", "-s", "8x4"}, 3});
    table.push_back({{"capture", "@folder", "@out", "-s", "8x4"}, 3});
    table.push_back({{"guess", "@missing"}, 3});
    table.push_back({{"guess", "@empty"}, 3});
    table.push_back({{"guess", "@folder"}, 3});
    table.push_back({{"demo", "--input", "@missing.png", "--output", "@out"}, 3});
    table.push_back({{"demo", "--input", "@truncated.png", "--output", "@out"}, 3});
    for (Wrong& wrong : table)  // it is truncated within a frame, and has no RGB
        if (wrong.words[1] == "@truncated.y4m") wrong.code = wrong.words[0] == "convert" ? 4 : 2;
    expect_all(table);
}

TEST_F(EveryCommand, files_of_another_length_and_absurd_sizes)
{
    std::vector<Wrong> table;
    const auto each = [&](const char* file, const char* size, int code) {
        table.push_back({{"view", file, "-l", "2vuy", "-s", size, "-o", "@out.png"}, code});
        table.push_back({{"bits", file, "-l", "2vuy", "-s", size, "--at", "0,0"}, code});
        table.push_back({{"compare", file, file, "-l", "2vuy", "-s", size}, code});
        table.push_back({{"convert", "--from", "2vuy", "--to", "v210", file, "@out", "-s", size, "-q"}, code});
        table.push_back({{"convert", "tntvt_2vuy_v210", file, "@out", "-s", size, "-q"}, code});
    };
    for (const char* file : {"@empty", "@truncated", "@huge"}) each(file, "12x5", 4);
    for (const char* size : {"0x4", "-8x4", "2147483648x1", "1x2147483648", "65536x65536", "4294967296x4294967296",
                             "99999999999999999999x4"}) {
        each("@frame", size, 4);
        table.push_back({{"explain", "tntvt_2vuy_v210", "-s", size}, 4});
        table.push_back({{"capture", "@frame", "@out", "-s", size}, 4});
    }
    for (const char* size : {"", "8", "8x", "8x4x2"}) {
        if (*size != '\0') each("@frame", size, 2);
        table.push_back({{"explain", "tntvt_2vuy_v210", "-s", size}, 2});
        table.push_back({{"capture", "@frame", "@out", "-s", size}, 2});
    }
    table.push_back({{"compare", "@frame", "@two", "-l", "2vuy", "-s", "8x4"}, 4, "differ in length"});
    table.push_back({{"view", "@huge.ppm"}, 4});
    table.push_back({{"view", "@huge.y4m"}, 3});
    expect_all(table);
}

TEST_F(EveryCommand, what_cannot_be_written)
{
    for (const char* out : {"@none/out.png", "@frame/out.png", "@folder"}) {
        expect_all({{{"view", "@frame", "-l", "2vuy", "-s", "8x4", "-o", out}, 3},
                    {{"convert", "--from", "2vuy", "--to", "rgb24", "@frame", out, "-s", "8x4", "-q"}, 3},
                    {{"compare", "@frame", "@frame", "-l", "2vuy", "-s", "8x4", "--picture", out}, 3},
                    {{"st2084", "--table", "RGB_to_SMPTE2048_10Bit", "--png", out}, 3}});
    }
    expect_all({{{"demo", "--output", "@frame/folder"}, 3}});
}

// Into a device without room, and into a pipe that nobody reads.
TEST_F(EveryCommand, nobody_takes_what_is_printed)
{
    const std::vector<std::vector<std::string>> commands = {
        {"list"},
        {"list", "--json"},
        {"show", "tntvt_v210_2vuy"},
        {"layouts"},
        {"names", "uyvy"},
        {"explain", "tntvt_v210_2vuy", "-s", "8x4"},
        {"view", "@frame", "-l", "2vuy", "-s", "8x4"},
        {"bits", "@frame", "-l", "2vuy", "-s", "8x4", "--at", "0,0"},
        {"compare", "@frame", "@frame", "-l", "2vuy", "-s", "8x4"},
        {"guess", "@frame"},
        {"convert", "--from", "2vuy", "--to", "v210", "@frame", "-", "-s", "8x4", "-q"},
        {"completions", "bash"},
        {"man"},
        {"--help"},
        {"--version"}};
    for (const std::vector<std::string>& words : commands) {
        const Result full = run(placed(words), [] { dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO); });
        const Result broken = run(placed(words), [] {
            int ends[2];
            if (pipe(ends) == 0) dup2(ends[1], STDOUT_FILENO), close(ends[0]), close(ends[1]);
        });
        for (const Result& result : {full, broken}) {
            EXPECT_EQ(result.code, 3) << words[0] << ' ' << result.err;
            EXPECT_TRUE(result.has_one_line_of_error()) << words[0] << ' ' << result.err;
        }
    }
    EXPECT_EQ(files_in(""), before_);
}

}  // namespace
}  // namespace tintvert::test
