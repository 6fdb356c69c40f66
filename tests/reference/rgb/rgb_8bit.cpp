#include "reference/rgb/rgb_8bit.h"

#include <cstdlib>

namespace tintvert::reference {

namespace {

void put(uint8_t* dst, int first, int second, int third, int fourth)
{
    dst[0] = static_cast<uint8_t>(first);
    dst[1] = static_cast<uint8_t>(second);
    dst[2] = static_cast<uint8_t>(third);
    dst[3] = static_cast<uint8_t>(fourth);
}

int low_byte(int number) { return number % 256; }

}  // namespace

void rotated_right(uint8_t* dst, const uint8_t* src) { put(dst, src[1], src[2], src[3], src[0]); }
void rotated_left(uint8_t* dst, const uint8_t* src) { put(dst, src[3], src[0], src[1], src[2]); }
void reversed(uint8_t* dst, const uint8_t* src) { put(dst, src[3], src[2], src[1], src[0]); }
void low_pair_swapped(uint8_t* dst, const uint8_t* src) { put(dst, src[2], src[1], src[0], src[3]); }

void counted_alpha(uint8_t* dst, const uint8_t* src)
{
    int sum = src[3];
    if (src[2] == 0 && src[1] == 0 && src[0] < 8) sum += 1;
    put(dst, low_byte(sum), sum / 256, 0, 0);
}

void cut_to_24(uint8_t* dst, const uint8_t* src)
{
    dst[0] = src[0];
    dst[1] = src[1];
    dst[2] = src[2];
}

void rgba32_to_bgr24(const StridedFrame& frame)
{
    bool first = true;
    forward(frame, {3, 4}, [&](uint8_t* dst, const uint8_t* src) {
        if (first) {
            const uint8_t b0 = src[0], b1 = src[1], b2 = src[2];
            dst[2] = b0;
            dst[1] = b1;
            dst[0] = b2;
            first = false;
            return;
        }
        dst[2] = src[0];
        dst[1] = src[1];
        dst[0] = src[2];
    });
}

void rgba32_to_rgb24_upside_down(const StridedFrame& frame)
{
    forward(frame, {3, 4}, cut_to_24, [&](long line) { return frame.height - 1 - line; });
}

void alpha_behind(uint8_t* dst, const uint8_t* src)
{
    dst[0] = src[0];
    dst[1] = src[1];
    dst[2] = src[2];
    dst[3] = 255;
}

void reversed_alpha_behind(uint8_t* dst, const uint8_t* src)
{
    dst[2] = src[0];
    dst[1] = src[1];
    dst[0] = src[2];
    dst[3] = 255;
}

void alpha_in_front(uint8_t* dst, const uint8_t* src)
{
    dst[3] = src[2];
    dst[2] = src[1];
    dst[1] = src[0];
    dst[0] = 255;
}

void five_bits_widened(uint8_t* dst, const uint8_t* src)
{
    // Five bits from bit `lowest` of the word up, times 8.
    const auto channel = [&](int lowest) {
        int word = src[0] + 256 * src[1], times_8 = 0;
        for (int bit = 0; bit < 5; ++bit)
            if (word >> (lowest + bit) & 1) times_8 += 8 << bit;
        return static_cast<uint8_t>(times_8);
    };
    dst[2] = channel(10);
    dst[1] = channel(5);
    dst[0] = channel(0);
    dst[3] = 255;
}

void rgba24_to_rgb32_upside_down(const StridedFrame& frame)
{
    for (long i = 0; i < std::labs(frame.height); ++i) {
        uint8_t* dst = frame.dst + i * frame.dst_stride;
        const uint8_t* src = frame.src + (frame.height - 1 - i) * frame.src_stride;
        for (long x = 1; x <= frame.width; ++x) alpha_behind(dst - 4 * x, src - 3 * x);
    }
}

}  // namespace tintvert::reference
