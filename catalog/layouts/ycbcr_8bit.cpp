// 8-bit YCbCr, packed, and single planes of 8 bits.
#include "layouts.h"

namespace tintvert::catalog {

constinit const Layout layout::_2vuy = {
    .name = "2vuy", .summary = "8-bit 4:2:2, chroma first, unsigned chroma", .ffmpeg = "uyvy422", .gstreamer = "UYVY",
    .fourcc = "2vuy UYVY", .libyuv = "UYVY", .samples = {{.fields = "Cb Y0 Cr Y1", .across = 2}}};

constinit const Layout layout::_2yuv = {
    .name = "2yuv", .summary = "The bytes of 2vuy; which chroma is which does not matter", .ffmpeg = "uyvy422",
    .gstreamer = "UYVY", .fourcc = "2vuy UYVY", .libyuv = "UYVY", .samples = {{.fields = "Cb Y0 Cr Y1", .across = 2}},
    .same_bytes_as = &layout::_2vuy, .note = "Neutral chroma is 0x80."};

constinit const Layout layout::yuv2 = {
    .name = "yuv2", .summary = "8-bit 4:2:2, luma first, full range, signed chroma", .fourcc = "yuv2",
    .samples = {{.fields = "Y0 Cb:8s Y1 Cr:8s", .across = 2}}, .full_range = true,
    .note = "Chroma 0x00 is neutral, 0x7F highest, 0x81 lowest."};

constinit const Layout layout::yuvu = {
    .name = "yuvu", .summary = "The same layout as yuv2", .fourcc = "yuvu",
    .samples = {{.fields = "Y0 Cb:8s Y1 Cr:8s", .across = 2}}, .same_bytes_as = &layout::yuv2, .full_range = true,
    .note = "Chroma 0x00 is neutral, 0x7F highest, 0x81 lowest."};

constinit const Layout layout::yuvs = {
    .name = "yuvs", .summary = "8-bit 4:2:2, luma first, full range, unsigned chroma", .ffmpeg = "yuyv422",
    .gstreamer = "YUY2", .fourcc = "yuvs YUY2", .libyuv = "YUY2", .samples = {{.fields = "Y0 Cb Y1 Cr", .across = 2}},
    .full_range = true, .note = "Chroma 128 is neutral."};

constinit const Layout layout::YUY2 = {
    .name = "YUY2", .summary = "8-bit 4:2:2, luma first, no range change", .ffmpeg = "yuyv422", .gstreamer = "YUY2",
    .fourcc = "YUY2 yuvs", .libyuv = "YUY2", .samples = {{.fields = "Y0 Cb Y1 Cr", .across = 2}}};

constinit const Layout layout::yuv444 = {
    .name = "yuv444", .summary = "8-bit 4:4:4, contiguous", .gstreamer = "v308", .samples = {{.fields = "Y Cb Cr"}}};

constinit const Layout layout::yuvijg = {
    .name = "yuvijg", .summary = "8-bit 4:4:4, full range", .gstreamer = "v308", .samples = {{.fields = "Y Cb Cr"}},
    .full_range = true, .note = "Chroma 128 is neutral."};

constinit const Layout layout::alphay = {
    .name = "alphay", .summary = "One byte a pixel, a key carried as luma", .ffmpeg = "gray", .gstreamer = "GRAY8",
    .fourcc = "Y800", .libyuv = "I400", .samples = {{.fields = "Y"}}};

constinit const Layout layout::alpha = {
    .name = "alpha", .summary = "One byte a pixel, pitch equal to `width`", .ffmpeg = "gray", .gstreamer = "GRAY8",
    .fourcc = "Y800", .libyuv = "I400", .samples = {{.fields = "A"}}};

}  // namespace tintvert::catalog
