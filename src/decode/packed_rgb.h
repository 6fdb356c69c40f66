// Packed 4:2:2 to RGB by the shared tables, at full size or reduced by dropping.
//
// A `Source` says how `group_pixels` pixels, one or three pairs of them, are packed in `group_bytes`:
// `codes<pair, second>(group)` are the 8-bit samples of a pair, without reading its second luma where `second` is
// false. For AVX-512 it fills blocks of `block_bytes` bytes for `registers` registers of pairs (see block.h).
#pragma once

#include "decode/forms.h"
#include "decode/lane_forms.h"
#include "decode/plane_forms.h"
#include "decode/tables.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "frame/walk.h"

namespace tintvert {

// How a line is walked: whether both pixels of a pair are kept, and how many pairs on the next one is.
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

// Returns where the next pixel goes.
template <class Source, class Form, class Walk, uint32_t pair>
uint8_t* decode_pair(uint8_t* dst, const uint8_t* group)
{
    constexpr bool second = Walk::both && Form::second_luma;
    const Codes codes = Source::template codes<pair, second>(group);
    const Bgr first = decode(codes.cb, codes.y0, codes.cr);
    Form::put(dst, first);
    if constexpr (!Walk::both) return dst + Form::pixel_bytes;
    Form::put(dst + Form::pixel_bytes, second ? decode(codes.cb, codes.y1, codes.cr) : first);
    return dst + 2 * Form::pixel_bytes;
}

// As many pairs a round as a group has, so that every pair is at its own fixed place: pairs 0, 1, 2 of a `v210` group,
// or pairs 0, 2, 4 of two groups.
template <class Source, class Form, class Walk>
void decode_line(uint8_t* dst, const uint8_t* src, long width)
{
    constexpr long apart = 2 * Walk::step;  // pixels of the source, from one pair to the next
    constexpr long round = Source::group_pixels * Walk::step;
    for (long i = 0; i < width; i += round, src += Walk::step * Source::group_bytes) {
        dst = decode_pair<Source, Form, Walk, 0>(dst, src);
        if constexpr (Source::group_pixels == 6) {
            if (i + apart < width) dst = decode_pair<Source, Form, Walk, Walk::step>(dst, src);
            if (i + 2 * apart < width) dst = decode_pair<Source, Form, Walk, 2 * Walk::step>(dst, src);
        }
    }
}

// Whole groups at full size.
template <class Source, class Form>
struct DecodeGroups {
    static constexpr long pairs = Source::group_pixels / 2, dst_bytes = Source::group_pixels * Form::pixel_bytes;
#if defined(__x86_64__)
    // Pairs n and n + 1 of two groups.
    template <uint32_t n>
    static void put_two_pairs_at(uint8_t* dst, const uint8_t* src)
    {
        constexpr uint32_t of_first = n / pairs, of_second = (n + 1) / pairs;
        put_two_pairs(Form{}, dst + 2 * n * Form::pixel_bytes,
                      Source::template codes<n % pairs, true>(src + of_first * Source::group_bytes),
                      Source::template codes<(n + 1) % pairs, true>(src + of_second * Source::group_bytes));
    }

    static long sse2(uint8_t* dst, const uint8_t* src, long groups)
    {
        long done = 0;
        for (; groups - done >= 2; done += 2, src += 2 * Source::group_bytes, dst += 2 * dst_bytes) {
            put_two_pairs_at<0>(dst, src);
            if constexpr (pairs == 3) {
                put_two_pairs_at<2>(dst, src);
                put_two_pairs_at<4>(dst, src);
            }
        }
        return done;
    }

    // What fills no step of blocks is made in lanes.
    static long avx512(uint8_t* dst, const uint8_t* src, long groups)
    {
        const long done = pairs_avx512<Form, Source>(dst, src, groups * pairs) / pairs;
        return done > 0 ? done : sse2(dst, src, groups);
    }
#endif
};

// Only lines of full size have a kernel: reduced ones drop most of what a step would load.
template <class Source, class Form>
void decode_line_at(long scale, uint8_t* dst, const uint8_t* src, long width, InstructionSet level)
{
    using Groups = DecodeGroups<Source, Form>;
    if (scale == 2) return decode_line<Source, Form, Half>(dst, src, width);
    if (scale == 4) return decode_line<Source, Form, Quarter>(dst, src, Source::pixels_for_quarter(width));
    const long groups = width / Source::group_pixels - Form::groups_left;
    const long done = run_simd<Groups>(level, {{dst, groups * Groups::dst_bytes}},
                                       {{src, groups * Source::group_bytes}}, dst, src, groups);
    decode_line<Source, Form, Whole>(dst + done * Groups::dst_bytes, src + done * Source::group_bytes,
                                     width - done * Source::group_pixels);
}

// Output line r shows source line r, or, where neighbours are exchanged, the other one of its pair.
template <class Source, class Form>
void decode_frame(const Frame& frame, long width, long height, long scale, bool exchanged = false)
{
    const InstructionSet level = instruction_set();
    const long rows = width < 1 ? 0 : height / scale, src_step = line_offset(frame.src_stride, scale);
    for (long r = 0; r < rows; ++r)
        decode_line_at<Source, Form>(scale, advance(bytes(frame.dst), line_offset(r, frame.dst_stride)),
                                     advance(bytes(frame.src), line_offset(exchanged ? r ^ 1 : r, src_step)), width,
                                     level);
}

// QUIRK (keeps_form_by_stride): a stride that has room for 32-bit pixels gets them, asked for or not.
template <class Source>
void decode_frame_by_stride(const Frame& frame, long width, long height, long scale)
{
    need_tables();
    const long reduced = width / scale;
    if (line_offset(reduced, 4) <= frame.dst_stride)
        decode_frame<Source, Rgb32>(frame, width, height, scale);
    else
        decode_frame<Source, Rgb24>(frame, width, height, scale);
}

}  // namespace tintvert
