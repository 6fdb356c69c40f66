// `2vuy` to RGB by the shared tables, at full size or reduced by dropping.
#include <tintvert/decode.h>

#include "decode/packed_rgb.h"

using namespace tintvert;

namespace {

// Cb, Y0, Cr, Y1. An odd last pixel takes its whole group.
struct Groups {
    static constexpr long group_pixels = 2, group_bytes = 4;

    template <uint32_t, bool second>
    static Codes codes(const uint8_t* group)
    {
        return {group[0], group[1], group[2], second ? group[3] : group[1]};
    }

    // A quarter is left of half the pixel count, rounded down.
    static constexpr long pixels_for_quarter(long width) { return width & ~1L; }

    static constexpr int registers = 4;
    static constexpr long block_bytes = 128;
    static constexpr uint8_t sample_place(size_t n) { return static_cast<uint8_t>(n); }
#if defined(__x86_64__)
    TNTVT_AVX512 static Block block(const uint8_t* src)
    {
        static constexpr Places places = places_in<Groups>();
        return pick(places, _mm512_loadu_si512(src), _mm512_loadu_si512(src + 64));
    }
#endif
};

}  // namespace

void tntvt_yuv422_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    decode_frame_by_stride<Groups>({dst, dstStride, src, srcStride}, width, height, scale);
}

// QUIRK (keeps_first_luma_for_both): one word a group, from the first luma, written twice at full size.
// QUIRK (keeps_swapped_line_pairs): output lines 0, 1, 2, 3 show source lines 1, 0, 3, 2, and an odd count reads the
// line after the last one.
void tntvt_yuv422_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    need_tables();
    const bool exchanged = true;
    decode_frame<Groups, Rgb16>({dst, dstStride, src, srcStride}, width, height, scale == 0 ? 1 : scale, exchanged);
}
