// Layouts without samples: coded ones, packets, and none.
#include "layouts.h"

namespace tintvert::catalog {

namespace {

int64_t no_lines(int64_t) { return 0; }

}  // namespace

// Of routines that take any layout, or none.
constinit const Layout layout::none = {.name = "none", .line_rule = no_lines};

// RTP packets with RFC 4175 payload.
constinit const Layout layout::rtp4175 = {.name = "rtp4175", .line_rule = no_lines};

constinit const Layout layout::rle8 = {
    .name = "rle8", .summary = "Run-length coded palette indices", .ffmpeg = "msrle in BMP", .fourcc = "mrle",
    .line_rule = no_lines,
    .note = R"(c v        c pixels of palette entry v, for c from 1 to 255
0 0        end of line
0 1        end of bitmap
0 2        end of bitmap: no movement exists
0 v ...    v index bytes and a pad byte if v is odd, for v from 3 to 255)"};

}  // namespace tintvert::catalog
