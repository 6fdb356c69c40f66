// RGB of 8 bits a channel.
#include "layouts.h"

namespace tintvert::catalog {

constinit const Layout layout::rgb32 = {
    .name = "rgb32", .summary = "8-bit RGB and alpha, blue first", .ffmpeg = "bgra", .gstreamer = "BGRA",
    .fourcc = "BGRA", .libyuv = "ARGB", .samples = {{.fields = "B G R A"}}};

constinit const Layout layout::rgba32 = {
    .name = "rgba32", .summary = "The same layout as rgb32", .ffmpeg = "bgra", .gstreamer = "BGRA", .fourcc = "BGRA",
    .libyuv = "ARGB", .samples = {{.fields = "B G R A"}}, .same_bytes_as = &layout::rgb32};

constinit const Layout layout::BGRA = {
    .name = "BGRA", .summary = "rgb32 as the line routines call it; b3 is not read", .ffmpeg = "bgra",
    .gstreamer = "BGRA", .fourcc = "BGRA", .libyuv = "ARGB", .samples = {{.fields = "B G R -"}},
    .same_bytes_as = &layout::rgb32};

constinit const Layout layout::ARGB = {
    .name = "ARGB", .summary = "Alpha first, as the line routines call it; not argb32", .ffmpeg = "argb",
    .gstreamer = "ARGB", .fourcc = "raw (32 bit)", .libyuv = "BGRA", .samples = {{.fields = "- R G B"}},
    .same_bytes_as = &layout::abgr32};

constinit const Layout layout::bgra32 = {
    .name = "bgra32", .summary = "rgba32 with bytes 0 and 2 exchanged; not the BGRA of the line routines",
    .ffmpeg = "rgba", .gstreamer = "RGBA", .fourcc = "RGBA", .libyuv = "ABGR", .samples = {{.fields = "R G B A"}}};

constinit const Layout layout::bgr32 = {
    .name = "bgr32", .summary = "The same layout as bgra32", .ffmpeg = "rgba", .gstreamer = "RGBA", .fourcc = "RGBA",
    .libyuv = "ABGR", .samples = {{.fields = "R G B A"}}, .same_bytes_as = &layout::bgra32};

constinit const Layout layout::abgr32 = {
    .name = "abgr32", .summary = "rgba32 with all four bytes reversed", .ffmpeg = "argb", .gstreamer = "ARGB",
    .fourcc = "raw (32 bit)", .libyuv = "BGRA", .samples = {{.fields = "A R G B"}}};

constinit const Layout layout::argb32 = {
    .name = "argb32", .summary = "The rgba32 word rotated right by 8 bits; it has no name elsewhere",
    .samples = {{.fields = "G R A B"}}};

constinit const Layout layout::rgba = {
    .name = "rgba", .summary = "Four bytes a pixel as the alpha routines see them", .ffmpeg = "bgra",
    .gstreamer = "BGRA", .fourcc = "BGRA", .libyuv = "ARGB", .samples = {{.fields = "B G R A"}},
    .same_bytes_as = &layout::rgb32, .note = "tntvt_rgba_to_alpha takes b0."};

constinit const Layout layout::macargb32 = {
    .name = "macargb32", .summary = "Alpha first, colours as they came", .ffmpeg = "argb", .gstreamer = "ARGB",
    .fourcc = "raw (32 bit)", .libyuv = "BGRA", .samples = {{.fields = "A R G B"}}, .same_bytes_as = &layout::abgr32};

constinit const Layout layout::macbgr24 = {
    .name = "macbgr24", .summary = "Three colour bytes", .ffmpeg = "rgb24", .gstreamer = "RGB",
    .fourcc = "raw (24 bit)", .libyuv = "RAW", .samples = {{.fields = "R G B"}}, .same_bytes_as = &layout::bgr24};

constinit const Layout layout::rgb24 = {
    .name = "rgb24", .summary = "8-bit RGB, blue first", .ffmpeg = "bgr24", .gstreamer = "BGR", .fourcc = "24BG",
    .libyuv = "RGB24", .samples = {{.fields = "B G R"}}};

constinit const Layout layout::rgba24 = {
    .name = "rgba24", .summary = "The bytes of rgb24, met in one routine's name", .ffmpeg = "bgr24", .gstreamer = "BGR",
    .fourcc = "24BG", .libyuv = "RGB24", .samples = {{.fields = "B G R"}}, .same_bytes_as = &layout::rgb24};

constinit const Layout layout::bgr24 = {
    .name = "bgr24", .summary = "8-bit RGB, red first", .ffmpeg = "rgb24", .gstreamer = "RGB", .fourcc = "raw (24 bit)",
    .libyuv = "RAW", .samples = {{.fields = "R G B"}}};

}  // namespace tintvert::catalog
