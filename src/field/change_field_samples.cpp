// The field modes that compute on bytes or on pixels of four bytes.
#include <cstddef>

#include "field/change_field.h"
#include "frame/autovectorized.h"
#include "frame/imports.h"
#include "frame/walk.h"

namespace tintvert {
namespace {

struct Blend {
    static constexpr long src_bytes = 1, dst_bytes = 1;
    using Simd = Autovectorized<Blend>;
    static void pixel(uint8_t* dst, const uint8_t* src) { *dst = static_cast<uint8_t>((*dst + *src) >> 1); }
};

// Both words are halved whole, so the upper three bytes are one bit low with their own low bit intact;
// the masks cut them out there, and a sum of two carries its mean into the byte's own place.
// QUIRK (keeps_low_byte_of_halves): the byte at the lowest address has no bits below it and is the
// sum of two halved bytes, one less than the mean of two odd ones.
//
//            31 ... 24  23 ... 16  15 .... 8  7 ..... 0
//   average  (a+b)>>1   (a+b)>>1   (a+b)>>1   (a>>1)+(b>>1)
constexpr uint32_t average(uint32_t one, uint32_t other)
{
    const uint32_t a = one >> 1, b = other >> 1;
    return (((a & 0x7F800000) + (b & 0x7F800000)) & 0xFF000000) | (((a & 0x7F8000) + (b & 0x7F8000)) & 0xFF0000) |
           (((a & 0x7F80) + (b & 0x7F80)) & 0xFF00) | ((a & 0x7F) + (b & 0x7F));
}
static_assert(average(0x01010101, 0x01010101) == 0x01010100);
static_assert(average(0xFFFFFFFF, 0xFFFFFFFF) == 0xFFFFFFFE);
static_assert(average(0x02020202, 0x00000000) == 0x01010101);

void average_pixel(uint8_t* dst, const uint8_t* one, const uint8_t* other)
{
    store(dst, average(load<uint32_t>(one), load<uint32_t>(other)));
}

struct AveragePixels {
#if defined(__x86_64__)
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* one, const uint8_t* other, long pixels)
    {
        TNTVT_PIXELS_APART
        for (long x = 0; x < pixels; ++x) average_pixel(dst + x * 4, one + x * 4, other + x * 4);
        return pixels;
    }
#endif
};

void average_line(uint8_t* dst, const uint8_t* one, const uint8_t* other, long pixels, InstructionSet level)
{
    const long bytes = pixels * 4;
    long x = run_simd<AveragePixels>(level, {{dst, bytes}}, {{one, bytes}, {other, bytes}}, dst, one, other, pixels);
    for (; x < pixels; ++x) average_pixel(dst + x * 4, one + x * 4, other + x * 4);
}

// QUIRK (keeps_entry_copy): row 0 gets the source's row 1 unless that is where row 1 of `dst` is,
// so two frames and one frame in place end with different first rows. It comes before the test on `src`.
void copy_second_row_to_first(const Change& change)
{
    const LinePair dst(change.dst, change.dst_stride), src(change.src, change.src_stride);
    if (src.odd != dst.odd) CopyMemoryFast(dst.even, src.odd, change.src_stride);
}

}  // namespace

// QUIRK (keeps_average_with_itself): both pointers start at `dst`, so with equal pitches each byte is
// averaged with itself and the frame stays as it is. With unequal ones line i meets the bytes at
// `dst` + i x `srcStride`, which an earlier line may have changed. An odd last line takes part.
int blend_lines(const Change& change)
{
    if (change.height < 2) return -1;
    const uint32_t line_bytes = change.width * 4;
    walk_forward<Blend>({change.dst, change.dst_stride, change.dst, change.src_stride}, line_bytes, change.height);
    return 0;
}

int interpolate_first(const Change& change)
{
    if (change.dst == nullptr || change.src == nullptr) copy_second_row_to_first(change);
    if (change.src == nullptr) return -2;
    const InstructionSet level = instruction_set();
    LinePair dst(change.dst, change.dst_stride), src(change.src, change.src_stride);
    for (uint32_t k = 0; k < change.pairs(); ++k, dst.next(), src.next()) {
        copy_line_unless_same(dst.even, src.even, change.src_stride);
        const bool last = k + 1 == change.pairs();
        average_line(dst.odd, src.even, last ? src.even : advance(src.even, src.twice), change.src_stride / 4, level);
    }
    return 0;
}

int interpolate_second(const Change& change)
{
    copy_second_row_to_first(change);
    if (change.src == nullptr) return -2;
    const InstructionSet level = instruction_set();
    LinePair dst(change.dst, change.dst_stride), src(change.src, change.src_stride);
    for (uint32_t k = 0; k < change.pairs(); ++k, dst.next(), src.next()) {
        copy_line_unless_same(dst.odd, src.odd, change.src_stride);
        if (k + 1 == change.pairs()) break;
        average_line(advance(dst.even, dst.twice), src.odd, advance(src.odd, src.twice), change.src_stride / 4, level);
    }
    return 0;
}

}  // namespace tintvert
