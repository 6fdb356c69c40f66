// 10-bit YCbCr.
#include "layouts.h"

namespace tintvert::catalog {

constinit const Layout layout::v210 = {
    .name = "v210", .summary = "10-bit 4:2:2, six pixels in four little-endian words", .ffmpeg = "codec v210",
    .gstreamer = "v210", .fourcc = "v210",
    .samples = {{.fields = "-:2 Cr0:10 Y0:10 Cb0:10  -:2 Y2:10 Cb2:10 Y1:10  -:2 Cb4:10 Y3:10 Cr2:10  -:2 Y5:10 "
        "Cr4:10 Y4:10", .across = 6, .word_bytes = 4}}, .line_rule = v210_line_bytes, .tight_rule = v210_groups_bytes};

constinit const Layout layout::pgroups = {
    .name = "pgroups", .summary = "10-bit 4:2:2, two pixels in five bytes, bits in order (RFC 4175)",
    .ffmpeg = "codec bitpacked", .gstreamer = "UYVP",
    .samples = {{.fields = "Cb:10 Y0:10 Cr:10 Y1:10", .across = 2, .word_bytes = 5, .big_endian = true}},
    .note = "Bits go out in order, bit 9 of a sample first."};

}  // namespace tintvert::catalog
