#include "version.h"

namespace tintvert::tool {
namespace {

#ifdef TINTVERT_LIBAVFORMAT
constexpr const char* clips = "read, by libavformat";
#else
constexpr const char* clips = "not read, built without libavformat";
#endif

#ifdef TINTVERT_CHAFA
constexpr const char* pictures = "symbols, sixels and kitty too, by libchafa";
#else
constexpr const char* pictures = "letters and half blocks, built without libchafa";
#endif

#ifdef TINTVERT_LIBYUV
constexpr const char* yuv = "with libyuv";
#else
constexpr const char* yuv = "without libyuv";
#endif

#ifdef TINTVERT_ZIMG
constexpr const char* zimg = "with zimg";
#else
constexpr const char* zimg = "without zimg";
#endif

}  // namespace

std::string version_text()
{
    return std::string("tintvert " TINTVERT_VERSION) + "\nMOV and AVI: " + clips +
           "\nPictures in a terminal: " + pictures + "\nPeers of verify: " + yuv + ", " + zimg;
}

}  // namespace tintvert::tool
