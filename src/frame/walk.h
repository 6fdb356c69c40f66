// The two walkers through a frame.
//
// A pixel form says what one pixel becomes and nothing about lines: `src_bytes`, `dst_bytes`, and
// `pixel(dst, src)`, whose order of loads and stores is part of the form, because in place that order is
// the result. The walkers say where a line is in its stride; a `width` or a count of lines below 1 is no work.
//
// A form may name its kernel, `Simd` (see simd.h), whose entries take (dst, src, pixels, down). `down` says that the
// walk goes down through memory: a processor fetches ahead in one direction.
#pragma once

#include <cstdint>

#include "frame/memory.h"
#include "frame/number.h"
#include "simd/simd.h"

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
    if constexpr (requires { typename Form::Simd; })
        return run_simd<typename Form::Simd>(level, {{dst, width * Form::dst_bytes}}, {{src, width * Form::src_bytes}},
                                             dst, src, width, down);
    return 0;
}

// Forward: a line is left-aligned in its stride. First line first, leftmost pixel first.
template <class Form>
void walk_forward(const Frame& frame, long width, long lines, Form form = {})
{
    if (width < 1) return;
    const InstructionSet level = instruction_set();
    for (long line = 0; line < lines; ++line) {
        uint8_t* dst = advance(bytes(frame.dst), line_offset(line, frame.dst_stride));
        const uint8_t* src = advance(bytes(frame.src), line_offset(line, frame.src_stride));
        long x = simd_pixels<Form>(level, dst, src, width, false);
        dst += x * Form::dst_bytes;
        src += x * Form::src_bytes;
        for (; x < width; ++x, dst += Form::dst_bytes, src += Form::src_bytes) form.pixel(dst, src);
    }
}

// Backward: a line is right-aligned in its stride. Last line first, rightmost pixel first.
template <class Form>
void walk_backward(const Frame& frame, long width, long lines, Form form = {})
{
    if (width < 1) return;
    const InstructionSet level = instruction_set();
    for (long line = lines; line > 0; --line) {
        uint8_t* dst = advance(bytes(frame.dst), line_offset(line, frame.dst_stride));
        const uint8_t* src = advance(bytes(frame.src), line_offset(line, frame.src_stride));
        const long made =
            simd_pixels<Form>(level, dst - width * Form::dst_bytes, src - width * Form::src_bytes, width, true);
        for (long x = made; x < width; ++x) {
            dst -= Form::dst_bytes;
            src -= Form::src_bytes;
            form.pixel(dst, src);
        }
    }
}

}  // namespace tintvert
