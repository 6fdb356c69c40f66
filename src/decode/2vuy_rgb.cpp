// `2vuy` to RGB by the shared tables, at full size or reduced by dropping.
#include <tintvert/decode.h>

#include "decode/forms.h"
#include "decode/lane_forms.h"
#include "decode/plane_forms.h"
#include "decode/tables.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "frame/simd.h"

using namespace tintvert;

namespace {

// How a line is walked. At a scale of 4 every second group is taken of half the pixel count, so a quarter
// is left; at any scale but 2 and 4 both pixels of a group are kept.
struct Whole {
    static constexpr bool both = true;
    static constexpr long group_step = 4;
};
struct Half {
    static constexpr bool both = false;
    static constexpr long group_step = 4;
};
struct Quarter {
    static constexpr bool both = false;
    static constexpr long group_step = 8;
};

// Groups are Cb, Y0, Cr, Y1.
template <class Form, class Walk>
void decode_line(uint8_t* dst, const uint8_t* src, long limit)
{
    for (long i = 0; i < limit; i += 2, src += Walk::group_step) {
        const uint8_t cb = src[0], y0 = src[1], cr = src[2], y1 = Walk::both ? src[3] : uint8_t{0};
        Form::put(dst, decode(cb, y0, cr));
        dst += Form::pixel_bytes;
        if constexpr (Walk::both) {
            Form::put(dst, decode(cb, y1, cr));
            dst += Form::pixel_bytes;
        }
    }
}

// QUIRK (keeps_first_luma_for_both): one word a group, from the first luma, written twice at full size.
template <class Walk>
void decode_line_rgb16(uint8_t* dst, const uint8_t* src, long limit)
{
    for (long i = 0; i < limit; i += 2, src += Walk::group_step) {
        const uint16_t word = rgb16_word(decode(src[0], src[1], src[2]));
        store(dst, word);
        dst += 2;
        if constexpr (Walk::both) {
            store(dst, word);
            dst += 2;
        }
    }
}

Codes codes(const uint8_t* group) { return {group[0], group[1], group[2], group[3]}; }

// Two groups a step.
template <class Form>
long pairs_by_lanes(uint8_t* dst, const uint8_t* src, long pairs)
{
    long done = 0;
    for (; pairs - done >= 2; done += 2, src += 8, dst += 4 * Form::pixel_bytes)
        put_two_pairs(Form{}, dst, codes(src), codes(src + 4));
    return done;
}

struct Groups {
    static constexpr int registers = 4;
    static constexpr long block_bytes = 128;
    static constexpr uint8_t sample_place(size_t n) { return static_cast<uint8_t>(n); }
    TNTVT_AVX512 static Block block(const uint8_t* src);
};
constexpr Places group_places = places_in<Groups>();

TNTVT_AVX512 inline Block Groups::block(const uint8_t* src)
{
    return pick(group_places, _mm512_loadu_si512(src), _mm512_loadu_si512(src + 64));
}

// Whole steps of both pixels of a group, then the scalar version.
template <class Form, auto plain, bool planes>
void decode_simd(uint8_t* dst, const uint8_t* src, long limit)
{
    constexpr long group_pixels = 2 * Form::pixel_bytes;
    const long pairs = limit / 2 - Form::groups_left;
    long done = 0;
    if (pairs > 0 && disjoint(dst, pairs * group_pixels, src, pairs * 4)) {
        if (planes) done = pairs_avx512<Form, Groups>(dst, src, pairs);
        done += pairs_by_lanes<Form>(dst + done * group_pixels, src + done * 4, pairs - done);
    }
    plain(dst + done * group_pixels, src + done * 4, limit - 2 * done);
}

using Line = void (*)(uint8_t* dst, const uint8_t* src, long limit);

template <class Form, auto plain>
Line whole_line()
{
    const InstructionSet widest = instruction_set();
    return widest == InstructionSet::avx512 ? decode_simd<Form, plain, true>
           : widest >= InstructionSet::sse2 ? decode_simd<Form, plain, false>
                                            : plain;
}

// Reduced lines stay plain: each drops pixels that it would have to part first.
template <class Form>
Line line_at(long scale)
{
    return scale == 2   ? decode_line<Form, Half>
           : scale == 4 ? decode_line<Form, Quarter>
                        : whole_line<Form, decode_line<Form, Whole>>();
}

Line line_rgb16_at(long scale)
{
    return scale == 2   ? decode_line_rgb16<Half>
           : scale == 4 ? decode_line_rgb16<Quarter>
                        : whole_line<Rgb16, decode_line_rgb16<Whole>>();
}

long pixels_walked(long width, long scale) { return scale == 4 ? width >> 1 : width; }

}  // namespace

void tntvt_yuv422_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    need_tables();
    const long reduced = width / scale;
    const long rows = width < 1 ? 0 : height / scale;
    // QUIRK (keeps_form_by_stride): a stride that holds 32-bit pixels gets them, asked for or not.
    const Line line = reduced * 4 <= dstStride ? line_at<Rgb32>(scale) : line_at<Rgb24>(scale);
    for (long r = 0; r < rows; ++r)
        line(advance(bytes(dst), line_offset(r, dstStride)),
             advance(bytes(src), line_offset(r, line_offset(srcStride, scale))), pixels_walked(width, scale));
}

void tntvt_yuv422_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    need_tables();
    if (scale == 0) scale = 1;
    const long rows = width < 1 ? 0 : height / scale;
    // QUIRK (keeps_swapped_line_pairs): output lines 0, 1, 2, 3 show source lines 1, 0, 3, 2, and an
    // odd count reads the line after the last one.
    const Line line = line_rgb16_at(scale);
    for (long r = 0; r < rows; ++r)
        line(advance(bytes(dst), line_offset(r, dstStride)),
             advance(bytes(src), line_offset(r ^ 1, line_offset(srcStride, scale))), pixels_walked(width, scale));
}
