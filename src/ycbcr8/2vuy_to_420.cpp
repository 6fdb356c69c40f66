// `2vuy` to `i420` and `yv12`: the chroma of even lines is kept, that of odd lines dropped.
#include <tintvert/ycbcr8.h>

#include "ycbcr8/groups_simd.h"
#include "ycbcr8/planes_420.h"

using namespace tintvert;

namespace {

void put_even_line(InstructionSet level, uint8_t* luma, uint8_t* byte0, uint8_t* byte2, const uint8_t* src, long groups)
{
    for (long g = deinterleave_simd(level, {luma, byte0, byte2}, src, groups); g < groups; ++g) {
        luma[2 * g] = src[4 * g + 1];
        luma[2 * g + 1] = src[4 * g + 3];
        byte0[g] = src[4 * g];
        byte2[g] = src[4 * g + 2];
    }
}

void put_odd_line(InstructionSet level, uint8_t* luma, const uint8_t* src, long groups)
{
    for (long g = deinterleave_luma_simd(level, luma, src, groups); g < groups; ++g) {
        luma[2 * g] = src[4 * g + 1];
        luma[2 * g + 1] = src[4 * g + 3];
    }
}

// QUIRK (keeps_slack_as_pixels): a line is all of its stride, so slack is packed into the planes like
// pixels, and luma that has outgrown its plane runs on into the chroma planes.
void from_2vuy(uint8_t* luma, uint8_t* byte0, uint8_t* byte2, const uint8_t* src, uint32_t stride, uint32_t height)
{
    if (stride == 0) return;
    const InstructionSet level = instruction_set();
    const long groups = (long{stride} + 3) / 4;
    for (uint32_t r = 0; r < height; ++r, luma += 2 * groups) {
        const uint8_t* line = advance(src, r * stride);
        if (r % 2 == 0) {
            put_even_line(level, luma, byte0, byte2, line, groups);
            byte0 += groups;
            byte2 += groups;
        } else {
            put_odd_line(level, luma, line, groups);
        }
    }
}

}  // namespace

void tntvt_2vuy_i420(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride)
{
    const Planes420<uint8_t> planes(dst, width, height);
    from_2vuy(planes.luma, planes.chroma1, planes.chroma2, src, stride_or_default(stride, width), height);
}

void tntvt_2vuy_yv12(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride)
{
    const Planes420<uint8_t> planes(dst, width, height);
    from_2vuy(planes.luma, planes.chroma2, planes.chroma1, src, stride_or_default(stride, width), height);
}
