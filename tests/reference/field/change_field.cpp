#include "reference/field/field.h"
#include "reference/field/field_address.h"

namespace tintvert::reference {
namespace {

// Rows reached two at a time: twice the pitch is a 32-bit number.
struct Rows {
    Address base;
    uint32_t pitch;

    Address even(uint64_t k) const { return base + k * static_cast<uint32_t>(pitch + pitch); }
    Address odd(uint64_t k) const { return even(k) + pitch; }
};

void copy_unless_same(Address to, Address from, uint32_t bytes)
{
    if (to != from) copy(to, from, bytes);
}

void mean_of_lines(Address to, Address one, Address other, uint32_t bytes)
{
    for (uint32_t pixel = 0; pixel < bytes >> 2; ++pixel) {
        const uint64_t offset = uint64_t{pixel} * 4;
        put_word(to + offset, mean_of_pixels(get_word(one + offset), get_word(other + offset)));
    }
}

int blend(Address dst, uint32_t width, uint32_t height, uint32_t dst_pitch, uint32_t src_pitch)
{
    if (height < 2) return -1;
    const uint32_t bytes = width * 4;
    if (bytes == 0) return 0;
    Address first = dst, second = dst;
    for (uint32_t line = 0; line < height; ++line) {
        for (uint32_t j = 0; j < bytes; ++j)
            put(first + j, (uint32_t{get(first + j)} + uint32_t{get(second + j)}) >> 1);
        first += dst_pitch;
        second += src_pitch;
    }
    return 0;
}

}  // namespace

uint32_t mean_of_pixels(uint32_t one, uint32_t other)
{
    const uint32_t a = one >> 1, b = other >> 1;
    const uint32_t fourth = ((a & 0x7F800000) + (b & 0x7F800000)) & 0xFF000000;
    const uint32_t third = ((a & 0x7F8000) + (b & 0x7F8000)) & 0xFF0000;
    const uint32_t second = ((a & 0x7F80) + (b & 0x7F80)) & 0xFF00;
    const uint32_t first = (a & 0x7F) + (b & 0x7F);
    return fourth | third | second | first;
}

int change_field_rgb(uint8_t* dst, uint32_t mode, uint32_t width, uint32_t height, uint32_t dstStride, uint8_t* src,
                     uint32_t srcStride)
{
    if (srcStride == 0) srcStride = dstStride;
    const Rows d{address_of(dst), dstStride}, s{address_of(src), srcStride}, own{address_of(dst), srcStride};
    const uint32_t n = height / 2;
    const Address top = d.base, bottom = d.base + static_cast<uint32_t>(dstStride * n);
    const uint64_t pitch = dstStride;

    const auto entry_step = [&] {
        if (s.odd(0) != d.odd(0)) copy(d.even(0), s.odd(0), srcStride);
    };

    switch (mode) {
        case 1:
            if (height < 2) return 0;
            for (uint32_t k = 0; k < n; ++k) copy(d.odd(k), own.even(k), srcStride);
            return 0;
        case 2:
            if (height < 2) return 0;
            for (uint32_t k = 0; k < n; ++k) copy(d.even(k), own.odd(k), srcStride);
            return 0;
        case 3:
            exchange_guarded(dstStride, n, "exception-tntvt_change_field_rgb(FieldFLip) ",
                             [&](uint32_t k, Address scratch) {
                                 copy(scratch, own.odd(k), srcStride);
                                 copy(own.odd(k), d.even(k), srcStride);
                                 copy(d.even(k), scratch, srcStride);
                             });
            return 0;
        case 4:
            return blend(d.base, width, height, dstStride, srcStride);
        case 5:
        case 6:
        case 7:
        case 8: {
            if (src == nullptr) return -2;
            if (height == 0) return 0;
            const bool from_odd = mode == 5 || mode == 7, to_odd = mode == 5 || mode == 6;
            uint32_t left = height;
            for (uint64_t k = 0; left != 0; ++k, left -= 2)
                copy(to_odd ? d.odd(k) : d.even(k), from_odd ? s.odd(k) : s.even(k), srcStride);
            return 0;
        }
        case 9:
        case 10:
            if (height < 2) return 0;
            for (uint32_t k = 0; k < n; ++k) {
                const Address from = mode == 9 ? s.even(k) : s.odd(k);
                copy_unless_same(d.even(k), from, srcStride);
                copy_unless_same(d.odd(k), from, srcStride);
            }
            return 0;
        case 11:
            if (dst == nullptr || src == nullptr) entry_step();
            if (src == nullptr) return -2;
            for (uint32_t k = 0; k < n; ++k) {
                copy_unless_same(d.even(k), s.even(k), srcStride);
                mean_of_lines(d.odd(k), s.even(k), k == n - 1 ? s.even(k) : s.even(uint64_t{k} + 1), srcStride);
            }
            return 0;
        case 12:
            entry_step();
            if (src == nullptr) return -2;
            for (uint32_t k = 0; k < n; ++k) {
                copy_unless_same(d.odd(k), s.odd(k), srcStride);
                if (k == n - 1) return 0;
                mean_of_lines(d.even(uint64_t{k} + 1), s.odd(k), s.odd(uint64_t{k} + 1), srcStride);
            }
            return 0;
        case 13:
            for (uint32_t k = 0; k < n; ++k) {
                if (src == nullptr) {
                    copy(top + k * pitch, own.even(k), srcStride);
                } else {
                    copy(top + k * pitch, s.even(k), dstStride);
                    copy(bottom + k * pitch, s.odd(k), dstStride);
                }
            }
            return 0;
        case 14:
            for (uint32_t k = 0; k < n; ++k) {
                if (src == nullptr) {
                    copy(top + k * pitch, own.odd(k), srcStride);
                } else {
                    copy(bottom + k * pitch, s.even(k), srcStride);
                    copy(top + k * pitch, s.odd(k), srcStride);
                }
            }
            return 0;
        default:
            return 0;
    }
}

int change_field_yuv(uint8_t* dst, uint32_t mode, uint32_t width, uint32_t height, uint32_t dstStride, uint8_t* src,
                     uint32_t srcStride)
{
    const uint32_t run = mode == 4 ? 1 : mode == 11 ? 9 : mode == 12 ? 10 : mode;
    return change_field_rgb(dst, run, width, height, dstStride, src, srcStride);
}

}  // namespace tintvert::reference
