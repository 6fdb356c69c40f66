// Fields, flips and mixing against FFmpeg's filters, byte for byte.
#include <gtest/gtest.h>
#include <tintvert.h>
#include <zkutil/zkutil.h>

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"

namespace tintvert::test {
namespace {

constexpr Size sizes[] = {{190, 34}, {1280, 720}};

// Lines are moved whole, so a pixel is four samples of a gray plane, which every filter takes as it is.
Bytes filtered(const Bytes& frames, const Size& size, const std::string& filters)
{
    return ffmpeg(frames, {"gray", size.width * 4, size.height}, filters, "gray");
}

unsigned int number(long value) { return static_cast<unsigned int>(value); }

Bytes half_of(const Bytes& frame, int which)
{
    const auto middle = frame.begin() + static_cast<std::ptrdiff_t>(frame.size() / 2);
    return which == 0 ? Bytes(frame.begin(), middle) : Bytes(middle, frame.end());
}

TEST_F(Ffmpeg, upside_down)
{
    for (const Size& size : sizes) {
        Bytes src = noise(61, size.pixels() * 4), ours(src.size());
        const Bytes theirs = filtered(src, size, "vflip");
        tntvt_flip_vert(ours.data(), src.data(), 0, static_cast<int>(size.height), number(size.width * 4));
        EXPECT_TRUE(same(ours, theirs)) << size.width;
        tntvt_flip_vert_flags(ours.data(), src.data(), 0, 0, static_cast<int>(size.height), number(size.width * 4),
                              number(size.width * 4), 0, 0);
        EXPECT_TRUE(same(ours, theirs)) << size.width;
        tntvt_flip_vert(src.data(), src.data(), 0, static_cast<int>(size.height), number(size.width * 4));
        EXPECT_TRUE(same(src, theirs)) << size.width;
    }
}

// Ours mirrors about pixel `width` / 2, so destination pixel i is source pixel `width` - i: it gets each line one
// pixel to the right.
TEST_F(Ffmpeg, mirrored)
{
    for (const Size& size : sizes) {
        const Bytes src = noise(62, size.pixels() * 4);
        Bytes moved(4);
        moved.insert(moved.end(), src.begin(), src.end());
        Bytes ours(src.size());
        tntvt_flip_horz(ours.data(), moved.data(), static_cast<int>(size.width), static_cast<int>(size.height),
                        number(size.width * 4));
        EXPECT_TRUE(same(ours, ffmpeg(src, {"bgra", size.width, size.height}, "hflip", "bgra"))) << size.width;
    }
}

// In place an even `width` turns round the pixels 0 to `width`: one pixel more.
TEST_F(Ffmpeg, mirrored_in_place)
{
    const Size size{193, 1};
    Bytes line = noise(63, size.pixels() * 4);
    const Bytes theirs = ffmpeg(line, {"bgra", size.width, size.height}, "hflip", "bgra");
    tntvt_flip_horz(line.data(), line.data(), static_cast<int>(size.width) - 1, 1, number(size.width * 4));
    EXPECT_TRUE(same(line, theirs));
}

TEST_F(Ffmpeg, fields_apart)
{
    for (const Size& size : sizes) {
        Bytes src = noise(64, size.pixels() * 4), first(src.size() / 2), second(src.size() / 2);
        tntvt_fld_mix_to_sep32(first.data(), second.data(), size.width * 4, src.data(), size.width * 4,
                               number(size.width), number(size.height));
        Bytes ours = first;
        ours.insert(ours.end(), second.begin(), second.end());
        EXPECT_TRUE(same(ours, filtered(src, size, "setfield=tff,separatefields"))) << size.width;
        EXPECT_TRUE(same(ours, filtered(src, size, "il=l=d"))) << size.width;
        EXPECT_TRUE(same(first, filtered(src, size, "field=top"))) << size.width;
        EXPECT_TRUE(same(second, filtered(src, size, "field=bottom"))) << size.width;
    }
}

TEST_F(Ffmpeg, fields_together)
{
    for (const Size& size : sizes) {
        Bytes fields = noise(65, size.pixels() * 4), ours(fields.size());
        Bytes first = half_of(fields, 0), second = half_of(fields, 1);
        tntvt_fld_sep_to_mix32(ours.data(), size.width * 4, first.data(), second.data(), size.width * 4,
                               number(size.width), number(size.height));
        EXPECT_TRUE(same(ours, filtered(fields, size, "il=l=i"))) << size.width;
        EXPECT_TRUE(same(ours, filtered(fields, {size.width, size.height / 2}, "tinterlace=merge"))) << size.width;
    }
}

// A frame of two fields.
Bytes woven(Bytes even, const Bytes& odd, const Size& size)
{
    even.insert(even.end(), odd.begin(), odd.end());
    return filtered(even, {size.width, size.height / 2}, "tinterlace=merge");
}

Bytes changed(unsigned int mode, Bytes dst, Bytes src, const Size& size)
{
    const unsigned int stride = number(size.width * 4);
    tntvt_change_field_rgb(dst.data(), mode, number(size.width), number(size.height), stride,
                           src.empty() ? nullptr : src.data(), stride);
    return dst;
}

TEST_F(Ffmpeg, field_changes_of_one_frame)
{
    for (const Size& size : sizes) {
        const Bytes frame = noise(66, size.pixels() * 4), blank(frame.size());
        const Bytes first = filtered(frame, size, "field=top"), second = filtered(frame, size, "field=bottom");
        const Bytes first_twice = woven(first, first, size), second_twice = woven(second, second, size);
        EXPECT_TRUE(same(changed(1, frame, {}, size), first_twice)) << size.width;
        EXPECT_TRUE(same(changed(2, frame, {}, size), second_twice)) << size.width;
        EXPECT_TRUE(same(changed(3, frame, {}, size), filtered(frame, size, "il=ls=1"))) << size.width;
        EXPECT_TRUE(same(changed(9, blank, frame, size), first_twice)) << size.width;
        EXPECT_TRUE(same(changed(10, blank, frame, size), second_twice)) << size.width;
        EXPECT_TRUE(same(changed(13, blank, frame, size), filtered(frame, size, "il=l=d"))) << size.width;
        EXPECT_TRUE(same(changed(14, blank, frame, size), filtered(frame, size, "il=l=d:ls=1"))) << size.width;
    }
}

// One field of the source put into the frame: of two frames A and B, `merge` of a field of each.
TEST_F(Ffmpeg, field_changes_of_two_frames)
{
    for (const Size& size : sizes) {
        const Bytes dst = noise(67, size.pixels() * 4), src = noise(68, size.pixels() * 4);
        const Bytes dst_first = filtered(dst, size, "field=top"), dst_second = filtered(dst, size, "field=bottom");
        const Bytes src_first = filtered(src, size, "field=top"), src_second = filtered(src, size, "field=bottom");
        EXPECT_TRUE(same(changed(5, dst, src, size), woven(dst_first, src_second, size))) << size.width;
        EXPECT_TRUE(same(changed(6, dst, src, size), woven(dst_first, src_first, size))) << size.width;
        EXPECT_TRUE(same(changed(7, dst, src, size), woven(src_second, dst_second, size))) << size.width;
        EXPECT_TRUE(same(changed(8, dst, src, size), woven(src_first, dst_second, size))) << size.width;
    }
}

Bytes averaged(const Bytes& one, const Bytes& other, const std::string& format, const Size& size)
{
    const std::string picture = std::to_string(size.width) + "x" + std::to_string(size.height);
    return through({"ffmpeg", "-v",       "error",    "-f",   "rawvideo", "-pix_fmt",        format,
                    "-s",     picture,    "-i",       "{in}", "-f",       "rawvideo",        "-pix_fmt",
                    format,   "-s",       picture,    "-i",   "{in2}",    "-filter_complex", "blend=all_mode=average",
                    "-f",     "rawvideo", "-pix_fmt", format, "{out}"},
                   one, other);
}

constexpr unsigned int code_v210 = 0x76323130, code_2vuy = 0x32767579;

// The samples of a `v210` frame are one gray plane of 10 bits to the peer.
TEST_F(Ffmpeg, dissolve_of_10_bits)
{
    const Size size{192, 64}, plane{size.width * 2, size.height};
    const long stride = v210_stride(size.width);
    const Samples one = noise(71, plane.pixels(), 0, 1023), other = noise(72, plane.pixels(), 0, 1023);
    Bytes dst = v210_frame(one, size, stride), src = v210_frame(other, size, stride);
    ASSERT_EQ(tntvt_copy_dissolve(dst.data(), src.data(), stride, size.width, size.height, code_v210), 0);
    const Bytes theirs = averaged(little_endian(one), little_endian(other), "gray10le", plane);
    EXPECT_TRUE(same(v210_samples(dst, size, stride), words16(theirs)));
}

// Each byte is halved before the sum: 1 less where both are odd.
TEST_F(Ffmpeg, dissolve_of_8_bits)
{
    const Size size{192, 64}, plane{size.width * 2, size.height};
    Bytes dst = noise(73, plane.pixels()), src = noise(74, plane.pixels());
    Bytes theirs = averaged(dst, src, "gray", plane);
    for (size_t i = 0; i < theirs.size(); ++i) theirs[i] = static_cast<uint8_t>(theirs[i] - (dst[i] & src[i] & 1));
    ASSERT_EQ(tntvt_copy_dissolve(dst.data(), src.data(), plane.width, size.width, size.height, code_2vuy), 0);
    EXPECT_TRUE(same(dst, theirs));
}

}  // namespace
}  // namespace tintvert::test
