// Lines mirrored, pixel by pixel.
//
// QUIRK (keeps_mirror_past_the_line): pixel i goes with pixel `width` - i and not with
// `width` - 1 - i, so a line is mirrored about pixel `width` / 2 and the first pixel past it takes part.
#include <tintvert/field.h>

#include <cstddef>

#include "field/lines.h"
#include "simd/vec.h"

using namespace tintvert;

namespace {

#if defined(__x86_64__)
TNTVT_AVX2 __m256i eight_reversed_avx2(const uint8_t* src)
{
    return _mm256_permutevar8x32_epi32(load_256(src), _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0));
}

#endif

struct MirrorLine {
#if defined(__x86_64__)
    // Pixels from the left, in eights. The pixel past them comes from the step before, so that loads of aligned lines
    // cross no cache line. The first pixel is none of theirs and is not read.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long width)
    {
        const __m256i first_then_reversed = _mm256_setr_epi32(0, 7, 6, 5, 4, 3, 2, 1);
        __m256i before = _mm256_set1_epi32(load<int32_t>(src + width * 4));
        long i = 0;
        for (; width - i > 8; i += 8) {
            const __m256i eight = load_256(src + (width - i - 8) * 4);
            const __m256i turned = _mm256_permutevar8x32_epi32(eight, first_then_reversed);
            store_256(dst + i * 4, _mm256_blend_epi32(turned, before, 1));
            before = turned;
        }
        return i;
    }
#endif
};

struct MirrorInPlace {
#if defined(__x86_64__)
    // The same, each eight exchanged with those that they are mirrored to. The middle pixels stay.
    TNTVT_AVX2 static long avx2(uint8_t* line, long width)
    {
        long i = 0;
        for (; width / 2 - i >= 8; i += 8) {
            uint8_t *left = line + i * 4, *right = line + (width - i - 7) * 4;
            const __m256i from_left = eight_reversed_avx2(left), from_right = eight_reversed_avx2(right);
            store_256(left, from_right);
            store_256(right, from_left);
        }
        return i;
    }
#endif
};

// The offset of a pixel in a frame, at most 2^32 - 1: the line that begins at `line` may go on at offset 0.
uint32_t pixel_at(uint32_t line, uint32_t pixel) { return line + pixel * 4; }

// Whether pixels 0 to `width` of that line follow each other.
bool runs_on(uint32_t line, uint32_t width) { return line + (uint64_t{width} + 1) * 4 <= uint64_t{1} << 32; }

void mirror_line(uint8_t* dst, const uint8_t* src, uint32_t line, uint32_t width, InstructionSet level)
{
    uint32_t i = 0;
    if (runs_on(line, width)) {
        uint8_t* const to = advance(dst, line);
        const uint8_t* const from = advance(src, line);
        const long bytes = long{width} * 4;
        i = static_cast<uint32_t>(run_simd<MirrorLine>(level, {{to, bytes}}, {{from + 4, bytes}}, to, from, width));
    }
    for (; i < width; ++i)
        store(advance(dst, pixel_at(line, i)), load<uint32_t>(advance(src, pixel_at(line, width - i))));
}

void mirror_line_in_place(uint8_t* frame, uint32_t line, uint32_t width, InstructionSet level)
{
    uint32_t i = 0;
    if (runs_on(line, width)) {
        uint8_t* const pixels = advance(frame, line);
        i = static_cast<uint32_t>(run_simd<MirrorInPlace>(level, {{pixels, width * 4l}}, {}, pixels, width));
    }
    for (; i < width / 2; ++i) {
        uint8_t* const left = advance(frame, pixel_at(line, i));
        uint8_t* const right = advance(frame, pixel_at(line, width - i));
        const auto from_left = load<uint32_t>(left);
        store(left, load<uint32_t>(right));
        store(right, from_left);
    }
}

}  // namespace

void tntvt_flip_horz(unsigned char* dst, unsigned char* src, int width, int height, unsigned int stride)
{
    const auto pixels = static_cast<uint32_t>(width);
    if (height < 1 || (dst == src ? pixels < 2 : width < 1)) return;
    const InstructionSet level = instruction_set();
    for (uint32_t r = 0; r < static_cast<uint32_t>(height); ++r) {
        if (dst == src)
            mirror_line_in_place(dst, r * stride, pixels, level);
        else
            mirror_line(dst, src, r * stride, pixels, level);
    }
}
