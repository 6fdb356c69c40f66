// Clips in MOV and AVI, made by ffmpeg where it is installed: the frames are the bytes that ffmpeg copies out.
#include <cstdlib>

#include "tool/run.h"

namespace tintvert::test {
namespace {

bool reads_clips() { return run({"--version"}).out.find("MOV and AVI: read") != std::string::npos; }

class Clips : public ToolTest {
protected:
    void SetUp() override
    {
        if (!reads_clips()) GTEST_SKIP() << "built without libavformat";
        if (std::system("command -v ffmpeg >/dev/null") != 0) GTEST_SKIP() << "there is no ffmpeg";
    }

    // Three frames of a test picture in `file`, and in `file`.raw as they are in the packets.
    void make(const std::string& file, const std::string& size, const std::string& coding) const
    {
        shell("-f lavfi -i testsrc=s=" + size + ":r=30000/1001 -frames:v 3 " + coding + " " + path(file));
        shell("-i " + path(file) + " -c copy -f rawvideo " + path(file + ".raw"));
    }

    static void shell(const std::string& words)
    {
        ASSERT_EQ(std::system(("ffmpeg -v error -y " + words + " </dev/null").c_str()), 0) << words;
    }

    std::string frames_of(const std::string& file, const std::string& layout, std::vector<std::string> more = {}) const
    {
        more.insert(more.begin(), {"convert", path(file), path("out"), "--to", layout});
        const Result result = run(more);
        EXPECT_EQ(result.code, 0) << file << ' ' << result.err;
        EXPECT_NE(result.err.find("the same bytes"), std::string::npos) << result.err;
        return load("out");
    }
};

TEST_F(Clips, of_ycbcr)
{
    const std::vector<std::array<std::string, 3>> table = {
        {"v210.mov", "-c:v v210", "v210"},
        {"2vuy.mov", "-c:v rawvideo -pix_fmt uyvy422", "2vuy"},
        {"yuvs.mov", "-c:v rawvideo -pix_fmt yuyv422", "yuvs"},
        {"v210.avi", "-c:v v210", "v210"},
        {"uyvy.avi", "-c:v rawvideo -pix_fmt uyvy422 -tag:v UYVY", "2vuy"},
        {"yuy2.avi", "-c:v rawvideo -pix_fmt yuyv422", "YUY2"},
    };
    for (const auto& [file, coding, layout] : table) {
        make(file, "102x36", coding);
        EXPECT_TRUE(frames_of(file, layout) == load(file + ".raw")) << file;
    }
    for (const char* clip : {"v210.mov", "v210.avi"}) {
        EXPECT_EQ(run({"compare", path(clip), path(std::string(clip) + ".raw"), "-s", "102x36", "--exact"}).code, 0);
        EXPECT_EQ(run({"view", path(clip), "--frames", "2", "-o", path("out.png")}).code, 0);
    }
    const std::string frames = load("v210.mov.raw"), one = frames_of("v210.mov", "v210", {"--frames", "1"});
    EXPECT_TRUE(one == frames.substr(frames.size() / 3, frames.size() / 3));
}

// Lines padded to `unit` bytes, tight.
std::string without_padding(const std::string& frames, size_t line, size_t unit)
{
    std::string tight;
    for (size_t at = 0; at < frames.size(); at += (line + unit - 1) / unit * unit) tight += frames.substr(at, line);
    return tight;
}

TEST_F(Clips, of_rgb)
{
    make("rgb.mov", "101x36", "-c:v rawvideo -pix_fmt rgb24");  // lines of 303 bytes, padded to 304
    EXPECT_TRUE(frames_of("rgb.mov", "bgr24") == without_padding(load("rgb.mov.raw"), 303, 2));
    make("argb.mov", "101x36", "-c:v rawvideo -pix_fmt argb");
    EXPECT_TRUE(frames_of("argb.mov", "abgr32") == load("argb.mov.raw"));
    make("bgr.avi", "101x36", "-c:v rawvideo -pix_fmt bgr24");
    EXPECT_TRUE(frames_of("bgr.avi", "rgb24") == without_padding(load("bgr.avi.raw"), 303, 4));
    make("bgra.avi", "101x36", "-c:v rawvideo -pix_fmt bgra -tag:v 0");
    EXPECT_TRUE(frames_of("bgra.avi", "rgb32") == load("bgra.avi.raw"));
}

// A DIB with a positive height has its bottom line first.
TEST_F(Clips, of_bottom_up_dibs)
{
    make("top.avi", "100x36", "-c:v rawvideo -pix_fmt bgr24");
    std::string bytes = load("top.avi");
    const size_t height = bytes.find("strf") + 8 + 8;
    ASSERT_EQ(bytes.substr(height, 4), "\xDC\xFF\xFF\xFF");  // -36
    save("bottom.avi", bytes.replace(height, 4, std::string("\x24\0\0\0", 4)));
    const std::string top = frames_of("top.avi", "rgb24"), bottom = frames_of("bottom.avi", "rgb24");
    ASSERT_EQ(top.size(), 3u * 300 * 36);
    ASSERT_EQ(bottom.size(), top.size());
    for (size_t line = 0; line < 3 * 36; ++line)
        ASSERT_TRUE(bottom.substr(line * 300, 300) == top.substr((line / 36 * 36 + 35 - line % 36) * 300, 300)) << line;
}

TEST_F(Clips, keep_their_rate_in_y4m)
{
    make("2vuy.mov", "48x16", "-c:v rawvideo -pix_fmt uyvy422");
    ASSERT_EQ(run({"convert", path("2vuy.mov"), path("out.y4m")}).code, 0);
    const std::string clip = load("out.y4m");
    EXPECT_EQ(clip.substr(0, clip.find('\n')), "YUV4MPEG2 W48 H16 F30000:1001 Ip A1:1 C422");
}

TEST_F(Clips, through_one_routine)
{
    make("v210.mov", "1280x8", "-c:v v210");
    ASSERT_EQ(run({"convert", "_v210_to_rgb", path("v210.mov"), path("out")}).code, 0);
    const std::string from_clip = load("out");
    ASSERT_EQ(
        run({"convert", "_v210_to_rgb", path("v210.mov.raw"), path("out"), "-s", "1280x8", "--stride", "auto48"}).code,
        0);
    EXPECT_TRUE(load("out") == from_clip);
    EXPECT_EQ(run({"convert", "tntvt_2vuy_v210", path("v210.mov"), path("bad")}).code, 2);
}

TEST_F(Clips, that_are_broken_or_hold_something_else)
{
    make("clip.mov", "64x16", "-c:v v210");
    const std::string clip = load("clip.mov");
    const auto code = [&](const std::string& name, const std::string& bytes) {
        save(name, bytes);
        const Result result = run({"convert", path(name), path("bad"), "--to", "v210", "-q"});
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_FALSE(files_in("").contains("bad"));
        return result.code;
    };
    for (const size_t size : {0u, 8u, 100u, 3000u}) EXPECT_EQ(code("a.mov", clip.substr(0, size)), 3) << size;
    EXPECT_EQ(code("a.avi", clip), 3);
    EXPECT_EQ(code("a.avi", std::string(5000, 'x')), 3);
    shell("-f lavfi -i testsrc2=s=64x16 -frames:v 3 -c:v mjpeg " + path("jpeg.mov"));
    const Result jpeg = run({"convert", path("jpeg.mov"), path("bad"), "--to", "v210"});
    EXPECT_EQ(jpeg.code, 3);
    EXPECT_NE(jpeg.err.find("'jpeg'"), std::string::npos) << jpeg.err;
    EXPECT_EQ(run({"convert", path("none.mov"), path("bad"), "--to", "v210"}).code, 3);
}

TEST_F(ToolTest, a_tool_without_libavformat_says_so)
{
    if (reads_clips()) GTEST_SKIP() << "built with libavformat";
    save("a.mov", "x");
    const Result result = run({"convert", path("a.mov"), path("out"), "--to", "v210"});
    EXPECT_EQ(result.code, 3);
    EXPECT_NE(result.err.find("built without libavformat"), std::string::npos);
}

}  // namespace
}  // namespace tintvert::test
