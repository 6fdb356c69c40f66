// The two ways through a frame.
//
// A pixel form says what one pixel becomes and nothing about lines: `src_bytes`, `dst_bytes`, and
// `pixel(dst, src)`, whose order of loads and stores is part of the form, because in place that order is
// the result. The walkers say where a line stands in its stride; a `width` or a count of lines below 1 is
// no work.
#pragma once

#include <cstdint>

#include "frame/memory.h"
#include "frame/number.h"

namespace tintvert {

struct Frame {
    void* dst;
    long dst_stride;
    void* src;
    long src_stride;
};

// Forward: a line stands at the start of its stride. First line first, leftmost pixel first.
template <class Form>
void walk_forward(const Frame& frame, long width, long lines, Form form = {})
{
    if (width < 1) return;
    for (long line = 0; line < lines; ++line) {
        uint8_t* dst = advance(bytes(frame.dst), line_offset(line, frame.dst_stride));
        const uint8_t* src = advance(bytes(frame.src), line_offset(line, frame.src_stride));
        for (long x = 0; x < width; ++x, dst += Form::dst_bytes, src += Form::src_bytes) form.pixel(dst, src);
    }
}

// Backward: a line stands at the end of its stride. Last line first, rightmost pixel first.
template <class Form>
void walk_backward(const Frame& frame, long width, long lines, Form form = {})
{
    if (width < 1) return;
    for (long line = lines; line > 0; --line) {
        uint8_t* dst = advance(bytes(frame.dst), line_offset(line, frame.dst_stride));
        const uint8_t* src = advance(bytes(frame.src), line_offset(line, frame.src_stride));
        for (long x = 0; x < width; ++x) {
            dst -= Form::dst_bytes;
            src -= Form::src_bytes;
            form.pixel(dst, src);
        }
    }
}

}  // namespace tintvert
