// libyuv's function for a pair of layouts, or for a routine that knows none.
#include "peers/peers.h"

#ifdef TINTVERT_PEER_LIBYUV
#include <libyuv.h>

#include "layouts.h"

namespace tintvert::bench {

using namespace catalog;

namespace {

struct Frames {
    const Measured& measured;
    uint8_t *dst, *src;
    int dst_stride, src_stride, width, height;

    uint8_t* plane(Arg argument) const { return measured.buffer(argument); }
    int samples() const { return width * height; }
};

template <auto function>
void packed(const Frames& f)
{
    function(f.src, f.src_stride, f.dst, f.dst_stride, f.width, f.height);
}

// 16-bit channels; lines are counted in channels.
template <auto function>
void from_deep(const Frames& f)
{
    function(reinterpret_cast<uint16_t*>(f.src), f.src_stride / 2, f.dst, f.dst_stride, f.width, f.height);
}

template <auto function>
void to_deep(const Frames& f)
{
    function(f.src, f.src_stride, reinterpret_cast<uint16_t*>(f.dst), f.dst_stride / 2, f.width, f.height);
}

// Three planes that follow each other in one buffer.
template <auto function>
void from_420(const Frames& f)
{
    const uint8_t *cb = f.src + f.samples(), *cr = cb + f.samples() / 4;
    function(f.src, f.width, cb, f.width / 2, cr, f.width / 2, f.dst, f.dst_stride, f.width, f.height);
}

template <auto function>
void to_420(const Frames& f)
{
    uint8_t *cb = f.dst + f.samples(), *cr = cb + f.samples() / 4;
    function(f.src, f.src_stride, f.dst, f.width, cb, f.width / 2, cr, f.width / 2, f.width, f.height);
}

void from_422(const Frames& f)
{
    libyuv::I422ToUYVY(f.plane(Arg::y), f.width, f.plane(Arg::cb), f.width / 2, f.plane(Arg::cr), f.width / 2, f.dst,
                       f.width * 2, f.width, f.height);
}

void to_422(const Frames& f)
{
    libyuv::UYVYToI422(f.src, f.width * 2, f.plane(Arg::y), f.width, f.plane(Arg::cb), f.width / 2, f.plane(Arg::cr),
                       f.width / 2, f.width, f.height);
}

void to_three_planes(const Frames& f)
{
    libyuv::YUY2ToI420(f.src, f.width * 2, f.plane(Arg::y), f.width, f.plane(Arg::cb), f.width / 2, f.plane(Arg::cr),
                       f.width / 2, f.width, f.height);
}

void upside_down(const Frames& f) { libyuv::ARGBCopy(f.src, f.src_stride, f.dst, f.dst_stride, f.width, -f.height); }

void half_of_each(const Frames& f)
{
    libyuv::InterpolatePlane(f.dst, f.dst_stride, f.src, f.src_stride, f.dst, f.dst_stride, f.width * 4, f.height, 128);
}

// A lookup in a table of its own for each channel, where the frame stands.
void lookup(const Frames& f)
{
    static const std::vector<uint8_t> table(1024, 7);
    uint8_t* const frame = f.dst != nullptr ? f.dst : f.plane(Arg::buffer);
    const int bytes = f.dst != nullptr ? f.dst_stride * f.height : f.samples() * 2;
    libyuv::ARGBColorTable(frame, bytes, table.data(), 0, 0, bytes / 4, 1);
}

// libyuv writes four bytes a pixel where ours may write three; these go to memory of their own.
void to_argb_of_its_own(const Frames& f)
{
    static std::vector<uint8_t> argb;
    argb.resize(static_cast<size_t>(f.samples()) * 4);
    libyuv::UYVYToARGB(f.src, f.src_stride, argb.data(), f.width * 4, f.width, f.height);
}

int line_bytes(std::string_view layout, int width)
{
    const Layout* found = find_layout(layout);
    return found == nullptr ? width * 4 : static_cast<int>(found->line_bytes(width));
}

struct Function {
    std::string_view from, to, name;  // a routine's name in `to` where `from` is empty
    void (*work)(const Frames&);
};

using namespace libyuv;
constexpr Function functions[] = {
    {"2vuy", "rgb32", "UYVYToARGB", packed<UYVYToARGB>},
    {"2vuy", "rgb24", "UYVYToARGB", to_argb_of_its_own},
    {"2vuy", "rgb16", "UYVYToARGB", to_argb_of_its_own},
    {"rgb32", "2vuy", "ARGBToUYVY", packed<ARGBToUYVY>},
    {"BGRA", "2vuy", "ARGBToUYVY", packed<ARGBToUYVY>},
    {"planar422", "2vuy", "I422ToUYVY", from_422},
    {"2vuy", "planar422", "UYVYToI422", to_422},
    {"i420", "2vuy", "I420ToUYVY", from_420<I420ToUYVY>},
    {"2vuy", "i420", "UYVYToI420", to_420<UYVYToI420>},
    {"YUY2", "planar420", "YUY2ToI420", to_three_planes},
    {"i420", "rgb32", "I420ToARGB", from_420<I420ToARGB>},
    {"rgba32", "bgra32", "ARGBToABGR", packed<ARGBToABGR>},
    {"rgb32", "bgr32", "ARGBToABGR", packed<ARGBToABGR>},
    {"rgba32", "abgr32", "ARGBToBGRA", packed<ARGBToBGRA>},
    {"rgba32", "rgb24", "ARGBToRGB24", packed<ARGBToRGB24>},
    {"rgb32", "rgb24", "ARGBToRGB24", packed<ARGBToRGB24>},
    {"rgba32", "bgr24", "ARGBToRAW", packed<ARGBToRAW>},
    {"rgb32", "bgr24", "ARGBToRAW", packed<ARGBToRAW>},
    {"rgb24", "rgba32", "RGB24ToARGB", packed<RGB24ToARGB>},
    {"rgb24", "rgb32", "RGB24ToARGB", packed<RGB24ToARGB>},
    {"rgb24", "bgra32", "RAWToARGB", packed<RAWToARGB>},
    {"rgb24", "bgr32", "RAWToARGB", packed<RAWToARGB>},
    {"rgb16", "rgba32", "ARGB1555ToARGB", packed<ARGB1555ToARGB>},
    {"rgb16", "rgb32", "ARGB1555ToARGB", packed<ARGB1555ToARGB>},
    {"rgb10", "rgba32", "AR30ToARGB", packed<AR30ToARGB>},
    {"rgba64", "rgba32", "AR64ToARGB", from_deep<AR64ToARGB>},
    {"bgra64", "rgba32", "AB64ToARGB", from_deep<AB64ToARGB>},
    {"rgba32", "rgba64", "ARGBToAR64", to_deep<ARGBToAR64>},
    {"bgra32", "rgba64", "ARGBToAB64", to_deep<ARGBToAB64>},
    {"rgba", "alpha", "ARGBExtractAlpha", packed<ARGBExtractAlpha>},
    {"alpha", "rgba", "ARGBCopyYToAlpha", packed<ARGBCopyYToAlpha>},
    {"", "tntvt_flip_horz", "ARGBMirror", packed<ARGBMirror>},
    {"", "tntvt_flip_vert", "ARGBCopy", upside_down},
    {"", "tntvt_copy_dissolve", "InterpolatePlane", half_of_each},
    {"", "tntvt_2vuy_scale", "ARGBColorTable", lookup},
    {"", "tntvt_rgb_to_st2084", "ARGBColorTable", lookup},
    {"", "tntvt_st2084_to_rgb", "ARGBColorTable", lookup},
    {"", "tntvt_yuv2_to_st2084", "ARGBColorTable", lookup},
    {"", "tntvt_st2084_to_yuv2", "ARGBColorTable", lookup},
};

}  // namespace

void offer_libyuv(const Routine& routine, const Measured& measured, std::vector<Peer>* peers)
{
    for (const Function& function : functions) {
        const bool named = function.from.empty() && function.to == routine.name;
        if (!named && (function.from != routine.from->name || function.to != routine.to->name)) continue;
        const int width = static_cast<int>(measured.size.width), height = static_cast<int>(measured.size.height);
        const Frames frames{measured,
                            measured.buffer(Arg::dst),
                            measured.buffer(Arg::src),
                            line_bytes(routine.to->name, width),
                            line_bytes(routine.from->name, width),
                            width,
                            height};
        peers->push_back({"libyuv " + std::string{function.name}, [work = function.work, frames] { work(frames); }});
    }
}

}  // namespace tintvert::bench

#else

namespace tintvert::bench {
void offer_libyuv(const catalog::Routine&, const Measured&, std::vector<Peer>*) {}
}  // namespace tintvert::bench

#endif
