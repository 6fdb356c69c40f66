// Which frames of a file, how large they are and where they lie: one way to say it, for every command.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tintvert::core {

struct Size {
    int64_t width = 0, height = 0;
    bool operator==(const Size&) const = default;
};

struct ClipOptions {
    std::string size;    // 1920x1080; empty if not given
    std::string stride;  // of the lines in a raw file; empty if they are as the layout has them
    std::string frames;  // A:B or A; empty for all
    int64_t offset = 0;  // of the first frame in a raw file
};

// Throws Failure for what is no size (usage), and for one below 1 or of more than 2^28 pixels (unsafe).
Size size_of(const std::string& text);
void need_sane_size(Size size);

// From frame `first` up to frame `end`, which is -1 for all that come.
struct FrameRange {
    int64_t first = 0, end = -1;
};
FrameRange frame_range_of(const std::string& text);

// auto48: 128 bytes for each 48 pixels of v210; auto64: lines rounded up to 64 bytes; packed: whole pixels, pairs
// or groups, and no padding; or a number of bytes. 0 for an empty text.
int64_t stride_of(const std::string& text, std::string_view layout, Size size);

}  // namespace tintvert::core
