#include "catalog.h"
#include "facts.h"
#include "peers/check.h"

namespace tintvert::core {
namespace {

constexpr std::string_view gstreamer = "gst-launch-1.0", oiiotool = "oiiotool", libyuv = "libyuv", zimg = "zimg";

// Commands that the catalogue calls near, and how near they are.
struct Near {
    std::string_view routine;
    PeerCheck::Depth depth;
};
constexpr Near nears[] = {
    {"tntvt_rgba32_rgba64", PeerCheck::upper8},
    {"tntvt_rgba32_argb64", PeerCheck::upper8},
    {"tntvt_bgra32_rgba64", PeerCheck::upper8},
    {"_v210_to_rgb", PeerCheck::within1},
};

// libyuv names a pixel from the highest byte of its word down: its ARGB is B, G, R, A in memory.
constexpr PeerCheck more[] = {
    {"tntvt_planar_2vuy", libyuv, "I422ToUYVY"},
    {"tntvt_2vuy_planar", libyuv, "UYVYToI422"},
    {"tntvt_i420_2vuy", libyuv, "I420ToUYVY"},
    {"tntvt_yv12_2vuy", libyuv, "I420ToUYVY, Cr first"},
    {"YUY2toYV12", libyuv, "YUY2ToI420"},
    {"tntvt_yuv422_rgb24", zimg, "BT.601 of 8 bits", PeerCheck::same, PeerCheck::within1},
    {"tntvt_v210_rgb24", zimg, "BT.601 of 8 bits", PeerCheck::same, PeerCheck::within1},
    {"_v210_to_rgb", zimg, "BT.601 of 10 bits", PeerCheck::same, PeerCheck::within1},
    {"tntvt_rgb12_bgr48", oiiotool, "dpx", PeerCheck::back},
    {"tntvt_rgb48_rgb12", oiiotool, "tiff", PeerCheck::same, PeerCheck::bytes},
    {"tntvt_rgb48_12_rgb12", oiiotool, "tiff", PeerCheck::same, PeerCheck::bytes},
    {"rgba2argb", libyuv, "RGBAToARGB"},
    {"bgra2abgr", libyuv, "RGBAToARGB"},
    {"bgra2abgrMMX", libyuv, "RGBAToARGB"},
    {"abgr2bgraMMX", libyuv, "RGBAToARGB"},
    {"argb2rgba", libyuv, "ARGBToRGBA"},
    {"abgr2bgra", libyuv, "ARGBToRGBA"},
    {"bgra2argb", libyuv, "ARGBToBGRA"},
    {"argb2bgra", libyuv, "ARGBToBGRA"},
    {"abgr2argb", libyuv, "ARGBToABGR"},
    {"argb2abgr", libyuv, "ARGBToABGR"},
    {"bgra2rgba", libyuv, "ARGBToABGR"},
    {"tntvt_rgba32_bgra32_inplace", libyuv, "ARGBToABGR"},
    {"tntvt_rgb32_bgr32_inplace", libyuv, "ARGBToABGR"},
    {"tntvt_rgba32_abgr32_inplace", libyuv, "ARGBToBGRA"},
    {"tntvt_rgba32_argb32", libyuv, "RGBAToARGB"},
    {"tntvt_rgba32_rgb24_inplace", libyuv, "ARGBToRGB24"},
    {"tntvt_rgba32_rgb24", libyuv, "ARGBToRGB24"},
    {"tntvt_rgb32_rgb24_inplace", libyuv, "ARGBToRGB24"},
    {"tntvt_rgb32_rgb24", libyuv, "ARGBToRGB24"},
    {"tntvt_rgba32_bgr24_inplace", libyuv, "ARGBToRAW"},
    {"tntvt_rgb32_bgr24_inplace", libyuv, "ARGBToRAW"},
    {"tntvt_rgba32_rgb24_invert", libyuv, "ARGBToRGB24, upside down"},
    {"tntvt_rgb24_rgba32_inplace", libyuv, "RGB24ToARGB"},
    {"tntvt_rgb24_rgba32", libyuv, "RGB24ToARGB"},
    {"tntvt_rgb24_rgb32_inplace", libyuv, "RGB24ToARGB"},
    {"tntvt_rgb24_rgb32", libyuv, "RGB24ToARGB"},
    {"tntvt_rgb24_bgra32_inplace", libyuv, "RAWToARGB"},
    {"tntvt_rgb24_bgr32_inplace", libyuv, "RAWToARGB"},
    {"tntvt_rgb16_rgb32", gstreamer,
     "gst-launch-1.0 filesrc location=in ! rawvideoparse format=bgra width=W height=H ! videoconvert dither=none ! "
     "video/x-raw,format=RGB15 ! filesink location=out",
     PeerCheck::back},
    {"tntvt_rgba64_rgba32", libyuv, "AR64ToARGB"},
    {"tntvt_bgra64_rgba32", libyuv, "AB64ToARGB"},
    {"tntvt_rgba32_rgba64", libyuv, "ARGBToAR64", PeerCheck::same, PeerCheck::upper8},
    {"tntvt_bgra32_rgba64", libyuv, "ARGBToAB64", PeerCheck::same, PeerCheck::upper8},
    {"tntvt_flip_vert", libyuv, "ARGBCopy, upside down"},
    {"tntvt_rgb_to_st2084", zimg, "linear to ST 2084"},
};

}  // namespace

std::vector<PeerCheck> peer_checks()
{
    std::vector<PeerCheck> checks;
    for (const catalog::Routine& routine : catalog::routines()) {
        if (const auto peer = catalog::peer_of(routine)) {
            const std::string_view program = peer->command.substr(0, peer->command.find(' '));
            if (peer->agreement == catalog::Peer::exact) checks.push_back({routine.name, program, peer->command});
            for (const Near& near : nears)
                if (near.routine == routine.name)
                    checks.push_back({routine.name, program, peer->command, PeerCheck::same, near.depth});
        }
        for (const PeerCheck& check : more)
            if (check.routine == routine.name) checks.push_back(check);
    }
    return checks;
}

}  // namespace tintvert::core
