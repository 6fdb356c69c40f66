// `2vuy` to RGB by the shared tables, at full size or reduced by dropping.
#include <tintvert/decode.h>

#include "decode/forms.h"
#include "decode/tables.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "frame/walk.h"

using namespace tintvert;

namespace {

// A scale of 4 halves the pixel count here and takes every second group, so a quarter is left.
long pixels_walked(long width, long scale) { return scale == 4 ? width >> 1 : width; }
long group_step(long scale) { return scale == 4 ? 8 : 4; }
bool keeps_second_pixel(long scale) { return scale != 2 && scale != 4; }

// Groups are Cb, Y0, Cr, Y1.
template <class Form>
void decode_line(uint8_t* dst, const uint8_t* src, long width, long scale)
{
    const long limit = pixels_walked(width, scale);
    for (long i = 0; i < limit; i += 2, src += group_step(scale)) {
        const bool both = keeps_second_pixel(scale);
        const uint8_t cb = src[0], y0 = src[1], cr = src[2], y1 = both ? src[3] : uint8_t{0};
        Form::put(dst, decode(cb, y0, cr));
        dst += Form::pixel_bytes;
        if (both) {
            Form::put(dst, decode(cb, y1, cr));
            dst += Form::pixel_bytes;
        }
    }
}

// DELIBERATE (keeps_first_luma_for_both): one word a group, from the first luma, written twice at full size.
void decode_line_rgb16(uint8_t* dst, const uint8_t* src, long width, long scale)
{
    const long limit = pixels_walked(width, scale);
    for (long i = 0; i < limit; i += 2, src += group_step(scale)) {
        const uint16_t word = rgb16_word(decode(src[0], src[1], src[2]));
        store(dst, word);
        dst += 2;
        if (keeps_second_pixel(scale)) {
            store(dst, word);
            dst += 2;
        }
    }
}

}  // namespace

void tntvt_yuv422_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    need_tables();
    const long reduced = width / scale;
    const long rows = height / scale;
    // DELIBERATE (keeps_form_by_stride): a stride that holds 32-bit pixels gets them, asked for or not.
    const auto line = reduced * 4 <= dstStride ? decode_line<Rgb32> : decode_line<Rgb24>;
    for (long r = 0; r < rows; ++r)
        line(advance(bytes(dst), line_offset(r, dstStride)),
             advance(bytes(src), line_offset(r, line_offset(srcStride, scale))), width, scale);
}

void tntvt_yuv422_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    need_tables();
    if (scale == 0) scale = 1;
    const long rows = height / scale;
    // DELIBERATE (keeps_swapped_line_pairs): output lines 0, 1, 2, 3 show source lines 1, 0, 3, 2, and an
    // odd count reads the line after the last one.
    for (long r = 0; r < rows; ++r)
        decode_line_rgb16(advance(bytes(dst), line_offset(r, dstStride)),
                          advance(bytes(src), line_offset(r ^ 1, line_offset(srcStride, scale))), width, scale);
}
