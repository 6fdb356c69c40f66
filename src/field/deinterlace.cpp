// Comb detection between a line and its neighbours, and its repair.
#include <tintvert/field.h>

#include <cstddef>

#include "field/lines.h"
#include "frame/imports.h"
#include "frame/number.h"

using namespace tintvert;

namespace {

// QUIRK (keeps_eight_byte_elements): an element is 8 bytes, of which the first three are channels. Of
// two pixels of four bytes the second is carried along unexamined; in a replaced element it is zero.
constexpr size_t element_bytes = 8;

struct Lines {
    const uint8_t *above, *here, *below;
};

// 255 x 255 x 6 x 5500 is 2145825000, which 31 bits hold.
constexpr int32_t largest_softness = 5500;

// How far the line differs to the same side of both neighbours, the channels weighted 1, 6 and 3.
struct Comb {
    static int32_t measure(const uint8_t* a, const uint8_t* b, const uint8_t* c)
    {
        return (a[0] - c[0]) * (b[0] - c[0]) + 6 * (a[1] - c[1]) * (b[1] - c[1]) + 3 * (a[2] - c[2]) * (b[2] - c[2]);
    }
};

// The same, a channel counting less the more the neighbours differ in it.
struct SoftComb {
    int32_t softness;  // 1 to 5500

    int32_t term(int32_t a, int32_t b, int32_t c, int32_t weight) const
    {
        return (a - c) * (weight * softness) * (b - c) / ((a - b) * (a - b) + softness);
    }
    int32_t measure(const uint8_t* a, const uint8_t* b, const uint8_t* c) const
    {
        return term(a[0], b[0], c[0], 1) + term(a[1], b[1], c[1], 6) + term(a[2], b[2], c[2], 3);
    }
};

struct Filter121 {
    static int channel(int a, int b, int c) { return (a + b + 2 * c) >> 2; }
};

struct Average {
    static int channel(int a, int b, int) { return (a + b) >> 1; }
};

template <class Repair>
uint64_t repaired(const uint8_t* a, const uint8_t* b, const uint8_t* c)
{
    return static_cast<uint64_t>(Repair::channel(a[0], b[0], c[0]) | Repair::channel(a[1], b[1], c[1]) << 8 |
                                 Repair::channel(a[2], b[2], c[2]) << 16);
}

template <class Repair, class Measure>
void repair_line(uint8_t* dst, const Lines& lines, size_t width, int32_t threshold, Measure comb)
{
    for (size_t at = 0; at < width * element_bytes; at += element_bytes) {
        const uint8_t *a = lines.above + at, *b = lines.below + at, *c = lines.here + at;
        const bool combed = comb.measure(a, b, c) > threshold;
        store(dst + at, combed ? repaired<Repair>(a, b, c) : load<uint64_t>(c));
    }
}

template <class Repair>
void repair_line(uint8_t* dst, const Lines& lines, size_t width, int32_t threshold, int32_t softness)
{
    if (softness == 0)
        repair_line<Repair>(dst, lines, width, threshold, Comb{});
    else
        repair_line<Repair>(dst, lines, width, threshold, SoftComb{softness});
}

void keep_line(uint8_t* dst, const uint8_t* src, size_t width)
{
    for (size_t at = 0; at < width * element_bytes; at += element_bytes) store(dst + at, load<uint64_t>(src + at));
}

// QUIRK (keeps_next_line_for_first_two): lines 0 and 1 have the next line on both sides, line 1 too,
// although line 0 is above it. The last line has the line above on both sides.
// QUIRK (keeps_changed_line_above): in place the line above is the repaired one.
Lines neighbours(uint8_t* here, uint32_t y, uint32_t height, uint32_t stride)
{
    const uint8_t* above = y >= 2 ? advance(here, -static_cast<long>(stride)) : here;
    const uint8_t* below = y + 1 < height ? advance(here, stride) : above;
    return {above == here ? below : above, here, below};
}

}  // namespace

// QUIRK (keeps_wrapping_squares): both squares wrap at 32 bits and are read as signed. A threshold
// below 0 finds comb in flat elements; a softness below 0 finds none anywhere.
// QUIRK (keeps_plain_copy_of_mode_17): no line of mode 17 is ever repaired.
int tntvt_deinterlace_rgb(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                          unsigned int stride, int threshold, int softness, long, int mode)
{
    const int32_t limit = wrapping_product(threshold, threshold);
    int32_t soft = wrapping_product(softness, softness);
    if (soft > largest_softness) soft = largest_softness;
    for (uint32_t y = 0; y < height; ++y, dst = advance(dst, stride), src = advance(src, stride)) {
        const bool odd = y % 2 != 0;
        if ((mode == 16 && !odd) || (mode == 17 && odd))
            CopyMemoryFast(dst, src, stride);
        else if (soft < 0 || (mode != 2 && !odd))
            keep_line(dst, src, width);
        else if (mode == 2)
            repair_line<Filter121>(dst, neighbours(src, y, height, stride), width, limit, soft);
        else
            repair_line<Average>(dst, neighbours(src, y, height, stride), width, limit, soft);
    }
    return 0;
}

// QUIRK (keeps_empty_deinterlace_yuv): deinterlacing of YCbCr is not offered.
int tntvt_deinterlace_yuv(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int, int, int, long, int)
{
    return -1;
}
