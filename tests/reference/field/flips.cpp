#include "reference/field/field.h"
#include "reference/field/field_address.h"

namespace tintvert::reference {
namespace {

// Products of lines and strides keep 32 bits, and are then an unsigned distance.
Address line_of(const uint8_t* base, uint32_t line, uint32_t stride)
{
    return address_of(base) + static_cast<uint32_t>(line * stride);
}

void clear(Address from, uint32_t bytes)
{
    for (uint32_t i = 0; i < bytes; ++i) put(from + i, 0);
}

struct Margin {
    uint32_t all = 0, left = 0, right = 0;
};

Margin margin_of(uint32_t dst_stride, uint32_t src_stride, uint32_t flags)
{
    if (dst_stride <= src_stride) return {};
    const uint32_t all = dst_stride - src_stride, odd = all & 1;
    switch (flags & 0xF000000) {
        case 0x1000000:
            return {all, all, 0};
        case 0x2000000:
            return {all, 0, all};
        case 0x4000000:
            return {all, all / 2 + odd, all / 2};
        case 0x8000000:
            return {all, all / 2, all / 2 + odd};
        default:
            return {all, 0, 0};
    }
}

}  // namespace

void flip_vert(uint8_t* dst, uint8_t* src, uint32_t, int32_t height, uint32_t stride)
{
    const uint32_t lines = static_cast<uint32_t>(height);
    if (dst == src) {
        exchange_guarded(stride + 1, lines >> 1, "exception-tntvt_flip_vert() ", [&](uint32_t r, Address scratch) {
            const Address upper = line_of(dst, r, stride), lower = line_of(dst, lines - 1 - r, stride);
            copy(scratch, upper, stride);
            copy(upper, lower, stride);
            copy(lower, scratch, stride);
        });
        return;
    }
    if (height <= 0) return;
    for (uint32_t r = 0; r < lines; ++r) copy(line_of(dst, r, stride), line_of(src, lines - 1 - r, stride), stride);
}

void flip_vert_flags(uint8_t* dst, uint8_t* src, uint32_t, uint32_t, int32_t height, uint32_t dstStride,
                     uint32_t srcStride, uint32_t flags, int32_t keepMargins)
{
    const Margin margin = margin_of(dstStride, srcStride, flags);
    const bool clearing = keepMargins == 0 && margin.all != 0;
    const auto clear_margins = [&](Address line) {
        clear(line, margin.left);
        clear(line + margin.left + srcStride, margin.right);
    };
    const uint32_t lines = static_cast<uint32_t>(height);
    if (dst == src) {
        exchange_guarded(dstStride + 1, lines >> 1, "exception-tntvt_flip_vert_flags() ",
                         [&](uint32_t r, Address scratch) {
                             const Address upper = line_of(dst, r, dstStride);
                             const Address lower = line_of(dst, lines - 1 - r, dstStride);
                             if (clearing) clear_margins(upper);
                             copy(scratch, upper, dstStride);
                             copy(upper, lower, srcStride);
                             copy(lower, scratch, dstStride);
                         });
        return;
    }
    if (height <= 0) return;
    for (uint32_t r = 0; r < lines; ++r) {
        const Address line = line_of(dst, r, dstStride);
        if (clearing) clear_margins(line);
        copy(line + margin.left, line_of(src, lines - 1 - r, srcStride), srcStride);
    }
}

void flip_horz(uint8_t* dst, uint8_t* src, int32_t width, int32_t height, uint32_t stride)
{
    if (height <= 0) return;
    const uint32_t lines = static_cast<uint32_t>(height), pixels = static_cast<uint32_t>(width);
    if (dst == src) {
        if (pixels < 2) return;
        for (uint32_t line = 0; line < lines; ++line) {
            const Address start = line_of(dst, line, stride);
            for (uint64_t i = 0; i < pixels / 2; ++i) {
                const Address here = start + 4 * i, there = start + 4 * (pixels - i);
                const uint32_t one = get_word(here), other = get_word(there);
                put_word(here, other);
                put_word(there, one);
            }
        }
        return;
    }
    if (width <= 0) return;
    for (uint32_t line = 0; line < lines; ++line) {
        const Address to = line_of(dst, line, stride), from = line_of(src, line, stride);
        for (uint64_t i = 0; i < pixels; ++i) put_word(to + 4 * i, get_word(from + 4 * (pixels - i)));
    }
}

}  // namespace tintvert::reference
