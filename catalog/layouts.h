// The memory layouts: the names that they have elsewhere and two lines of arithmetic. Their samples are in
// samples.h.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tintvert::catalog {

enum class Planes { packed, yuv422, yuv420, fields422 };

struct Layout {
    std::string_view name, summary;
    std::string_view ffmpeg, gstreamer, fourcc, libyuv;  // empty if there is none
    int64_t (*line_bytes)(int64_t width);                // of the packed or the luma plane, without slack; 0: no lines
    Planes planes;
    std::string_view note;  // what their samples (samples.h) do not tell
};

std::span<const Layout> layouts();
const Layout* find_layout(std::string_view name);  // null if there is none

// The bytes of a frame without slack, all planes together.
int64_t frame_bytes(const Layout& layout, int64_t width, int64_t height);

}  // namespace tintvert::catalog
