// 8-bit 4:4:4 with the JPEG coefficients (ITU-R BT.601 at full range).
#include <tintvert/decode.h>

#include "decode/yuvijg_simd.h"
#include "frame/number.h"
#include "frame/walk.h"

using namespace tintvert;

namespace {

// Single precision takes the samples and their offset, double precision the sums in the order written.
// QUIRK (keeps_wrap_outside_the_cube): nothing is clamped; a blue of 480 is stored as 224.
// QUIRK (keeps_alpha_0_of_yuvijg): the fourth byte is 0 and not 255.
struct YuvijgToRgb32 {
    using Simd = ConvertYuvijg<YuvijgToRgb32>;
    static constexpr long src_bytes = 3, dst_bytes = 4;
    static void pixel(uint8_t* dst, const uint8_t* src)
    {
        const double y = static_cast<float>(src[0]);
        const double cb = static_cast<float>(src[1]) + -128.0f;
        const double cr = static_cast<float>(src[2]) + -128.0f;
        dst[0] = low_byte(cb * 1.772 + y);
        dst[1] = low_byte(cr * -0.71414 + (cb * -0.34414 + y));
        dst[2] = low_byte(cr * 1.402 + y);
        dst[3] = 0;
    }
};

}  // namespace

void tntvt_yuvijg_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<YuvijgToRgb32>({dst, dstStride, src, srcStride}, width, height);
}
