// The two ways through a frame.
//
// A pixel form says what one pixel becomes and nothing about lines: `src_bytes`, `dst_bytes`, and
// `pixel(dst, src)`, whose order of loads and stores is part of the form, because in place that order is
// the result. The walkers say where a line stands in its stride; a `width` or a count of lines below 1 is
// no work.
//
// A form may name wide steps, `Simd::avx2` and `Simd::avx512`, that make the leading pixels of a line and return
// how many. They run where the order of loads and stores cannot show; the plain pixels make the rest. They are
// told whether the walk goes down through memory, because a processor fetches ahead in one direction.
#pragma once

#include <cstdint>

#include "frame/memory.h"
#include "frame/number.h"
#include "frame/simd.h"

namespace tintvert {

struct Frame {
    void* dst;
    long dst_stride;
    void* src;
    long src_stride;
};

template <class Form>
long simd_pixels(InstructionSet level, uint8_t* dst, const uint8_t* src, long width, bool down)
{
    if constexpr (requires { Form::Simd::avx2(dst, src, width, down); }) {
        if (level < InstructionSet::avx2) return 0;
        const bool same_place = Form::src_bytes == Form::dst_bytes && dst == src;
        if (!same_place && !disjoint(dst, width * Form::dst_bytes, src, width * Form::src_bytes)) return 0;
        return level == InstructionSet::avx512 ? Form::Simd::avx512(dst, src, width, down)
                                               : Form::Simd::avx2(dst, src, width, down);
    }
    return 0;
}

// Forward: a line stands at the start of its stride. First line first, leftmost pixel first.
template <class Form>
void walk_forward(const Frame& frame, long width, long lines, Form form = {})
{
    if (width < 1) return;
    const InstructionSet highest = instruction_set();
    for (long line = 0; line < lines; ++line) {
        uint8_t* dst = advance(bytes(frame.dst), line_offset(line, frame.dst_stride));
        const uint8_t* src = advance(bytes(frame.src), line_offset(line, frame.src_stride));
        long x = simd_pixels<Form>(highest, dst, src, width, false);
        dst += x * Form::dst_bytes;
        src += x * Form::src_bytes;
        for (; x < width; ++x, dst += Form::dst_bytes, src += Form::src_bytes) form.pixel(dst, src);
    }
}

// Backward: a line stands at the end of its stride. Last line first, rightmost pixel first.
template <class Form>
void walk_backward(const Frame& frame, long width, long lines, Form form = {})
{
    if (width < 1) return;
    const InstructionSet highest = instruction_set();
    for (long line = lines; line > 0; --line) {
        uint8_t* dst = advance(bytes(frame.dst), line_offset(line, frame.dst_stride));
        const uint8_t* src = advance(bytes(frame.src), line_offset(line, frame.src_stride));
        const long wide =
            simd_pixels<Form>(highest, dst - width * Form::dst_bytes, src - width * Form::src_bytes, width, true);
        for (long x = wide; x < width; ++x) {
            dst -= Form::dst_bytes;
            src -= Form::src_bytes;
            form.pixel(dst, src);
        }
    }
}

}  // namespace tintvert
