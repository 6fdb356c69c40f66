#include "peers/peer.h"

#ifdef TINTVERT_LIBYUV

#include <libyuv.h>

#include <algorithm>
#include <iterator>

namespace tintvert::core {
namespace {

struct Frames {
    const uint8_t* from;
    uint8_t* to;
    int width, height;

    int pixels() const { return width * height; }
};

// libyuv counts the lines of 16-bit channels in channels.
const uint16_t* wide(const uint8_t* bytes) { return reinterpret_cast<const uint16_t*>(bytes); }
uint16_t* wide(uint8_t* bytes) { return reinterpret_cast<uint16_t*>(bytes); }

template <int (*routine)(const uint8_t*, int, uint8_t*, int, int, int), int from, int to, int down = 1>
void pixels(const Frames& f)
{
    routine(f.from, f.width * from, f.to, f.width * to, f.width, f.height * down);
}

void i420(const Frames& f, const uint8_t* cb, const uint8_t* cr)
{
    libyuv::I420ToUYVY(f.from, f.width, cb, f.width / 2, cr, f.width / 2, f.to, f.width * 2, f.width, f.height);
}

struct Function {
    std::string_view name;
    int bits;  // of a pixel of the result
    void (*call)(const Frames& f);
};

constexpr Function functions[] = {
    {"ARGBToABGR", 32, pixels<libyuv::ARGBToABGR, 4, 4>},
    {"ARGBToBGRA", 32, pixels<libyuv::ARGBToBGRA, 4, 4>},
    {"ARGBToRGBA", 32, pixels<libyuv::ARGBToRGBA, 4, 4>},
    {"RGBAToARGB", 32, pixels<libyuv::RGBAToARGB, 4, 4>},
    {"ARGBToRGB24", 24, pixels<libyuv::ARGBToRGB24, 4, 3>},
    {"ARGBToRGB24, upside down", 24, pixels<libyuv::ARGBToRGB24, 4, 3, -1>},
    {"ARGBToRAW", 24, pixels<libyuv::ARGBToRAW, 4, 3>},
    {"RGB24ToARGB", 32, pixels<libyuv::RGB24ToARGB, 3, 4>},
    {"RAWToARGB", 32, pixels<libyuv::RAWToARGB, 3, 4>},
    {"ARGBCopy, upside down", 32, pixels<libyuv::ARGBCopy, 4, 4, -1>},
    {"AR64ToARGB", 32,
     [](const Frames& f) { libyuv::AR64ToARGB(wide(f.from), f.width * 4, f.to, f.width * 4, f.width, f.height); }},
    {"AB64ToARGB", 32,
     [](const Frames& f) { libyuv::AB64ToARGB(wide(f.from), f.width * 4, f.to, f.width * 4, f.width, f.height); }},
    {"ARGBToAR64", 64,
     [](const Frames& f) { libyuv::ARGBToAR64(f.from, f.width * 4, wide(f.to), f.width * 4, f.width, f.height); }},
    {"ARGBToAB64", 64,
     [](const Frames& f) { libyuv::ARGBToAB64(f.from, f.width * 4, wide(f.to), f.width * 4, f.width, f.height); }},
    {"I420ToUYVY", 16, [](const Frames& f) { i420(f, f.from + f.pixels(), f.from + f.pixels() * 5 / 4); }},
    {"I420ToUYVY, Cr first", 16, [](const Frames& f) { i420(f, f.from + f.pixels() * 5 / 4, f.from + f.pixels()); }},
    {"I422ToUYVY", 16,
     [](const Frames& f) {
         libyuv::I422ToUYVY(f.from, f.width, f.from + f.pixels(), f.width / 2, f.from + f.pixels() * 3 / 2, f.width / 2,
                            f.to, f.width * 2, f.width, f.height);
     }},
    {"UYVYToI422", 16,
     [](const Frames& f) {
         libyuv::UYVYToI422(f.from, f.width * 2, f.to, f.width, f.to + f.pixels(), f.width / 2,
                            f.to + f.pixels() * 3 / 2, f.width / 2, f.width, f.height);
     }},
    {"YUY2ToI420", 12,
     [](const Frames& f) {
         libyuv::YUY2ToI420(f.from, f.width * 2, f.to, f.width, f.to + f.pixels(), f.width / 2,
                            f.to + f.pixels() * 5 / 4, f.width / 2, f.width, f.height);
     }},
};

}  // namespace

bool has_libyuv() { return true; }

PeerAnswer answer_of_libyuv(const PeerQuestion& question)
{
    const Function& function = *std::ranges::find(functions, question.asked, &Function::name);
    std::vector<uint8_t> result(static_cast<size_t>(question.width * question.height * function.bits / 8));
    function.call(
        {question.frame.data(), result.data(), static_cast<int>(question.width), static_cast<int>(question.height)});
    return {.frame = std::move(result)};
}

}  // namespace tintvert::core

#else

namespace tintvert::core {

bool has_libyuv() { return false; }

PeerAnswer answer_of_libyuv(const PeerQuestion&) { return {.why_none = "libyuv not built in"}; }

}  // namespace tintvert::core

#endif
