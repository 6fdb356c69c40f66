// The tables of the 10-bit decoder, indexed by whole 10-bit codes: ITU-R BT.601, video range in, full range
// out, six fractional bits. They have nothing in common with the tables of the 8-bit decoders but the matrix.
#pragma once

#include <cstdint>

#include "frame/number.h"

namespace tintvert {

struct V210Terms {
    int16_t first, second;
};

// Products in the order written, truncated toward zero. Each weight is four times that of the 8-bit tables.
constexpr int16_t v210_luma_term(int y) { return static_cast<int16_t>(truncate((y - 64) * 1192.328 * 0.015625)); }

constexpr int16_t v210_chroma_term(int c, double weight)
{
    return static_cast<int16_t>(truncate((c - 512) * weight * 0.015625));
}

constexpr V210Terms v210_cb_terms(int c) { return {v210_chroma_term(c, -401.164), v210_chroma_term(c, 2065.644)}; }
constexpr V210Terms v210_cr_terms(int c) { return {v210_chroma_term(c, 1634.332), v210_chroma_term(c, -832.48)}; }

constexpr int v210_clip_zero = 1024;  // the entry of the value 0
constexpr uint8_t v210_clipped(int value) { return static_cast<uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value); }

extern int16_t v210_Atab[1024];       // luma
extern V210Terms v210_BEtab[1024];    // Cb: its share of green, then blue
extern V210Terms v210_DCtab[1024];    // Cr: red, then its share of green
extern uint8_t v210_clip10to8[2048];  // values -1024 to 1023; shifted sums lie between -277 and 536
extern int32_t _v210_to_rgb_initted;  // 1: all of the above are complete

inline uint8_t v210_clip(int32_t sum) { return v210_clip10to8[(sum >> 6) + v210_clip_zero]; }

}  // namespace tintvert
