// The fixed-point tables of the 8-bit decoders: ITU-R BT.601, video range in, full range out, four
// fractional bits. Table building and lookup use no state but `fTablesSet`.
#pragma once

#include <cstdint>

#include "frame/number.h"

namespace tintvert {

struct ChromaTerms {
    int16_t first, second;
};

// Products in the order written, truncated toward zero.
constexpr int16_t luma_term(int k) { return static_cast<int16_t>(truncate((k - 16) * 298.082 * 0.0625)); }

constexpr int16_t chroma_term(int k, double weight)
{
    return static_cast<int16_t>(truncate((k - 128) * weight * 0.0625));
}

constexpr ChromaTerms cb_terms(int k) { return {chroma_term(k, -100.291), chroma_term(k, 516.411)}; }
constexpr ChromaTerms cr_terms(int k) { return {chroma_term(k, 408.583), chroma_term(k, -208.12)}; }
constexpr uint8_t clipped(int k) { return static_cast<uint8_t>(k > 255 ? 255 : k); }

extern int16_t Atab[256];        // luma
extern ChromaTerms BEtab[256];   // Cb: its share of green, then blue
extern ChromaTerms DCtab[256];   // Cr: red, then its share of green
extern uint8_t clip10to8[1024];  // the largest sum of terms is 8551, and 8551 >> 4 is 534
extern uint8_t fTablesSet;       // bit 0: all of the above are complete

void need_tables();  // fills them unless the flag is up

// The samples of a pair of pixels.
struct Codes {
    uint32_t cb, y0, cr, y1;
};

struct Bgr {
    uint8_t blue, green, red;
};

// A negative sum goes to entry 0 by the mask, with no branch.
inline uint8_t clamp_sum(int32_t sum) { return clip10to8[(~(sum >> 16) & sum) >> 4]; }

inline Bgr decode(uint32_t cb, uint32_t y, uint32_t cr)
{
    const int32_t luma = Atab[y];
    const ChromaTerms b = BEtab[cb];
    const ChromaTerms d = DCtab[cr];
    return {clamp_sum(luma + b.second), clamp_sum(luma + (b.first + d.second)), clamp_sum(luma + d.first)};
}

// `rgb16`: x1 r5 g5 b5.
inline uint16_t rgb16_word(Bgr pixel)
{
    return static_cast<uint16_t>((((pixel.red << 7) & 0x7C00) + ((pixel.green & 0xF8) << 2)) | pixel.blue >> 3);
}

}  // namespace tintvert
