// Alpha in and out of `rgba` frames. An alpha plane has no stride: its pitch is `width`.
#include <tintvert/ycbcr8.h>

#include "frame/walk.h"
#include "ycbcr8/alpha_simd.h"

using namespace tintvert;

namespace {

// The key becomes a grey picture of itself, alpha included.
struct AlphaToRgba {
    static constexpr long src_bytes = 1, dst_bytes = 4;
    using Simd = SpreadAlpha;
    static void pixel(uint8_t* dst, const uint8_t* src) { store<uint32_t>(dst, src[0] * 0x01010101u); }
};

// QUIRK (keeps_first_byte_as_alpha): byte 0 is taken, though the two routines below write byte 3.
struct RgbaToAlpha {
    static constexpr long src_bytes = 4, dst_bytes = 1;
    static void pixel(uint8_t* dst, const uint8_t* src) { dst[0] = src[0]; }
};

}  // namespace

int tntvt_alpha_to_rgba(void* dst, long, void* src, long dstStride, long width, long height)
{
    walk_forward<AlphaToRgba>({dst, dstStride, src, width}, width, height);
    return 0;
}

int tntvt_rgba_to_alpha(void* dst, long, void* src, long srcStride, long width, long height)
{
    walk_forward<RgbaToAlpha>({dst, width, src, srcStride}, width, height);
    return 0;
}

int tntvt_rgba_setalpha(void* dst, long dstStride, unsigned int alpha, long width, long height)
{
    if (width < 1) return 0;
    const InstructionSet level = instruction_set();
    const uint8_t low = static_cast<uint8_t>(alpha);
    for (long r = 0; r < height; ++r) {
        uint8_t* line = advance(bytes(dst), line_offset(r, dstStride));
        long x = run_simd<SetAlpha>(level, {{line, width * 4}}, {}, line, low, width);
        for (; x < width; ++x) line[4 * x + 3] = low;
    }
    return 0;
}

// QUIRK (keeps_negative_width_as_unsigned): a negative `width` counts from 2^31 pixels up, first pixel first until
// memory ends.
int tntvt_rgba_addalpha(void* src, void* dst, long srcStride, long dstStride, unsigned int alpha, int width, int height)
{
    if (width == 0) return 0;
    const InstructionSet level = instruction_set();
    const uint8_t low = static_cast<uint8_t>(alpha);
    const long pixels = static_cast<unsigned int>(width);
    for (long r = long{height} - 1; r >= 0; --r) {
        uint8_t* to = advance(bytes(dst), line_offset(r, dstStride));
        const uint8_t* from = advance(bytes(src), line_offset(r, srcStride));
        long x = run_simd<AddAlpha>(level, {{to, width * 4l}}, {{from, width * 3l}}, to, from, low, width);
        for (; x < pixels; ++x) {
            to[4 * x] = from[3 * x];
            to[4 * x + 1] = from[3 * x + 1];
            to[4 * x + 2] = from[3 * x + 2];
            to[4 * x + 3] = low;
        }
    }
    return 0;
}
