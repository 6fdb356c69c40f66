// Every message of exit codes 3 and 4 names the file that it is about.
#include "tool/noise.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

class NamedFiles : public ToolTest {
protected:
    void SetUp() override
    {
        save("in.raw", noise(1, 64));
        save("empty.raw", "");
    }
    void expect_name(const std::vector<std::string>& words, int code, const std::string& name) const
    {
        const Result result = run(words);
        EXPECT_EQ(result.code, code) << result.err;
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_NE(result.err.find(name), std::string::npos) << result.err;
    }
    std::vector<std::string> with(std::vector<std::string> words, const std::vector<std::string>& more) const
    {
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }
};

TEST_F(NamedFiles, sizes_strides_and_frames)
{
    const std::string raw = path("in.raw");
    const std::vector<std::string> convert{"convert", "--from", "2vuy", "--to", "v210", raw, path("out"), "-q"};
    for (const std::vector<std::string>& more : std::vector<std::vector<std::string>>{{"-s", "0x4"},
                                                                                      {"-s", "65536x65536"},
                                                                                      {"-s", "7x4"},
                                                                                      {"-s", "8x4", "--stride", "15"},
                                                                                      {"-s", "8x4", "--frames", "9"},
                                                                                      {"-s", "8x4", "--frames", "0:9"}})
        expect_name(with(convert, more), 4, raw);
    for (const char* command : {"view", "bits"}) {
        std::vector<std::string> words{command, raw, "-l", "2vuy", "-s", "7x4"};
        if (words[0] == "bits") words.insert(words.end(), {"--at", "0,0"});
        expect_name(words, 4, raw);
    }
    expect_name({"bits", raw, "-l", "2vuy", "-s", "8x4", "--at", "8,0"}, 4, raw);
    expect_name({"compare", raw, raw, "-l", "2vuy", "-s", "8x0"}, 4, raw);
    expect_name({"convert", "tntvt_2vuy_v210", raw, path("out"), "-s", "7x4"}, 4, raw);
    expect_name({"capture", raw, path("out"), "-s", "7x4"}, 4, raw);
}

TEST_F(NamedFiles, sizes_in_headers)
{
    save("in.ppm", "P6\n100000 100000\n255\n");
    save("in.pam", "P7\nWIDTH 0\nHEIGHT 1\nDEPTH 3\nMAXVAL 255\nENDHDR\n");
    for (const char* name : {"in.ppm", "in.pam"}) expect_name({"convert", path(name), path("out.png")}, 4, path(name));
    expect_name({"compare", path("in.ppm"), path("in.raw"), "-s", "8x4"}, 4, path("in.ppm"));
}

TEST_F(NamedFiles, coded_streams)
{
    save("palette", std::string(1024, '\0'));
    save("in.rle", std::string("\1\2", 2));
    expect_name({"convert", "tntvt_rle8_rgb32", path("in.rle"), path("out"), "--palette", path("palette"), "-s", "4x2"},
                4, path("in.rle"));
}

TEST_F(NamedFiles, standard_input)
{
    const Result result = run({"convert", "--from", "2vuy", "--to", "v210", "-", path("out"), "-s", "0x4"});
    EXPECT_EQ(result.code, 4);
    EXPECT_NE(result.err.find("standard input"), std::string::npos) << result.err;
}

TEST_F(NamedFiles, no_file_no_name)
{
    const Result result = run({"convert", "--from", "2vuy", "--to", "v210", "--dry-run", "-s", "0x4"});
    EXPECT_EQ(result.code, 4);
    EXPECT_TRUE(result.err.starts_with("tintvert: refused: ")) << result.err;
}

}  // namespace
}  // namespace tintvert::test
