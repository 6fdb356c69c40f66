// The fourteen field modes: those that move lines and those that compute on samples.
#pragma once

#include <cstdint>

#include "field/lines.h"

namespace tintvert {

enum FieldMode : uint32_t {
    FieldDoubleFirst = 1,
    FieldDoubleSecond,
    FieldFLip,
    FieldBlend,
    FieldCopySecondToSecond,
    FieldCopyFirstToSecond,
    FieldCopySecondToFirst,
    FieldCopyFirstToFirst,
    FieldLineDoubleFirst,
    FieldLineDoubleSecond,
    FieldInterpolateFirst,
    FieldInterpolateSecond,
    FieldSplitFirstOnTop,
    FieldSplitSecondOnTop,
};

struct Change {
    uint8_t* dst;
    uint32_t dst_stride;
    uint8_t* src;
    uint32_t src_stride;  // bytes of a copied line, too
    uint32_t width;
    uint32_t height;

    uint32_t pairs() const { return height / 2; }
};

// All return the routine's status.
int double_field(const Change& change, Field from, Field to);
int flip_fields(const Change& change);
int copy_field(const Change& change, Field from, Field to);
int repeat_lines(const Change& change, Field field);
int split_fields(const Change& change, Field on_top, uint32_t line_bytes);

int blend_lines(const Change& change);
int interpolate_first(const Change& change);
int interpolate_second(const Change& change);

void copy_line_unless_same(uint8_t* dst, const uint8_t* src, uint32_t bytes);

}  // namespace tintvert
