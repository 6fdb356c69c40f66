// Memory with a fence: pages that fault, or that may only be read, from a chosen byte on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "catalog.h"

namespace tintvert::test {

enum class Side { below, above };         // which side of the fence is closed
enum class Closed { wholly, to_writes };  // how

// Contains the bytes of `hull` around pointer(). The fence is before the byte at offset `fence`. `fill` is called with
// the pointer before the fence is closed.
class FencedBuffer {
public:
    FencedBuffer(catalog::Range hull, int64_t fence, Side side, Closed closed,
                 const std::function<void(uint8_t* pointer)>& fill = {});
    ~FencedBuffer();
    FencedBuffer(const FencedBuffer&) = delete;
    FencedBuffer& operator=(const FencedBuffer&) = delete;

    uint8_t* pointer() const { return pointer_; }

private:
    uint8_t* map_;
    size_t mapped_;
    uint8_t* pointer_;
};

// Whether `work` ends in a memory fault.
bool faults(const std::function<void()>& work);

// Calls `routine` with `call`, whose buffers are supplied here, and proves that it touches the bytes of its
// extents rule: none outside, and the outermost ones on either side, reads and writes apart. Both are
// proved with fences, so nothing rests on the values in the buffers. GoogleTest failures say what differs.
// Buffers to which `call` gives one number other than 0 are one buffer: that is a call in place.
// `fill` is called on a buffer before each call, for routines that want a stream of a certain form. Of a
// buffer that is only read, the outermost `idle` bytes change no result, and a compiler may leave them out.
using Fill = std::function<void(catalog::Arg buffer, uint8_t* pointer, catalog::Range hull)>;

// A line of tntvt_2yuv_average_2y in which every second luma stands out: 100, 120, 100, 120 ... Every mode replaces all
// that it may.
void fill_with_errors(uint8_t* line, catalog::Range hull);

void expect_exact_extents(const catalog::Routine& routine, catalog::Arguments call, const Fill& fill = {},
                          int64_t idle = 0);

// The first half of that: none outside.
void expect_within_extents(const catalog::Routine& routine, catalog::Arguments call);

}  // namespace tintvert::test
