// Packed 12-bit RGB to 16 and 8 bits a channel, in rounds. A round is read whole before it is written, and
// the last round of a line is a whole one.
#include <tintvert/rgb.h>

#include "frame/bit_moves.h"
#include "frame/walk.h"
#include "rgb/rounds.h"

using namespace tintvert;

namespace {

// Eight samples S0 .. S7 fill three words from bit 0 upward.
//
//           31 .... 24 23 ...... 12 11 ....... 0
//   word 0   S2 low 8       S1           S0
//           31 28 27 .... 16 15 .... 4 3 ...... 0
//   word 1   S5 low 4  S4        S3     S2 high 4
//           31 ..... 20 19 ..... 8 7 ......... 0
//   word 2       S7         S6       S5 high 8
constexpr void take_eight(uint32_t* samples, const uint8_t* src)
{
    const uint32_t word0 = load<uint32_t>(src), word1 = load<uint32_t>(src + 4), word2 = load<uint32_t>(src + 8);
    samples[0] = word0 & 0xFFF;
    samples[1] = word0 >> 12 & 0xFFF;
    samples[2] = word0 >> 24 | (word1 & 0xF) << 8;
    samples[3] = word1 >> 4 & 0xFFF;
    samples[4] = word1 >> 16 & 0xFFF;
    samples[5] = word1 >> 28 | (word2 & 0xFF) << 4;
    samples[6] = word2 >> 8 & 0xFFF;
    samples[7] = word2 >> 20;
}

// Eight pixels: red, green, blue of pixel p are samples 3p, 3p + 1, 3p + 2.
struct EightPixels {
    uint32_t samples[24];
    explicit constexpr EightPixels(const uint8_t* src)
    {
        for (int i = 0; i < 3; ++i) take_eight(samples + 8 * i, src + 12 * i);
    }
    constexpr uint32_t red(int p) const { return samples[3 * p]; }
    constexpr uint32_t green(int p) const { return samples[3 * p + 1]; }
    constexpr uint32_t blue(int p) const { return samples[3 * p + 2]; }
};

// 12 bits on top of 16, the low four bits zero.
constexpr uint16_t widened(uint32_t sample) { return static_cast<uint16_t>(sample << 4); }

// The upper 8 of 12 bits.
constexpr uint8_t narrowed(uint32_t sample) { return static_cast<uint8_t>(sample >> 4); }

// For the steps the samples are one stream of bits: sample n begins at bit 12n.
constexpr MovedByte widened_byte(int n, int byte) { return moved_bits(12 * n + 8 * byte - 4, byte == 0 ? 0xF0 : 0xFF); }
constexpr MovedByte narrowed_byte(int n) { return moved_bits(12 * n + 4); }

// Two pixels of ToRgb48.
struct PairOfRgb48 {
    static constexpr long src_bytes = 9, dst_bytes = 12;
    static constexpr MovedByte moved(int byte)
    {
        const int word = byte / 2, channel = 2 - word % 3;
        return widened_byte(word / 3 * 3 + channel, byte % 2);
    }
};

// The walkers' "pixel" is a round here.
struct ToBgr48 {
    static constexpr long src_bytes = 12, dst_bytes = 16;
    using Simd = BitMoves<ToBgr48>;
    static constexpr MovedByte moved(int byte) { return widened_byte(byte / 2, byte % 2); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        uint32_t samples[8];
        take_eight(samples, src);
        for (int i = 0; i < 8; ++i) store(dst + 2 * i, widened(samples[i]));
    }
};

struct ToRgb48 {
    static constexpr long src_bytes = 36, dst_bytes = 48;
    using Simd = BitMoves<PairOfRgb48, 4, ToRgb48>;
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        const EightPixels round(src);
        for (int p = 0; p < 8; ++p, dst += 6) {
            store(dst, widened(round.blue(p)));
            store(dst + 2, widened(round.green(p)));
            store(dst + 4, widened(round.red(p)));
        }
    }
};

// QUIRK (keeps_red_in_one_blue_byte): byte 0 of the third pixel is the red of the first, not its own blue.
struct ToRgba32 {
    static constexpr long src_bytes = 36, dst_bytes = 32;
    using Simd = BitMoves<ToRgba32>;
    static constexpr MovedByte moved(int byte)
    {
        const int p = byte / 4, channel = byte % 4;
        if (channel == 3) return fixed_byte(255);
        return narrowed_byte(p == 2 && channel == 0 ? 0 : 3 * p + 2 - channel);
    }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        const EightPixels round(src);
        for (int p = 0; p < 8; ++p, dst += 4) {
            dst[0] = narrowed(p == 2 ? round.red(0) : round.blue(p));
            dst[1] = narrowed(round.green(p));
            dst[2] = narrowed(round.red(p));
            dst[3] = 255;
        }
    }
};

}  // namespace

void tntvt_rgb12_bgr48(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<ToBgr48>({dst, dstStride, src, srcStride}, rounds_of_samples(width), magnitude(height));
}

// QUIRK (keeps_triple_rounds): rounds are counted as eight samples and take 24, so a line handles about
// three times `width` pixels. The next line overwrites the surplus and the last line's lands past the
// end of the frame, where callers leave room.
void tntvt_rgb12_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<ToRgb48>({dst, dstStride, src, srcStride}, rounds_of_samples(width), magnitude(height));
}

void tntvt_rgb12_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<ToRgba32>({dst, dstStride, src, srcStride}, rounds_of_pixels(width), magnitude(height));
}

void tntvt_rgb12_rgb48_sse4(void*, long, void*, long, long, long) {}
