// The tables between video and full range, private to tntvt_2vuy_scale. They use no state but
// `gsfScaleTablesReady`.
#pragma once

#include <cstdint>

#include "frame/number.h"

namespace tintvert {

// Down spreads over spans of 219 and 224, luma from 0 and chroma from 1 on (254 steps).
constexpr uint8_t luma_down(int i) { return static_cast<uint8_t>(i * 219 / 255 + 16); }
constexpr uint8_t chroma_down(int i) { return static_cast<uint8_t>(i * 224 / 254 + 16); }
constexpr uint8_t chroma_down_255 = 241;

// QUIRK (keeps_divisors_one_above_the_span): 220 and 225, so that up is not the inverse of down.
constexpr uint8_t scaled_up(int i, double divisor, int white)
{
    if (i <= 16) return 0;
    if (i > white) return 255;
    return low_byte(256 * (i - 16) / divisor + 0.5);
}

constexpr uint8_t luma_up(int i) { return scaled_up(i, 220.0, 235); }
constexpr uint8_t chroma_up(int i) { return scaled_up(i, 225.0, 240); }

extern uint8_t gsbScaleLumaDown[256];    // full to video
extern uint8_t gsbScaleChromaDown[256];  //
extern uint8_t gsbScaleLumaUp[256];      // video to full, clamped
extern uint8_t gsbScaleChromaUp[256];    //
extern uint8_t gsfScaleTablesReady;      // bit 0: all of the above are complete

void need_scale_tables();  // fills them unless the flag is up

}  // namespace tintvert
