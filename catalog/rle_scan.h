// How far a run-length coded stream takes its decoder: neither of the two knows where its stream ends, so
// whoever calls one on a stream of unknown make scans it first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "catalog.h"

namespace tintvert::catalog {

struct RleScan {
    Range stream;   // bytes of the stream that are read
    Range written;  // bytes from `dst` that are written
    Range palette;  // bytes of the colour table that are read
    bool ends;      // whether the decode stops inside the stream
    size_t wanted;  // if it does not: the offset of the first byte behind the stream that it would read
};

// Walk the stream as the decoders do. One that runs out is described up to that point.
RleScan scan_rle8_rgb32(std::span<const uint8_t> stream, int64_t dst_stride, int64_t height);
RleScan scan_rle8_rgb24(std::span<const uint8_t> stream, int64_t height);

}  // namespace tintvert::catalog
