// `v210` to RGB by the shared tables, at full size or reduced by dropping. Ten bits are cut to eight as the samples are
// picked out; from there on a pixel is the one that `2vuy` gives.
#include <tintvert/decode.h>

#include "decode/packed_rgb.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

struct Groups {
    static constexpr long group_pixels = v210_group_pixels, group_bytes = v210_group_bytes;

    template <uint32_t pair, bool second>
    static Codes codes(const uint8_t* group)
    {
        constexpr uint32_t n = pair * v210_pair_samples;
        const uint32_t y0 = top_eight(group, n + 1);
        return {top_eight(group, n), y0, top_eight(group, n + 2), second ? top_eight(group, n + 3) : y0};
    }

    static constexpr long pixels_for_quarter(long width) { return width; }

    // Six samples from two words are in six bytes of eight.
    static constexpr int registers = 3;
    static constexpr long block_bytes = 8 * group_bytes;
    static constexpr uint8_t sample_place(size_t n) { return static_cast<uint8_t>(n / 6 * 8 + n % 6); }
#if defined(__x86_64__)
    TNTVT_AVX512 static Block block(const uint8_t* src)
    {
        static constexpr Places places = places_in<Groups>();
        return pick(places, top_bytes(src), top_bytes(src + 64));
    }
#endif

private:
    // Samples count on from group to group.
    static uint32_t top_eight(const uint8_t* group, uint32_t sample) { return v210_sample(group, sample) >> 2; }

#if defined(__x86_64__)
    TNTVT_AVX512 static __m512i top_bytes(const uint8_t* src)
    {
        constexpr long long first_bits = 2 | 12 << 8 | 22 << 16 | 34 << 24 | 44LL << 32 | 54LL << 40;
        return _mm512_multishift_epi64_epi8(_mm512_set1_epi64(first_bits), _mm512_loadu_si512(src));
    }
#endif
};

}  // namespace

void tntvt_v210_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    decode_frame_by_stride<Groups>({dst, dstStride, src, srcStride}, width, height, scale);
}

// QUIRK (keeps_first_luma_of_v210_pairs): the second luma of a pair is never read.
// QUIRK (keeps_line_order): lines stay in their order; only tntvt_yuv422_rgb16 exchanges neighbours.
void tntvt_v210_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    need_tables();
    decode_frame<Groups, Rgb16>({dst, dstStride, src, srcStride}, width, height, scale == 0 ? 1 : scale);
}
