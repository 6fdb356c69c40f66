// Half of one frame and half of another.
#include <tintvert/field.h>

#include "frame/autovectorized.h"
#include "frame/imports.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "frame/walk.h"

using namespace tintvert;

namespace {

// QUIRK (keeps_halves_before_sum): each byte loses its low bit before the sum, so 1 and 1 give 0.
struct Bytes {
    static constexpr long src_bytes = 1, dst_bytes = 1;
    using Simd = Autovectorized<Bytes>;
    static uint8_t mix(uint8_t a, uint8_t b) { return static_cast<uint8_t>((a >> 1) + (b >> 1)); }
    static void pixel(uint8_t* dst, const uint8_t* src) { *dst = mix(*dst, *src); }
};

// Fields are added first and halved after, so 1 and 1 give 1. Bits 30 and 31 come out as zero.
struct Words {
    static constexpr long src_bytes = 4, dst_bytes = 4;
    using Simd = Autovectorized<Words>;
    static constexpr uint32_t field = 0x3FF;
    static uint32_t mix(uint32_t a, uint32_t b)
    {
        return ((a & field) + (b & field)) >> 1 | ((((a >> 10 & field) + (b >> 10 & field)) << 9) & 0x000FFC00) |
               ((((a >> 20 & field) + (b >> 20 & field)) << 19) & 0x3FF00000);
    }
    static void pixel(uint8_t* dst, const uint8_t* src) { store(dst, mix(load<uint32_t>(dst), load<uint32_t>(src))); }
};

template <class Form>
int dissolve(uint8_t* dst, uint8_t* src, long stride, long units, long height)
{
    walk_forward<Form>({dst, stride, src, stride}, units, height);
    return 0;
}

}  // namespace

// QUIRK (keeps_two_thirds_of_words): 2 words for 3 pixels suits `v210`; a format with a word for each
// pixel has the first two thirds of its lines dissolved.
int tntvt_copy_dissolve(unsigned char* dst, unsigned char* src, long stride, long width, long height,
                        unsigned int fourcc)
{
    if (fccIsYCbCr8(fourcc) != 0) return dissolve<Bytes>(dst, src, stride, line_offset(width, 2), height);
    if (fccIsYCbCr10(fourcc) != 0 || fccIsDPX(fourcc) != 0)
        return dissolve<Words>(dst, src, stride, line_offset(width, 2) / 3, height);
    if (fccIsRGB(fourcc) != 0) return dissolve<Bytes>(dst, src, stride, line_offset(width, 4), height);
    return -1;
}
