// 8-bit YCbCr in planes.
#include "layouts.h"

namespace tintvert::catalog {

constinit const Layout layout::planar422 = {
    .name = "planar422", .summary = "8-bit 4:2:2 in three planes without lines", .ffmpeg = "yuv422p",
    .gstreamer = "Y42B", .libyuv = "I422",
    .samples = {{.fields = "Y"}, {.fields = "Cb", .across = 2}, {.fields = "Cr", .across = 2}},
    .note = "Planes are unbroken runs."};

constinit const Layout layout::field_planes = {
    .name = "field_planes", .summary = "Planar 4:2:2 for each of two fields, six planes",
    .samples = {{.fields = "Y", .field = 1}, {.fields = "Cb", .across = 2, .field = 1}, {.fields = "Cr", .across = 2,
        .field = 1}, {.fields = "Y", .field = 2}, {.fields = "Cb", .across = 2, .field = 2}, {.fields = "Cr",
        .across = 2, .field = 2}}};

constinit const Layout layout::i420 = {
    .name = "i420", .summary = "8-bit 4:2:0 in one buffer, Cb before Cr", .ffmpeg = "yuv420p", .gstreamer = "I420",
    .fourcc = "I420", .libyuv = "I420",
    .samples = {{.fields = "Y"}, {.fields = "Cb", .across = 2, .down = 2}, {.fields = "Cr", .across = 2, .down = 2}},
    .note = "Y takes n = width x height bytes. Cb begins at n, Cr at n + (n >> 2); lines of both have width / 2 "
        "bytes."};

constinit const Layout layout::yv12 = {
    .name = "yv12", .summary = "8-bit 4:2:0 in one buffer, Cr before Cb", .ffmpeg = "yuv420p (planes exchanged)",
    .gstreamer = "YV12", .fourcc = "YV12", .libyuv = "YV12",
    .samples = {{.fields = "Y"}, {.fields = "Cr", .across = 2, .down = 2}, {.fields = "Cb", .across = 2, .down = 2}},
    .note = "Y takes n = width x height bytes. Cr begins at n, Cb at n + (n >> 2); lines of both have width / 2 "
        "bytes."};

constinit const Layout layout::planar420 = {
    .name = "planar420", .summary = "8-bit 4:2:0 in three planes: what YUY2toYV12 writes", .ffmpeg = "yuv420p",
    .gstreamer = "I420", .libyuv = "I420",
    .samples = {{.fields = "Y"}, {.fields = "Cb", .across = 2, .down = 2}, {.fields = "Cr", .across = 2, .down = 2}},
    .same_bytes_as = &layout::i420, .note = "Luma lines are `dstPitch` bytes apart, chroma lines half of that."};

}  // namespace tintvert::catalog
