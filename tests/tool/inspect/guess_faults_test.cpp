// guess; and what the commands that read raw frames say of files and sizes that make no sense.
#include <sys/resource.h>

#include <nlohmann/json.hpp>

#include "tool/raw_frames.h"

namespace tintvert::test {
namespace {

using Json = nlohmann::json;

class Guessing : public ToolTest {};

// Smooth pictures: slopes that differ by component.
int64_t slope(std::string_view component, int64_t x, int64_t y)
{
    return component == "Y" || component == "G"    ? 40 + x + y / 2
           : component == "Cb" || component == "B" ? 100 + x / 4
                                                   : 180 - y / 4;
}

TEST_F(Guessing, name_and_length)
{
    save("clip_96x54_25.v210", raw_frame("v210", 96, 54, slope) + raw_frame("v210", 96, 54, slope));
    const Result result = run({"guess", path("clip_96x54_25.v210"), "--json"});
    EXPECT_EQ(result.code, 0) << result.err;
    const Json best = Json::parse(result.out)["guesses"][0];
    EXPECT_EQ(best["layout"], "v210");
    EXPECT_EQ(best["width"], 96);
    EXPECT_EQ(best["height"], 54);
    EXPECT_EQ(best["frames"], 2);
    EXPECT_TRUE(best["same_bytes"].is_array());
}

TEST_F(Guessing, nothing_fits)
{
    save("empty", "");
    save("odd", std::string(7, 'a'));
    for (const char* name : {"empty", "odd", "missing"}) {
        const Result result = run({"guess", path(name)});
        EXPECT_EQ(result.code, 3) << name;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_EQ(result.out, "");
    }
}

// What has no length leaves nothing to go by.
TEST_F(Guessing, a_pipe)
{
    const Result result = run({"guess", "-"}, [] {
        int ends[2];
        if (pipe(ends) != 0) return;
        close(ends[1]);
        dup2(ends[0], STDIN_FILENO);
    });
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err,
              "tintvert: guess needs the length of a file, and that of standard input is not known: save it as a file "
              "first\n");
    EXPECT_EQ(result.out, "");
}

class Faults : public ToolTest {
protected:
    // compare, view and bits with the same complaint.
    void expect(int code, const std::string& file, const std::vector<std::string>& more) const
    {
        const std::vector<std::vector<std::string>> commands = {{"compare", path(file), path(file)},
                                                                {"view", path(file), "-o", path("out.png")},
                                                                {"bits", path(file), "--at", "0,0"}};
        for (std::vector<std::string> arguments : commands) {
            arguments.insert(arguments.end(), more.begin(), more.end());
            const Result result = run(arguments);
            EXPECT_EQ(result.code, code) << arguments[0] << ": " << result.err;
            EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
            EXPECT_EQ(result.out, "");
            EXPECT_FALSE(files_in("").contains("out.png"));
        }
    }
};

TEST_F(Faults, files)
{
    save("empty", "");
    save("short", std::string(31, 'a'));
    std::filesystem::create_directory(path("folder"));
    for (const char* file : {"empty", "short"}) expect(4, file, {"-l", "2vuy", "-s", "4x4"});
    for (const char* file : {"missing", "folder"}) expect(3, file, {"-l", "2vuy", "-s", "4x4"});
}

TEST_F(Faults, sizes_and_names)
{
    save("file", std::string(32, 'a'));
    for (const char* size :
         {"0x4", "4x0", "-4x4", "2147483648x1", "1x2147483648", "65536x65536", "99999999999999999999x1"})
        expect(4, "file", {"-l", "2vuy", "-s", size});
    for (const char* size : {"", "4", "x4", "4x", "4x4x4", "4 x 4", "fourxfour"})
        expect(2, "file", {"-l", "2vuy", "-s", size});
    expect(4, "file", {"-l", "i420", "-s", "5x4"});
    expect(4, "file", {"-l", "2vuy", "-s", "4x4", "--stride", "7"});
    expect(4, "file", {"-l", "2vuy", "-s", "4x4", "--stride", "9223372036854775807"});
    expect(4, "file", {"-l", "2vuy", "-s", "4x4", "--stride", "-8"});
    expect(4, "file", {"-l", "2vuy", "-s", "4x4", "--offset", "9223372036854775807"});
    expect(2, "file", {"-l", "2vyu", "-s", "4x4"});
    expect(2, "file", {"-l", "rle8", "-s", "4x4"});
    expect(2, "file", {"-l", "rgb10:middle", "-s", "4x2"});
    expect(2, "file", {"-s", "4x4"});
    EXPECT_NE(run({"view", path("file"), "-l", "2vyu", "-s", "4x4"}).err.find("did you mean '2vuy'?"),
              std::string::npos);
}

TEST_F(Faults, pictures_that_cannot_be_written)
{
    save("one", std::string(32, 'a'));
    save("other", std::string(32, 'b'));
    const auto compare = [&](const std::string& picture, const std::function<void()>& in_child = {}) {
        return run({"compare", path("one"), path("other"), "-l", "2vuy", "-s", "4x4", "--picture", picture}, in_child);
    };
    for (const Result& result : {compare(path("nowhere/diff.png")), compare(path("diff.png"), [] {
                                     const rlimit none{16, 16};
                                     setrlimit(RLIMIT_FSIZE, &none);
                                 })}) {
        EXPECT_EQ(result.code, 3) << result.err;
        EXPECT_EQ(result.out, "");
    }
    EXPECT_EQ(files_in("").size(), 2u);
}

TEST_F(Faults, stdout_full_or_closed)
{
    save("file", std::string(32, 'a'));
    const std::vector<std::vector<std::string>> commands = {
        {"compare", path("file"), path("file"), "-l", "2vuy", "-s", "4x4"},
        {"view", path("file"), "-l", "2vuy", "-s", "4x4"},
        {"bits", path("file"), "-l", "2vuy", "-s", "4x4", "--at", "0,0"},
        {"names", "uyvy"},
        {"explain", "tntvt_2vuy_v210", "-s", "4x4"},
        {"completions", "bash"},
        {"man"}};
    for (const auto& command : commands) {
        const Result full = run(command, [] {
            std::FILE* const file = std::fopen("/dev/full", "w");
            dup2(fileno(file), STDOUT_FILENO);
        });
        EXPECT_EQ(full.code, 3) << command[0];
        EXPECT_TRUE(full.has_one_line_of_error()) << full.err;
        const Result broken = run(command, [] {
            int ends[2];
            if (pipe(ends) != 0) return;
            close(ends[0]);
            dup2(ends[1], STDOUT_FILENO);
        });
        EXPECT_EQ(broken.code, 3) << command[0];
        EXPECT_TRUE(broken.has_one_line_of_error()) << broken.err;
    }
}

}  // namespace
}  // namespace tintvert::test
