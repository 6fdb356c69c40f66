#include "layouts.h"

#include <algorithm>

namespace tintvert::catalog {
namespace {

int64_t none(int64_t) { return 0; }

template <int count>
int64_t bytes_a_pixel(int64_t width)
{
    return width * count;
}

int64_t v210_line(int64_t width) { return (width + 47) / 48 * 128; }
int64_t pgroup_line(int64_t width) { return width * 20 >> 3; }
int64_t rgb12_line(int64_t width) { return (width * 36 + 31) / 32 * 4; }

constexpr Layout all[] = {
    {"2vuy", "8-bit 4:2:2, chroma first, unsigned chroma", "uyvy422", "UYVY", "2vuy UYVY", "UYVY", bytes_a_pixel<2>,
     Planes::packed, ""},
    {"2yuv", "The bytes of 2vuy; which chroma is which does not matter", "uyvy422", "UYVY", "2vuy UYVY", "UYVY",
     bytes_a_pixel<2>, Planes::packed, "Neutral chroma is 0x80."},
    {"yuv2", "8-bit 4:2:2, luma first, full range, signed chroma", "", "", "yuv2", "", bytes_a_pixel<2>, Planes::packed,
     "Chroma 0x00 is neutral, 0x7F highest, 0x81 lowest."},
    {"yuvu", "The same layout as yuv2", "", "", "yuvu", "", bytes_a_pixel<2>, Planes::packed,
     "Chroma 0x00 is neutral, 0x7F highest, 0x81 lowest."},
    {"yuvs", "8-bit 4:2:2, luma first, full range, unsigned chroma", "yuyv422", "YUY2", "yuvs YUY2", "YUY2",
     bytes_a_pixel<2>, Planes::packed, "Chroma 128 is neutral."},
    {"YUY2", "8-bit 4:2:2, luma first, no range change", "yuyv422", "YUY2", "YUY2 yuvs", "YUY2", bytes_a_pixel<2>,
     Planes::packed, ""},
    {"yuv444", "8-bit 4:4:4, contiguous", "", "v308", "", "", bytes_a_pixel<3>, Planes::packed, ""},
    {"yuvijg", "8-bit 4:4:4, full range", "", "v308", "", "", bytes_a_pixel<3>, Planes::packed,
     "Chroma 128 is neutral."},
    {"planar422", "8-bit 4:2:2 in three planes without lines", "yuv422p", "Y42B", "", "I422", bytes_a_pixel<1>,
     Planes::yuv422, "Planes are unbroken runs."},
    {"field_planes", "Planar 4:2:2 for each of two fields, six planes", "", "", "", "", bytes_a_pixel<1>,
     Planes::fields422, ""},
    {"i420", "8-bit 4:2:0 in one buffer, Cb before Cr", "yuv420p", "I420", "I420", "I420", bytes_a_pixel<1>,
     Planes::yuv420,
     "Y takes n = width x height bytes. Cb begins at n, Cr at n + (n >> 2); lines of both have width / 2 bytes."},
    {"yv12", "8-bit 4:2:0 in one buffer, Cr before Cb", "yuv420p (planes exchanged)", "YV12", "YV12", "YV12",
     bytes_a_pixel<1>, Planes::yuv420,
     "Y takes n = width x height bytes. Cr begins at n, Cb at n + (n >> 2); lines of both have width / 2 bytes."},
    {"planar420", "8-bit 4:2:0 in three planes: what YUY2toYV12 writes", "yuv420p", "I420", "", "I420",
     bytes_a_pixel<1>, Planes::yuv420, "Luma lines stand `dstPitch` apart, chroma lines half of that."},
    {"alphay", "One byte a pixel, a key carried as luma", "gray", "GRAY8", "Y800", "I400", bytes_a_pixel<1>,
     Planes::packed, ""},
    {"alpha", "One byte a pixel, pitch equal to `width`", "gray", "GRAY8", "Y800", "I400", bytes_a_pixel<1>,
     Planes::packed, ""},
    {"v210", "10-bit 4:2:2, six pixels in four little-endian words", "codec v210", "v210", "v210", "", v210_line,
     Planes::packed, ""},
    {"pgroups", "10-bit 4:2:2, two pixels in five bytes, bits in order (RFC 4175)", "codec bitpacked", "UYVP", "", "",
     pgroup_line, Planes::packed, "Bits go out in order, bit 9 of a sample first."},
    {"rgb32", "8-bit RGB and alpha, blue first", "bgra", "BGRA", "BGRA", "ARGB", bytes_a_pixel<4>, Planes::packed, ""},
    {"rgba32", "The same layout as rgb32", "bgra", "BGRA", "BGRA", "ARGB", bytes_a_pixel<4>, Planes::packed, ""},
    {"BGRA", "rgb32 as the line routines call it; b3 is not read", "bgra", "BGRA", "BGRA", "ARGB", bytes_a_pixel<4>,
     Planes::packed, ""},
    {"ARGB", "Alpha first, as the line routines call it; not argb32", "argb", "ARGB", "raw (32 bit)", "BGRA",
     bytes_a_pixel<4>, Planes::packed, ""},
    {"bgra32", "rgba32 with bytes 0 and 2 exchanged; not the BGRA of the line routines", "rgba", "RGBA", "RGBA", "ABGR",
     bytes_a_pixel<4>, Planes::packed, ""},
    {"bgr32", "The same layout as bgra32", "rgba", "RGBA", "RGBA", "ABGR", bytes_a_pixel<4>, Planes::packed, ""},
    {"abgr32", "rgba32 with all four bytes reversed", "argb", "ARGB", "raw (32 bit)", "BGRA", bytes_a_pixel<4>,
     Planes::packed, ""},
    {"argb32", "The rgba32 word rotated right by 8 bits; it has no name elsewhere", "", "", "", "", bytes_a_pixel<4>,
     Planes::packed, ""},
    {"rgba", "Four bytes a pixel as the alpha routines see them", "bgra", "BGRA", "BGRA", "ARGB", bytes_a_pixel<4>,
     Planes::packed, "tntvt_rgba_to_alpha takes b0."},
    {"macargb32", "Alpha first, colours as they came", "argb", "ARGB", "raw (32 bit)", "BGRA", bytes_a_pixel<4>,
     Planes::packed, ""},
    {"macbgr24", "Three colour bytes", "rgb24", "RGB", "raw (24 bit)", "RAW", bytes_a_pixel<3>, Planes::packed, ""},
    {"rgb24", "8-bit RGB, blue first", "bgr24", "BGR", "24BG", "RGB24", bytes_a_pixel<3>, Planes::packed, ""},
    {"rgba24", "The bytes of rgb24, met in one routine's name", "bgr24", "BGR", "24BG", "RGB24", bytes_a_pixel<3>,
     Planes::packed, ""},
    {"bgr24", "8-bit RGB, red first", "rgb24", "RGB", "raw (24 bit)", "RAW", bytes_a_pixel<3>, Planes::packed, ""},
    {"rgb16", "5 bits a channel in a little-endian word", "rgb555le", "RGB15", "L555", "ARGB1555", bytes_a_pixel<2>,
     Planes::packed, "Bit 15 is 0 when written and ignored when read."},
    {"rgb48", "16-bit channels, little-endian", "bgr48le", "", "", "", bytes_a_pixel<6>, Planes::packed,
     "The words go to b0, b1 and b2 of rgba32."},
    {"bgr48", "rgb48 with the channels reversed", "rgb48le", "", "", "", bytes_a_pixel<6>, Planes::packed,
     "The words go to b2, b1 and b0 of rgba32."},
    {"rgb48_12", "12-bit values in the low bits of 16-bit words", "", "", "", "", bytes_a_pixel<6>, Planes::packed, ""},
    {"rgba64", "16-bit channels, alpha last, blue first", "bgra64le", "BGRA64_LE", "", "AR64", bytes_a_pixel<8>,
     Planes::packed, ""},
    {"bgra64", "16-bit channels, alpha last, red first", "rgba64le", "RGBA64_LE", "", "AB64", bytes_a_pixel<8>,
     Planes::packed, ""},
    {"argb64", "16-bit channels, alpha first, then blue", "", "ABGR64_LE", "", "", bytes_a_pixel<8>, Planes::packed,
     ""},
    {"abgr64", "16-bit channels, alpha first, then red", "", "ARGB64_LE", "", "", bytes_a_pixel<8>, Planes::packed, ""},
    {"argb64be", "argb64 with big-endian channels", "", "ABGR64_BE", "", "", bytes_a_pixel<8>, Planes::packed, ""},
    {"rgb10", "10-bit RGB in a word, either byte order", "codec r10k (big-endian)", "", "R10k (big-endian)",
     "AR30 shifted left by 2 (little-endian)", bytes_a_pixel<4>, Planes::packed, "Lines have no gap."},
    {"rgb12", "12-bit RGB without gaps, two arrangements", "", "", "", "", rgb12_line, Planes::packed,
     "dpx is what the unpackers read: 32-bit words filled from bit 0 upward (packed 12-bit DPX). tiff is what the "
     "packers\nwrite: bytes filled from bit 7 downward (12-bit TIFF, RFC 4175 RGB depth 12)."},
    {"rle8", "Run-length coded palette indices", "msrle in BMP", "", "mrle", "", none, Planes::packed,
     R"(c v        c pixels of palette entry v, for c from 1 to 255
0 0        end of line
0 1        end of bitmap
0 2        end of bitmap: no movement exists
0 v ...    v index bytes and a pad byte if v is odd, for v from 3 to 255)"},
};

}  // namespace

std::span<const Layout> layouts() { return all; }

const Layout* find_layout(std::string_view name)
{
    const auto found = std::ranges::find(all, name, &Layout::name);
    return found == std::end(all) ? nullptr : found;
}

int64_t frame_bytes(const Layout& layout, int64_t width, int64_t height)
{
    const int64_t first = layout.line_bytes(width) * height;
    switch (layout.planes) {
        case Planes::yuv422:
        case Planes::fields422:
            return first * 2;
        case Planes::yuv420:
            return first + (first >> 2) * 2;
        default:
            return first;
    }
}

}  // namespace tintvert::catalog
