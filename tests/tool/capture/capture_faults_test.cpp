// tintvert capture, packets that are lost, late, out of place or of another stream: frames that are whole stay so, and
// everything is counted.
#include <functional>

#include "tool/capture_run.h"
#include "tool/png_maker.h"

namespace tintvert::test {
namespace {

using CaptureFaults = CaptureTest;

constexpr Geometry size{26, 4};  // 8 packets a frame: 13 pgroups a line, 7 a packet

// Pixels whose place in the frame, line after line, is in [first, end).
auto lost(unsigned first, unsigned end)
{
    return [=](unsigned x, unsigned y) { return y * size.width + x >= first && y * size.width + x < end; };
}

TEST_F(CaptureFaults, lost_packets)
{
    std::vector<Packet> packets = Sender{size, 7, 65533}.frames(3);
    packets.erase(packets.begin() + 10, packets.begin() + 12);  // of the second frame, pgroups 14 to 27
    const Captured got = capture(framed(packets), size);
    EXPECT_EQ(got.result.code, 1) << got.result.err;
    EXPECT_TRUE(got.frames == v210_of(size, 0) + v210_of(size, 2));
    EXPECT_EQ(got.report["packets"]["missing"], 2);
    EXPECT_EQ(got.report["frames"], (Json{{"whole", 2}, {"incomplete", 1}, {"written", 2}}));
    EXPECT_EQ(got.report["lines"], (Json{{"whole", 10}, {"broken", 2}}));
    EXPECT_EQ(got.report["missing_pixels"], 28);
    EXPECT_FALSE(got.report["complete"]);

    const Captured kept = capture(framed(packets), size, {"--keep-incomplete"});
    EXPECT_EQ(kept.result.code, 1);
    EXPECT_TRUE(kept.frames == v210_of(size, 0) + v210_of(size, 1, lost(28, 56)) + v210_of(size, 2));
    EXPECT_EQ(kept.report["frames"]["written"], 3);
}

// The frame with the most missing pixels: magenta exactly where they are missing and grey elsewhere.
TEST_F(CaptureFaults, missing_picture)
{
    std::vector<Packet> packets = Sender{size}.frames(3);
    packets.erase(packets.begin() + 18);
    packets.erase(packets.begin() + 10, packets.begin() + 12);
    packets.erase(packets.begin() + 1);
    const Captured got = capture(framed(packets), size, {"--missing", path("missing.png")});
    EXPECT_EQ(got.result.code, 3);  // no frame is whole
    EXPECT_EQ(got.report["missing_picture"], (Json{{"file", path("missing.png")}, {"frame", 2}}));
    EXPECT_EQ(got.frames, "");

    const std::string png = load("missing.png");
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    ASSERT_NE(png_image_begin_read_from_memory(&image, png.data(), png.size()), 0);
    ASSERT_EQ(image.width, size.width);
    ASSERT_EQ(image.height, size.height);
    image.format = PNG_FORMAT_RGB;
    std::vector<uint8_t> rgb(PNG_IMAGE_SIZE(image));
    ASSERT_NE(png_image_finish_read(&image, nullptr, rgb.data(), 0, nullptr), 0);
    for (unsigned at = 0; at < size.width * size.height; ++at) {
        const std::array<unsigned, 3> pixel = {rgb[3 * at], rgb[3 * at + 1], rgb[3 * at + 2]};
        if (at >= 28 && at < 56)
            EXPECT_EQ(pixel, (std::array<unsigned, 3>{255, 0, 255})) << at;
        else
            EXPECT_TRUE(pixel[0] == pixel[1] && pixel[1] == pixel[2]) << at;
    }
}

TEST_F(CaptureFaults, no_picture_of_nothing_missing)
{
    const Captured got = capture(framed(Sender{size}.frames(1)), size, {"--missing", path("missing.png")});
    EXPECT_EQ(got.result.code, 0);
    EXPECT_TRUE(got.report["missing_picture"].is_null());
    EXPECT_FALSE(std::filesystem::exists(path("missing.png")));
}

// A packet that comes 600 after its place is too late, and one that comes 400 after is not.
TEST_F(CaptureFaults, late_packets)
{
    for (const bool too_late : {false, true}) {
        std::vector<Packet> packets = Sender{size}.frames(200);
        const long from = 700, to = from + (too_late ? 600 : 400);
        std::rotate(packets.begin() + from, packets.begin() + from + 1, packets.begin() + to);
        const Captured got = capture(framed(packets), size);
        EXPECT_EQ(got.result.code, too_late ? 1 : 0);
        EXPECT_EQ(got.report["packets"]["late"], too_late ? 1 : 0);
        EXPECT_EQ(got.report["packets"]["missing"], too_late ? 1 : 0);
        EXPECT_EQ(got.report["packets"]["reordered"], too_late ? 0 : 1);
        EXPECT_EQ(got.report["frames"]["whole"], too_late ? 199 : 200);
    }
}

// One number out of nowhere is a stray; a row of them is where the sender is now.
TEST_F(CaptureFaults, numbers_that_jump)
{
    std::vector<Packet> packets = Sender{size}.frames(3);
    packets[10].number += 20000;
    Captured got = capture(framed(packets), size);
    EXPECT_EQ(got.result.code, 1);
    EXPECT_EQ(got.report["packets"]["stray"], 1);
    EXPECT_EQ(got.report["packets"]["missing"], 1);
    EXPECT_TRUE(got.frames == v210_of(size, 0) + v210_of(size, 2));

    for (const uint32_t jump : {10000u, 1000000u, 0u - 10000u}) {
        packets = Sender{size, 7, 100000}.frames(3);
        for (size_t i = 8; i < packets.size(); ++i) packets[i].number += jump;
        got = capture(framed(packets), size);
        EXPECT_TRUE(got.frames == v210_of(size, 0) + v210_of(size, 1) + v210_of(size, 2));
        EXPECT_EQ(got.report["packets"]["restarts"], 1);
        const bool forward = jump < 0x80000000;
        EXPECT_EQ(got.report["packets"]["missing"], forward ? jump : 0);
        EXPECT_EQ(got.result.code, forward ? 1 : 0);
    }
}

// A field without its partner makes no frame with that of another, and one with a packet missing waits for it.
TEST_F(CaptureFaults, lost_fields)
{
    for (const bool by_field : {true, false}) {
        Sender sender{size, 13};  // two packets a field
        std::vector<Packet> packets;
        for (unsigned frame = 0; frame < 6; ++frame)
            for (const unsigned field : {0u, 1u})
                for (const Packet& packet : sender.lines(frame, field, 2, by_field)) packets.push_back(packet);
        for (const uint32_t gone : {6u, 7u, 8u, 9u, 18u, 22u, 23u})
            std::erase_if(packets, [=](const Packet& packet) { return packet.number == gone; });

        const std::string option = by_field ? "--interlaced" : "--interlaced=frame";
        const Captured got = capture(framed(packets), size, {option, "--keep-incomplete"});
        const auto first = [](unsigned, unsigned y) { return y % 2 == 0; };
        const auto second = [](unsigned, unsigned y) { return y % 2 == 1; };
        const auto line_1 = [](unsigned, unsigned y) { return y == 1; };
        EXPECT_EQ(got.result.code, 1);
        EXPECT_EQ(got.report["frames"], (Json{{"whole", 2}, {"incomplete", 4}, {"written", 6}}));
        EXPECT_TRUE(got.frames == v210_of(size, 0) + v210_of(size, 1, second) + v210_of(size, 2, first) +
                                      v210_of(size, 3) + v210_of(size, 4, line_1) + v210_of(size, 5, second));
    }
}

TEST_F(CaptureFaults, other_streams_stay_out)
{
    std::vector<Packet> packets = Sender{size}.frames(1);
    std::vector<Packet> other = Sender{size}.frames(1);
    std::string bytes;
    for (size_t i = 0; i < packets.size(); ++i) {
        other[i].ssrc = 7;
        bytes += framed(packets[i].bytes()) + framed(other[i].bytes()) + framed(packets[i].bytes(0x80, "", 97));
    }
    const Captured got = capture(bytes, size);
    EXPECT_EQ(got.result.code, 0);
    EXPECT_TRUE(got.frames == v210_of(size, 0));
    EXPECT_EQ(got.report["packets"]["other"], 2 * packets.size());
}

TEST_F(CaptureFaults, sizes)
{
    save("in", framed(Sender{size}.frames(1)));
    const auto code_of = [&](const std::string& text) {
        const Result result = run({"capture", path("in"), path("out"), "--size", text});
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
        EXPECT_EQ(files_in(""), std::set<std::string>{"in"});
        return result.code;
    };
    for (const char* text : {"0x4", "26x0", "-2x4", "26x-1", "25x4", "1x1", "32770x2", "2x32769", "32768x32768",
                             "99999999999999999999x4", "26x99999999999999999999"})
        EXPECT_EQ(code_of(text), 4) << text;
    for (const char* text : {"", "26", "26x", "x4", "26x4x2", "26*4", "26x4 ", "widexhigh"})
        EXPECT_EQ(code_of(text), 2) << text;
}

TEST_F(CaptureFaults, framed_packets_have_no_port)
{
    EXPECT_EQ(capture(framed(Sender{size}.frames(1)), size, {"--port", "5004"}).result.code, 2);
}

}  // namespace
}  // namespace tintvert::test
