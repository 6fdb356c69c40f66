// The memory layouts: one record each, in layouts/. What the samples of a layout imply is derived from them.
#pragma once

#include <cstdint>
#include <string_view>

#include "few.h"
#include "table.h"

namespace tintvert::catalog {

enum class Planes { packed, yuv422, yuv420, fields422 };

// Ordered: each has all that those before it have.
enum class Chroma { none, c420, c422, c444 };

// Which bits of which word are which component of which pixel. A plane repeats a unit of `across` x `down` pixels. Its
// words are filled by the fields one after the other, in each word from the highest bit down:
// COMPONENT[PIXEL][:BITS[s]], pixel 0 and 8 bits by default, s for two's complement; `-` is not used.
struct PlanePicture {
    std::string_view fields;
    int across = 1, down = 1;
    int field = 0;  // 1 or 2 where a plane has every other line of the frame, 0 for all
    int word_bytes = 1;
    bool big_endian = false;
    std::string_view form = {};  // of a layout with two arrangements, the usual one first
};

struct Layout {
    std::string_view name = {}, summary = {};
    std::string_view ffmpeg = {}, gstreamer = {}, fourcc = {}, libyuv = {};  // names elsewhere; empty if there is none
    Few<PlanePicture, 6> samples = {};                                       // samples.h; none in a coded layout
    int64_t (*line_rule)(int64_t width) = nullptr;                           // null: as many bytes as the samples take
    int64_t (*tight_rule)(int64_t width) = nullptr;  // where `line_rule` pads lines: without that padding
    const Layout* same_bytes_as = nullptr;           // where one arrangement of bytes has several names: the usual one
    bool full_range = false;                         // YCbCr of full range
    std::string_view note = {};                      // what the samples do not say

    int64_t line_bytes(int64_t width) const;  // of the packed or the luma plane, without slack; 0: no lines
    int64_t tight_line_bytes(int64_t width) const;
    Planes planes() const;
    Chroma chroma() const;
    int bits() const;    // of a sample
    bool alpha() const;  // beside colour
    const Layout& bytes() const { return same_bytes_as == nullptr ? *this : *same_bytes_as; }
};

namespace layout {
#define TNTVT_LAYOUT(name) extern const Layout name;
#include "layouts.def"
#undef TNTVT_LAYOUT
extern const Layout none, rtp4175;  // not listed
}  // namespace layout

Table<Layout> layouts();
const Layout* find_layout(std::string_view name);  // null if there is none

// The bytes of a frame without slack, all planes together.
int64_t frame_bytes(const Layout& layout, int64_t width, int64_t height);

// Whole groups of `v210`: 16 bytes for 6 pixels; and lines of them, padded to 128 bytes for 48 pixels.
constexpr int64_t v210_groups_bytes(int64_t pixels) { return (pixels + 5) / 6 * 16; }
constexpr int64_t v210_line_bytes(int64_t width) { return (width + 47) / 48 * 128; }

}  // namespace tintvert::catalog
