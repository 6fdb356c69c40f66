// Two fields woven into a frame and taken apart again, and a frame copied between pitches.
#include <tintvert/field.h>

#include <algorithm>

#include "frame/imports.h"
#include "frame/memory.h"
#include "frame/number.h"

using namespace tintvert;

namespace {

// The line of a field that is line `line` of the frame.
uint8_t* field_line(uint8_t* first, uint8_t* second, long stride, uint32_t line)
{
    return advance(line % 2 == 0 ? first : second, line_offset(line / 2, stride));
}

}  // namespace

void tntvt_fld_sep_to_mix32(unsigned char* dst, long dstStride, unsigned char* firstField, unsigned char* secondField,
                            long fieldStride, unsigned int width, unsigned int height)
{
    for (uint32_t line = 0; line < height; ++line)
        CopyMemoryFast(advance(dst, line_offset(line, dstStride)),
                       field_line(firstField, secondField, fieldStride, line), width * 4);
}

void tntvt_fld_mix_to_sep32(unsigned char* firstField, unsigned char* secondField, long fieldStride, unsigned char* src,
                            long srcStride, unsigned int width, unsigned int height)
{
    for (uint32_t line = 0; line < height; ++line)
        CopyMemoryFast(field_line(firstField, secondField, fieldStride, line),
                       advance(src, line_offset(line, srcStride)), width * 4);
}

// QUIRK (keeps_whole_copy_without_guard): with equal strides the frame is one copy, whose size is the
// low 32 bits of the product, whatever the sign of the height.
void tntvt_copy_interleaved(unsigned char* dst, long dstStride, unsigned char* src, long srcStride, long, long height)
{
    if (dstStride == srcStride) {
        if (dst != src) CopyMemoryFast(dst, src, static_cast<uint32_t>(wrapping_product(height, dstStride)));
        return;
    }
    const auto line_bytes = static_cast<uint32_t>(std::min(dstStride, srcStride));
    for (long line = 0; line < height; ++line)
        CopyMemoryFast(advance(dst, line_offset(line, dstStride)), advance(src, line_offset(line, srcStride)),
                       line_bytes);
}
