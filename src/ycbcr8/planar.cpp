// 4:2:2 planes to `2vuy` and back, and two fields of planes interleaved into one frame.
#include <tintvert/ycbcr8.h>

#include "ycbcr8/groups_simd.h"

using namespace tintvert;

namespace {

void interleave(InstructionSet level, uint8_t* dst, const uint8_t* y, const uint8_t* cb, const uint8_t* cr, long groups)
{
    for (long g = interleave_simd(level, dst, {y, cb, cr}, groups); g < groups; ++g) {
        dst[4 * g] = cb[g];
        dst[4 * g + 1] = y[2 * g];
        dst[4 * g + 2] = cr[g];
        dst[4 * g + 3] = y[2 * g + 1];
    }
}

void deinterleave(uint8_t* y, uint8_t* cb, uint8_t* cr, const uint8_t* src, long groups)
{
    for (long g = deinterleave_simd(instruction_set(), {y, cb, cr}, src, groups); g < groups; ++g) {
        cb[g] = src[4 * g];
        y[2 * g] = src[4 * g + 1];
        cr[g] = src[4 * g + 2];
        y[2 * g + 1] = src[4 * g + 3];
    }
}

struct Field {
    const uint8_t *y, *cb, *cr;

    // One line, and on to the next; returns where the line after it goes.
    uint8_t* put_line(InstructionSet level, uint8_t* dst, long groups)
    {
        interleave(level, dst, y, cb, cr, groups);
        y += 2 * groups;
        cb += groups;
        cr += groups;
        return dst + 4 * groups;
    }
};

}  // namespace

// QUIRK (keeps_planes_without_lines): planes and packed frame are unbroken runs; the three numbers
// that could have been their strides are not read, here and below.
void tntvt_planar_2vuy(unsigned char* dst, unsigned char* y, unsigned char* cb, unsigned char* cr, unsigned int,
                       unsigned int, unsigned int, unsigned int count)
{
    interleave(instruction_set(), dst, y, cb, cr, count / 2);
}

void tntvt_2vuy_planar(unsigned char* y, unsigned char* cb, unsigned char* cr, unsigned int, unsigned int, unsigned int,
                       unsigned char* src, unsigned int count)
{
    deinterleave(y, cb, cr, src, count / 2);
}

// QUIRK (keeps_fault_of_no_groups): `groups` divides before anything looks at it, and 0 faults.
void tntvt_planarfields_2vuy(unsigned char* dst, unsigned char* y1, unsigned char* cb1, unsigned char* cr1,
                             unsigned char* y2, unsigned char* cb2, unsigned char* cr2, unsigned int, unsigned int,
                             unsigned int, unsigned int groups, unsigned int total)
{
    const unsigned int pairs = (total >> 1) / groups;
    const InstructionSet level = instruction_set();
    Field first{y1, cb1, cr1}, second{y2, cb2, cr2};
    for (unsigned int pair = 0; pair < pairs; ++pair) {
        dst = first.put_line(level, dst, groups);
        dst = second.put_line(level, dst, groups);
    }
}
