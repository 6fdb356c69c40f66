// Run-length coded, palette-indexed images to RGB. A code is two bytes, c and v.
//
//   c         v           32-bit decoder                      24-bit decoder
//   1 .. 255  any         c pixels of entry v                 c + 1 pixels of entry v
//   0         0           end of line                         end of line
//   0         1, 2        end of bitmap                       end of bitmap
//   0         3 .. 255    v indices follow, padded to even    the code and the pad are stepped over
#include <tintvert/rgb.h>

#include "frame/memory.h"
#include "frame/number.h"
#include "rgb/rle8_simd.h"

using namespace tintvert;

namespace {

// QUIRK (keeps_delta_as_end): code 2, a delta elsewhere, ends the bitmap; its two offsets are not read.
enum Escape { end_of_line, end_of_bitmap, delta };

// The colour's three bytes; a fourth byte of the entry is not looked at.
void put_colour(uint8_t* dst, const uint8_t* entry)
{
    dst[0] = entry[0];
    dst[1] = entry[1];
    dst[2] = entry[2];
}

// QUIRK (keeps_zero_alpha): the fourth byte is 0, neither 255 nor the palette's.
uint8_t* put32(uint8_t* dst, const uint8_t* palette, uint8_t index)
{
    put_colour(dst, palette + 4 * index);
    dst[3] = 0;
    return dst + 4;
}

uint8_t* put24(uint8_t* dst, const uint8_t* palette, uint8_t index)
{
    put_colour(dst, palette + 3 * index);
    return dst + 3;
}

// Shorter encoded runs take longer by the SIMD version.
constexpr long shortest_for_simd = 8;

uint8_t* encoded_run(InstructionSet level, uint8_t* dst, const uint8_t* palette, uint8_t index, long pixels)
{
    const uint8_t* const entry = palette + 4 * index;
    long n = 0;
    if (pixels >= shortest_for_simd)
        n = run_simd<RepeatColour>(level, {{dst, 4 * pixels}}, {{entry, 3}}, dst, entry, pixels);
    for (dst += 4 * n; n < pixels; ++n) dst = put32(dst, palette, index);
    return dst;
}

uint8_t* absolute_run(InstructionSet level, uint8_t* dst, const uint8_t* indices, const uint8_t* palette, long pixels)
{
    const long made = run_simd<LookUpColours>(level, {{dst, 4 * pixels}}, {{indices, pixels}, {palette, 4 * 256}}, dst,
                                              indices, palette, pixels);
    dst += 4 * made;
    for (long n = made; n < pixels; ++n) dst = put32(dst, palette, indices[n]);
    return dst;
}

// One line, up to and with the code that ends it. Returns where the next one begins, or null after the code
// that ends the bitmap.
const uint8_t* decode_line(InstructionSet level, uint8_t* dst, const uint8_t* src, const uint8_t* palette)
{
    for (;;) {
        const uint8_t c = src[0], v = src[1];
        src += 2;
        if (c > 0) {
            dst = encoded_run(level, dst, palette, v, c);
        } else if (v == end_of_line) {
            return src;
        } else if (v == end_of_bitmap || v == delta) {
            return nullptr;
        } else {
            dst = absolute_run(level, dst, src, palette, v);
            src += v + (v & 1);
        }
    }
}

}  // namespace

// The first coded line is the last line of the image.
// QUIRK (keeps_lines_below_the_frame): line indices come from the signed `height`, so a negative one
// writes before `dst`, from line `height` - 1 down.
void tntvt_rle8_rgba32(void* dst, long dstStride, void* src, long, long, long height, void* palette)
{
    const InstructionSet level = instruction_set();
    const long lines = magnitude(height);
    uint8_t* const end = advance(bytes(dst), line_offset(height, dstStride));
    const uint8_t* codes = bytes(src);
    for (long i = 0; i < lines && codes != nullptr; ++i)
        codes = decode_line(level, advance(end, line_offset(-1 - i, dstStride)), codes, bytes(palette));
}

void tntvt_rle8_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height, void* palette)
{
    tntvt_rle8_rgba32(dst, dstStride, src, srcStride, width, height, palette);
}

// QUIRK (keeps_lines_end_to_end): there is no line address. Pixels only go forward from `dst`, and the
// end of a line does nothing but count.
// QUIRK (keeps_count_wrap): counting down from 0 wraps, and only an end of bitmap stops the decode.
void tntvt_rle8_rgb24(void* dst, long, void* src, long, long, long height, void* palette)
{
    uint8_t* to = bytes(dst);
    const uint8_t* codes = bytes(src);
    unsigned long lines_left = static_cast<unsigned long>(height);
    for (;;) {
        const uint8_t c = codes[0], v = codes[1];
        codes += 2;
        if (c > 0) {
            // QUIRK (keeps_one_pixel_more): a run is one pixel longer than c says, up to 256 pixels.
            for (int i = 0; i <= c; ++i) to = put24(to, bytes(palette), v);
        } else if (v == end_of_line) {
            if (--lines_left == 0) return;
        } else if (v == end_of_bitmap || v == delta) {
            return;
        } else {
            // QUIRK (keeps_indices_as_codes): only the pad is stepped over, and the indices of an
            // absolute run are read as codes.
            codes += v & 1;
        }
    }
}

void tntvt_rle4_rgb24(void*, long, void*, long, long, long, void*) {}
void tntvt_rle4_rgba32(void*, long, void*, long, long, long, void*) {}
void tntvt_rle4_rgb32(void*, long, void*, long, long, long, void*) {}
