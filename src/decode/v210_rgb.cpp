// `v210` to RGB by the shared tables, at full size or reduced by dropping. Ten bits are cut to eight as
// the samples are picked out; from there on a pixel is the one that `2vuy` gives.
#include <tintvert/decode.h>

#include <type_traits>

#include "decode/forms.h"
#include "decode/lane_forms.h"
#include "decode/plane_forms.h"
#include "decode/tables.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "frame/simd.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

// How a line is walked: whether both pixels of a pair are kept, and how many pairs on the next one lies.
struct Whole {
    static constexpr bool both = true;
    static constexpr uint32_t step = 1;
};
struct Half {
    static constexpr bool both = false;
    static constexpr uint32_t step = 1;
};
struct Quarter {
    static constexpr bool both = false;
    static constexpr uint32_t step = 2;
};

// Samples count on from group to group.
uint8_t top_eight(const uint8_t* group, uint32_t sample)
{
    return static_cast<uint8_t>(v210_sample(group, sample) >> 2);
}

// Returns where the next pixel goes.
// QUIRK (keeps_first_luma_of_v210_pairs): `Rgb16` never looks at the second luma.
template <class Form, class Walk, uint32_t pair>
uint8_t* decode_pair(uint8_t* dst, const uint8_t* group)
{
    constexpr uint32_t n = pair * v210_pair_samples;
    constexpr bool own_second = Walk::both && !std::is_same_v<Form, Rgb16>;
    const uint8_t cb = top_eight(group, n), y0 = top_eight(group, n + 1), cr = top_eight(group, n + 2);
    const uint8_t y1 = own_second ? top_eight(group, n + 3) : y0;
    Form::put(dst, decode(cb, y0, cr));
    if constexpr (Walk::both) Form::put(dst + Form::pixel_bytes, decode(cb, y1, cr));
    return dst + (Walk::both ? 2 : 1) * Form::pixel_bytes;
}

// Three pairs a round, so that every pair stands at its own fixed place: pairs 0, 1, 2 of a group, or pairs
// 0, 2, 4 of two groups.
template <class Form, class Walk>
void decode_line(uint8_t* dst, const uint8_t* src, long width)
{
    constexpr long pixels = 2 * Walk::step;  // of the source, from one pair to the next
    for (long i = 0; i < width; i += 3 * pixels, src += Walk::step * v210_group_bytes) {
        dst = decode_pair<Form, Walk, 0>(dst, src);
        if (i + pixels < width) dst = decode_pair<Form, Walk, Walk::step>(dst, src);
        if (i + 2 * pixels < width) dst = decode_pair<Form, Walk, 2 * Walk::step>(dst, src);
    }
}

template <uint32_t pair>
Codes codes(const uint8_t* group)
{
    constexpr uint32_t n = pair * v210_pair_samples;
    return {top_eight(group, n), top_eight(group, n + 1), top_eight(group, n + 2), top_eight(group, n + 3)};
}

// Two groups a step.
template <class Form>
long groups_by_lanes(uint8_t* dst, const uint8_t* src, long groups)
{
    constexpr long two_pairs = 4 * Form::pixel_bytes;
    long done = 0;
    for (; groups - done >= 2; done += 2, src += 2 * v210_group_bytes, dst += 3 * two_pairs) {
        const uint8_t* const next = src + v210_group_bytes;
        put_two_pairs(Form{}, dst, codes<0>(src), codes<1>(src));
        put_two_pairs(Form{}, dst + two_pairs, codes<2>(src), codes<0>(next));
        put_two_pairs(Form{}, dst + 2 * two_pairs, codes<1>(next), codes<2>(next));
    }
    return done;
}

// Six samples from two words stand in six bytes of eight.
struct Groups {
    static constexpr int registers = 3;
    static constexpr long block_bytes = 8 * v210_group_bytes;
    static constexpr uint8_t sample_place(size_t n) { return static_cast<uint8_t>(n / 6 * 8 + n % 6); }
    TNTVT_AVX512 static Block block(const uint8_t* src);
};
constexpr Places group_places = places_in<Groups>();

TNTVT_AVX512 inline __m512i top_bytes(const uint8_t* src)
{
    constexpr long long first_bits = 2 | 12 << 8 | 22 << 16 | 34 << 24 | 44LL << 32 | 54LL << 40;
    return _mm512_multishift_epi64_epi8(_mm512_set1_epi64(first_bits), _mm512_loadu_si512(src));
}

TNTVT_AVX512 inline Block Groups::block(const uint8_t* src)
{
    return pick(group_places, top_bytes(src), top_bytes(src + 64));
}

// Whole steps of whole groups, then the scalar version.
template <class Form, bool planes>
void decode_simd(uint8_t* dst, const uint8_t* src, long width)
{
    constexpr long group_pixels = v210_group_pixels * Form::pixel_bytes;
    const long groups = width / v210_group_pixels - Form::groups_left;
    long done = 0;
    if (groups > 0 && disjoint(dst, groups * group_pixels, src, groups * v210_group_bytes)) {
        if (planes) done = pairs_avx512<Form, Groups>(dst, src, groups * 3) / 3;
        done += groups_by_lanes<Form>(dst + done * group_pixels, src + done * v210_group_bytes, groups - done);
    }
    decode_line<Form, Whole>(dst + done * group_pixels, src + done * v210_group_bytes,
                             width - done * v210_group_pixels);
}

using Line = void (*)(uint8_t* dst, const uint8_t* src, long width);

template <class Form>
Line whole_line()
{
    const InstructionSet widest = instruction_set();
    return widest == InstructionSet::avx512 ? decode_simd<Form, true>
           : widest >= InstructionSet::sse2 ? decode_simd<Form, false>
                                            : decode_line<Form, Whole>;
}

// Reduced lines stay plain: each drops pixels that it would have to part first.
template <class Form>
Line line_at(long scale)
{
    return scale == 2 ? decode_line<Form, Half> : scale == 4 ? decode_line<Form, Quarter> : whole_line<Form>();
}

}  // namespace

void tntvt_v210_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    need_tables();
    const long reduced = width / scale;
    const long rows = width < 1 ? 0 : height / scale;
    // QUIRK (keeps_form_by_stride): a stride that holds 32-bit pixels gets them, asked for or not.
    const Line line = reduced * 4 <= dstStride ? line_at<Rgb32>(scale) : line_at<Rgb24>(scale);
    for (long r = 0; r < rows; ++r)
        line(advance(bytes(dst), line_offset(r, dstStride)),
             advance(bytes(src), line_offset(r, line_offset(srcStride, scale))), width);
}

// QUIRK (keeps_line_order): lines stand as they come; only tntvt_yuv422_rgb16 exchanges neighbours.
void tntvt_v210_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    need_tables();
    if (scale == 0) scale = 1;
    const long rows = width < 1 ? 0 : height / scale;
    const Line line = line_at<Rgb16>(scale);
    for (long r = 0; r < rows; ++r)
        line(advance(bytes(dst), line_offset(r, dstStride)),
             advance(bytes(src), line_offset(r, line_offset(srcStride, scale))), width);
}
