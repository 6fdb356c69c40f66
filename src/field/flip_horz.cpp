// Lines mirrored, pixel by pixel.
//
// DELIBERATE (keeps_mirror_past_the_line): pixel i goes with pixel `width` - i and not with
// `width` - 1 - i, so a line is mirrored about pixel `width` / 2 and the first pixel past it takes part.
#include <tintvert/field.h>

#include <cstddef>

#include "field/lines.h"

using namespace tintvert;

namespace {

void mirror_line(uint8_t* dst, const uint8_t* src, size_t width)
{
    for (size_t i = 0; i < width; ++i) store(dst + i * 4, load<uint32_t>(src + (width - i) * 4));
}

void mirror_line_in_place(uint8_t* line, size_t width)
{
    for (size_t i = 0; i < width / 2; ++i) {
        const auto left = load<uint32_t>(line + i * 4);
        const auto right = load<uint32_t>(line + (width - i) * 4);
        store(line + i * 4, right);
        store(line + (width - i) * 4, left);
    }
}

}  // namespace

void tntvt_flip_horz(unsigned char* dst, unsigned char* src, int width, int height, unsigned int stride)
{
    if (height < 1 || (dst != src && width < 1)) return;
    const auto pixels = static_cast<uint32_t>(width);
    for (uint32_t r = 0; r < static_cast<uint32_t>(height); ++r) {
        if (dst == src)
            mirror_line_in_place(line_at(dst, r, stride), pixels);
        else
            mirror_line(line_at(dst, r, stride), line_at(src, r, stride), pixels);
    }
}
