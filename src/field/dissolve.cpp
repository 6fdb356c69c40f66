// Half of one frame and half of another.
#include <tintvert/field.h>

#include "frame/imports.h"
#include "frame/memory.h"
#include "frame/number.h"

using namespace tintvert;

namespace {

// DELIBERATE (keeps_halves_before_sum): each byte loses its low bit before the sum, so 1 and 1 give 0.
struct Bytes {
    using Unit = uint8_t;
    static uint8_t mix(uint8_t a, uint8_t b) { return static_cast<uint8_t>((a >> 1) + (b >> 1)); }
};

// Fields are added first and halved after, so 1 and 1 give 1. Bits 30 and 31 come out as zero.
struct Words {
    using Unit = uint32_t;
    static constexpr uint32_t field = 0x3FF;
    static uint32_t mix(uint32_t a, uint32_t b)
    {
        return ((a & field) + (b & field)) >> 1 | ((((a >> 10 & field) + (b >> 10 & field)) << 9) & 0x000FFC00) |
               ((((a >> 20 & field) + (b >> 20 & field)) << 19) & 0x3FF00000);
    }
};

template <class Form>
void dissolve_line(uint8_t* dst, const uint8_t* src, long units)
{
    using Unit = typename Form::Unit;
    for (long i = 0; i < units; ++i, dst += sizeof(Unit), src += sizeof(Unit))
        store(dst, Form::mix(load<Unit>(dst), load<Unit>(src)));
}

template <class Form>
int dissolve(uint8_t* dst, uint8_t* src, long stride, long units, long height)
{
    for (long line = 0; line < height; ++line)
        dissolve_line<Form>(advance(dst, line_offset(line, stride)), advance(src, line_offset(line, stride)), units);
    return 0;
}

}  // namespace

// DELIBERATE (keeps_two_thirds_of_words): 2 words for 3 pixels suits `v210`; a format with a word for each
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
