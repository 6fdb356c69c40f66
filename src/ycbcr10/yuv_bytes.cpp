// Two routines with a `v210` name that write 8-bit 4:2:2, chroma first.
#include <tintvert/ycbcr10.h>

#include <cstdint>

namespace {

// DELIBERATE (keeps_8_bit_bytes_under_a_v210_name): two bytes a pixel, as the routines named for `2vuy`.
// DELIBERATE (keeps_divisors_255_and_254): luma is divided by 255 and chroma by 254; chroma 1 and 2 both
// give 16.
template <unsigned sign>
void to_video_range(uint8_t* dst, const uint8_t* src, int width)
{
    for (long i = 0; i < width; ++i, dst += 2, src += 2) {
        const unsigned y = src[0], c = src[1] ^ sign;
        dst[0] = static_cast<uint8_t>(c == 0 ? 16 : (c * 224 - 224) / 254 + 16);
        dst[1] = static_cast<uint8_t>(y * 219 / 255 + 16);
    }
}

}  // namespace

void yuv2_to_v210(unsigned char* src, unsigned char* dst, int width) { to_video_range<0x80>(dst, src, width); }

void yuvs_to_v210(unsigned char* src, unsigned char* dst, int width) { to_video_range<0>(dst, src, width); }
