// Full-range samples to video range.
#pragma once

#include <cstdint>

namespace tintvert {

// 0 to 255 becomes 16 to 235; nothing lies outside, so nothing is clamped.
constexpr uint8_t video_luma(uint32_t y) { return static_cast<uint8_t>(y * 219 / 255 + 16); }

// 1 to 255 becomes 16 to 240 about 128.
// QUIRK (keeps_zero_chroma_like_one): the scale begins at 1, and 0 counts as 1.
// QUIRK (keeps_divisors_255_and_254): luma is divided by 255 and chroma by 254; chroma 1 and 2 both
// give 16.
constexpr uint8_t video_chroma(uint32_t c) { return static_cast<uint8_t>((c == 0 ? 0 : c - 1) * 224 / 254 + 16); }

static_assert(video_luma(0) == 16 && video_luma(128) == 125 && video_luma(255) == 235);
static_assert(video_chroma(0) == 16 && video_chroma(1) == 16 && video_chroma(2) == 16 && video_chroma(3) == 17);
static_assert(video_chroma(128) == 128 && video_chroma(255) == 240);

}  // namespace tintvert
