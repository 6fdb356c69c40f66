// `YUY2` to three 4:2:0 planes, two lines at a time: the one way to 4:2:0 that averages.
#include <tintvert/ycbcr8.h>

#include "frame/memory.h"
#include "frame/number.h"
#include "ycbcr8/groups_simd.h"

using namespace tintvert;

namespace {

void convert_pair(InstructionSet level, uint8_t* y, long y_pitch, uint8_t* cb, uint8_t* cr, const uint8_t* src,
                  long src_pitch, long groups)
{
    uint8_t* const y_below = advance(y, y_pitch);
    const uint8_t* const below = advance(src, src_pitch);
    long g = deinterleave_yuy2_simd(level, {y, cb, cr}, y_below, src, below, groups);
    for (; g < groups; ++g) {
        y[2 * g] = src[4 * g];
        y[2 * g + 1] = src[4 * g + 2];
        y_below[2 * g] = below[4 * g];
        y_below[2 * g + 1] = below[4 * g + 2];
        cb[g] = static_cast<uint8_t>((src[4 * g + 1] + below[4 * g + 1] + 1) >> 1);
        cr[g] = static_cast<uint8_t>((src[4 * g + 3] + below[4 * g + 3] + 1) >> 1);
    }
}

}  // namespace

// QUIRK (keeps_drift_of_odd_width): every pointer steps from the end of the groups by what `width`
// leaves of its pitch. An odd `width` has half a group more than that, so pair by pair the source drifts by
// 2 bytes and luma by 1, and chroma by 1 if `dstPitch` is odd as well. The shift is arithmetic, for pitches
// below `width`. All of this is `int` and wraps at 32 bits: a `srcPitch` of 0x40000000 puts the second line of a pair
// 2^31 bytes before the first.
void YUY2toYV12(unsigned char* src, unsigned char* y, unsigned char* cb, unsigned char* cr, int width, int height,
                int srcPitch, int dstPitch)
{
    if (height < 1 || width < 1) return;
    const InstructionSet level = instruction_set();
    const long groups = (width - 1) / 2 + 1;
    const int src_line = wrapped(2l * srcPitch), dst_slack = wrapped(long{dstPitch} - width);
    const int src_step = wrapped(4 * groups + 2 * (long{src_line} - width));
    const int y_step = wrapped(2 * groups + dst_slack + dstPitch);
    const int chroma_step = wrapped(groups + (dst_slack >> 1));
    for (long line = 0; line < height; line += 2) {
        convert_pair(level, y, dstPitch, cb, cr, src, src_line, groups);
        src = advance(src, src_step);
        y = advance(y, y_step);
        cb = advance(cb, chroma_step);
        cr = advance(cr, chroma_step);
    }
}
