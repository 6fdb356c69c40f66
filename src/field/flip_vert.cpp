// Frames turned upside down, line by line.
#include <tintvert/field.h>

#include <cstring>

#include "field/lines.h"
#include "frame/failure.h"
#include "frame/imports.h"

using namespace tintvert;

namespace {

void copy_upside_down(uint8_t* dst, uint8_t* src, uint32_t height, uint32_t stride)
{
    for (uint32_t r = 0; r < height; ++r)
        CopyMemoryFast(line_at(dst, r, stride), line_at(src, height - 1 - r, stride), stride);
}

// QUIRK (keeps_spare_byte): scratch lines are one byte longer than any copy.
// QUIRK (keeps_unsigned_half_of_height): half the height is taken of the unsigned number, so that a
// negative height walks 2^30 rounds or more.
// A copy that throws ends the loop, and the caller learns nothing of it (keeps_success_after_failure).
void turn_upside_down(uint8_t* frame, uint32_t height, uint32_t stride)
{
    void* scratch = ZKAlloc(stride + 1);
    for (uint32_t r = 0; r < height / 2; ++r) {
        uint8_t* top = line_at(frame, r, stride);
        uint8_t* bottom = line_at(frame, height - 1 - r, stride);
        try {
            CopyMemoryFast(scratch, top, stride);
            CopyMemoryFast(top, bottom, stride);
            CopyMemoryFast(bottom, scratch, stride);
        } catch (...) {
            report_failure("exception-tntvt_flip_vert() ");
            break;
        }
    }
    ZKFree(scratch);
}

enum FlipMargin : uint32_t {
    FlipMarginLeft = 0x1000000,
    FlipMarginRight = 0x2000000,
    FlipMarginCentreLeft = 0x4000000,
    FlipMarginCentreRight = 0x8000000,
    FlipMarginMask = 0xF000000,
};

// What a wide destination line has on either side of the narrower source line.
struct Margins {
    uint32_t left = 0, right = 0;
};

// Combinations of flags place nothing.
Margins margins_of(uint32_t dst_stride, uint32_t src_stride, uint32_t flags)
{
    if (dst_stride <= src_stride) return {};
    const uint32_t margin = dst_stride - src_stride;
    const uint32_t half = margin / 2;
    switch (flags & FlipMarginMask) {
        case FlipMarginLeft:
            return {margin, 0};
        case FlipMarginRight:
            return {0, margin};
        case FlipMarginCentreLeft:
            return {margin - half, half};
        case FlipMarginCentreRight:
            return {half, margin - half};
        default:
            return {};
    }
}

// memset takes no null pointer, not even for 0 bytes.
void clear(uint8_t* bytes, uint32_t count)
{
    if (count != 0) std::memset(bytes, 0, count);
}

struct Placed {
    uint32_t dst_stride, src_stride;
    Margins margins;
    bool keep_margins;

    // `line` is the offset of a line. What is added to it wraps at 32 bits as well.
    void clear_margins(uint8_t* frame, uint32_t line) const
    {
        if (keep_margins) return;
        clear(advance(frame, line), margins.left);
        clear(advance(frame, line + margins.left + src_stride), margins.right);
    }
};

void copy_upside_down(uint8_t* dst, uint8_t* src, uint32_t height, const Placed& placed)
{
    for (uint32_t r = 0; r < height; ++r) {
        const uint32_t line = r * placed.dst_stride;
        placed.clear_margins(dst, line);
        CopyMemoryFast(advance(dst, line + placed.margins.left), line_at(src, height - 1 - r, placed.src_stride),
                       placed.src_stride);
    }
}

// QUIRK (keeps_lines_unplaced_in_place): no line moves within its stride. The margins of top lines are
// cleared and travel down with them; `srcStride` bytes come up, and those of bottom lines are not cleared.
void turn_upside_down(uint8_t* frame, uint32_t height, const Placed& placed)
{
    void* scratch = ZKAlloc(placed.dst_stride + 1);
    for (uint32_t r = 0; r < height / 2; ++r) {
        uint8_t* top = line_at(frame, r, placed.dst_stride);
        uint8_t* bottom = line_at(frame, height - 1 - r, placed.dst_stride);
        placed.clear_margins(frame, r * placed.dst_stride);
        try {
            CopyMemoryFast(scratch, top, placed.dst_stride);
            CopyMemoryFast(top, bottom, placed.src_stride);
            CopyMemoryFast(bottom, scratch, placed.dst_stride);
        } catch (...) {
            report_failure("exception-tntvt_flip_vert_flags() ");
            break;
        }
    }
    ZKFree(scratch);
}

}  // namespace

void tntvt_flip_vert(unsigned char* dst, unsigned char* src, unsigned int, int height, unsigned int stride)
{
    if (dst == src)
        turn_upside_down(dst, static_cast<uint32_t>(height), stride);
    else if (height > 0)
        copy_upside_down(dst, src, static_cast<uint32_t>(height), stride);
}

void tntvt_flip_vert_flags(unsigned char* dst, unsigned char* src, unsigned int, unsigned int, int height,
                           unsigned int dstStride, unsigned int srcStride, unsigned int flags, int keepMargins)
{
    const Placed placed{dstStride, srcStride, margins_of(dstStride, srcStride, flags), keepMargins != 0};
    if (dst == src)
        turn_upside_down(dst, static_cast<uint32_t>(height), placed);
    else if (height > 0)
        copy_upside_down(dst, src, static_cast<uint32_t>(height), placed);
}
