#include "reference/field/field.h"
#include "reference/field/field_address.h"

namespace tintvert::reference {
namespace {

Address line_of(const uint8_t* base, uint64_t line, int64_t stride)
{
    return address_of(base) + line * static_cast<uint64_t>(stride);
}

// Sum and half of the field that begins at bit `first`.
uint32_t mixed_field(uint32_t a, uint32_t b, int first)
{
    const uint32_t sum = (a >> first & 0x3FF) + (b >> first & 0x3FF);
    if (first == 0) return sum >> 1;
    return first == 10 ? sum << 9 & 0xFFC00 : sum << 19 & 0x3FF00000;
}

void mix_bytes(Address dst, Address src, int64_t bytes)
{
    for (uint64_t i = 0; i < static_cast<uint64_t>(bytes); ++i) put(dst + i, (get(src + i) >> 1) + (get(dst + i) >> 1));
}

void mix_words(Address dst, Address src, int64_t words)
{
    for (uint64_t i = 0; i < static_cast<uint64_t>(words); ++i) {
        const uint32_t a = get_word(dst + 4 * i), b = get_word(src + 4 * i);
        put_word(dst + 4 * i, mixed_field(a, b, 0) | mixed_field(a, b, 10) | mixed_field(a, b, 20));
    }
}

}  // namespace

void fld_sep_to_mix32(uint8_t* dst, int64_t dstStride, uint8_t* firstField, uint8_t* secondField, int64_t fieldStride,
                      uint32_t width, uint32_t height)
{
    for (uint32_t l = 0; l < height; ++l)
        copy(line_of(dst, l, dstStride), line_of(l % 2 == 1 ? secondField : firstField, l / 2, fieldStride), width * 4);
}

void fld_mix_to_sep32(uint8_t* firstField, uint8_t* secondField, int64_t fieldStride, uint8_t* src, int64_t srcStride,
                      uint32_t width, uint32_t height)
{
    for (uint32_t l = 0; l < height; ++l)
        copy(line_of(l % 2 == 1 ? secondField : firstField, l / 2, fieldStride), line_of(src, l, srcStride), width * 4);
}

void copy_interleaved(uint8_t* dst, int64_t dstStride, uint8_t* src, int64_t srcStride, int64_t, int64_t height)
{
    if (dstStride == srcStride) {
        if (dst == src) return;
        copy(address_of(dst), address_of(src), static_cast<uint32_t>(height) * static_cast<uint32_t>(dstStride));
        return;
    }
    const uint32_t bytes = static_cast<uint32_t>(dstStride < srcStride ? dstStride : srcStride);
    for (int64_t l = 0; l < height; ++l)
        copy(line_of(dst, static_cast<uint64_t>(l), dstStride), line_of(src, static_cast<uint64_t>(l), srcStride),
             bytes);
}

int copy_dissolve(uint8_t* dst, uint8_t* src, int64_t stride, int64_t width, int64_t height, uint32_t fourcc)
{
    enum { bytes_twice, words, bytes_four_times } work;
    if (fccIsYCbCr8(fourcc) != 0)
        work = bytes_twice;
    else if (fccIsYCbCr10(fourcc) != 0)
        work = words;
    else if (fccIsDPX(fourcc) != 0)
        work = words;
    else if (fccIsRGB(fourcc) != 0)
        work = bytes_four_times;
    else
        return -1;
    if (width < 1) return 0;
    for (int64_t y = 0; y < height; ++y) {
        const Address to = line_of(dst, static_cast<uint64_t>(y), stride);
        const Address from = line_of(src, static_cast<uint64_t>(y), stride);
        if (work == bytes_twice) mix_bytes(to, from, width * 2);
        if (work == words) mix_words(to, from, width * 2 / 3);
        if (work == bytes_four_times) mix_bytes(to, from, width * 4);
    }
    return 0;
}

}  // namespace tintvert::reference
