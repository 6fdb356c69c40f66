#include "version.h"

#include "core.h"
#include "inspect/chafa_picture.h"
#include "io/sources.h"
#include "peers/peer.h"

namespace tintvert::tool {

std::string version_text()
{
    const char* const clips = reads_clips() ? "read, by libavformat" : "not read, built without libavformat";
    const char* const pictures =
        has_chafa() ? "symbols, sixels and kitty too, by libchafa" : "letters and half blocks, built without libchafa";
    return std::string("tintvert " TINTVERT_VERSION) + "\nMOV and AVI: " + clips +
           "\nPictures in a terminal: " + pictures +
           "\nPeers of verify: " + (has_libyuv() ? "with libyuv, " : "without libyuv, ") +
           (has_zimg() ? "with zimg" : "without zimg");
}

}  // namespace tintvert::tool
