// What one family of routines is not called with: one rule a family.
#pragma once

#include <cstdint>

#include "refusals.h"

namespace tintvert::catalog::refusals {

using Rule = Reason(const Arguments&);
Rule negative_size, run_of_pixels, run_of_triples, no_groups, planes_420, negative_width, no_scale, by_matrix_or_scale,
    planes_to_rgb32, run_to_rgb, widened_2vuy, narrowed_v210, payload, packed10, packets, packed_lines, frame_copy,
    counted_down, field_change_rgb, field_change_yuv, flip, flip_placed, mirror, woven, interleaved, pitch_pair,
    pitches;

constexpr int64_t most_signed = 0x7FFFFFFF, most_unsigned = 0xFFFFFFFF;

constexpr int64_t size_of(int64_t number) { return number < 0 ? -number : number; }

// Whether the product of two sizes is above `most`. It is below 2^64: numbers that fit in memory, and a small factor.
constexpr bool above(int64_t most, int64_t one, int64_t other)
{
    return static_cast<uint64_t>(size_of(one)) * static_cast<uint64_t>(size_of(other)) > static_cast<uint64_t>(most);
}

}  // namespace tintvert::catalog::refusals
