#include "reference/hdr/st2084.h"

#include <cmath>
#include <functional>
#include <vector>

namespace tintvert::reference {
namespace {

using Table = std::vector<uint32_t>;
using Entry = uint32_t (*)(uint32_t);

// Signal for a luminance of 0 to 1, the latter being 10000 cd/m2.
double inverse_eotf(double luminance)
{
    const double m1 = 2610 / 16384.0, m2 = 2523 / 4096.0 * 128;
    const double c1 = 3424 / 4096.0, c2 = 2413 / 4096.0 * 32, c3 = 2392 / 4096.0 * 32;
    const double power = std::pow(luminance, m1);
    return std::pow((c1 + c2 * power) / (1 + c3 * power), m2);
}

// Linear codes of `codes` levels, as many of them as are looked at.
void append_forward(Table& table, int codes, int entries)
{
    for (int i = 0; i < entries; ++i)
        table.push_back(static_cast<uint32_t>(codes * inverse_eotf(i / static_cast<double>(codes))));
}

void append_reverse_8(Table& table)
{
    for (int i = 0; i < 256; ++i) {
        if (i <= 16)
            table.push_back(static_cast<uint32_t>(i));
        else if (i >= 129)
            table.push_back(235);
        else
            table.push_back(static_cast<uint32_t>(16 + 219 * std::pow((i - 16) / 113.0, 1.9) + 0.5));
    }
}

Table block_from_forward_8()
{
    Table table;
    append_forward(table, 256, 256);
    append_reverse_8(table);
    append_forward(table, 4096, 512);
    return table;
}

Table block_from_reverse_8()
{
    Table table;
    append_reverse_8(table);
    append_forward(table, 4096, 768);
    return table;
}

// Calls `line` with the starts of the lines, whose offsets wrap at 32 bits.
using Line = std::function<void(uint8_t* dst, const uint8_t* src, uint32_t bytes)>;
int each_line(uint8_t* dst, const uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height, const Line& line)
{
    const uint32_t bytes = dstStride < srcStride ? dstStride : srcStride;
    if (bytes == 0) return 0;
    for (uint32_t y = 0; y < static_cast<uint32_t>(height); ++y) line(dst + y * dstStride, src + y * srcStride, bytes);
    return 0;
}

uint8_t mapped(Entry entry, uint8_t byte) { return static_cast<uint8_t>(entry(byte)); }

void map_all(uint8_t* dst, const uint8_t* src, uint32_t bytes, Entry entry)
{
    for (uint32_t i = 0; i < bytes; ++i) dst[i] = mapped(entry, src[i]);
}

uint32_t word_at(const uint8_t* bytes)
{
    return bytes[0] + bytes[1] * 0x100u + bytes[2] * 0x10000u + bytes[3] * 0x1000000u;
}

void map_words(uint8_t* dst, const uint8_t* src, uint32_t bytes, Entry entry)
{
    for (uint64_t o = 0; o < bytes; o += 16) {
        for (uint64_t place = 0; place < 4; ++place) {
            const uint32_t w = word_at(src + 1 + o + 4 * place);
            uint32_t result;
            if (place % 2 == 0) {
                result = (w & 0x3FF003FFu) | entry((w >> 12) & 0x3FF) << 12;
            } else {
                result = (w & 0xFFC00u) | entry(w >> 22) << 22 | entry((w >> 2) & 0x3FF) << 2;
            }
            for (uint64_t i = 0; i < 4; ++i) dst[1 + o + 4 * place + i] = static_cast<uint8_t>(result >> 8 * i);
        }
    }
}

}  // namespace

uint32_t entry_from_rgb_to_st2084(uint32_t index)
{
    static const Table table = block_from_forward_8();
    return table.at(index);
}

uint32_t entry_from_st2084_to_rgb(uint32_t index)
{
    static const Table table = block_from_reverse_8();
    return table.at(index);
}

int rgb_to_st2084(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height)
{
    return each_line(dst, src, dstStride, srcStride, height, [](uint8_t* to, const uint8_t* from, uint32_t bytes) {
        map_all(to, from, bytes, entry_from_rgb_to_st2084);
    });
}

int st2084_to_rgb(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height)
{
    return each_line(dst, src, dstStride, srcStride, height, [](uint8_t* to, const uint8_t* from, uint32_t bytes) {
        map_all(to, from, bytes, entry_from_st2084_to_rgb);
    });
}

int yuv2_to_st2084(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height)
{
    return each_line(dst, src, dstStride, srcStride, height, [](uint8_t* to, const uint8_t* from, uint32_t bytes) {
        for (uint32_t group = 0; group < bytes / 4; ++group) {
            const uint32_t o = group * 4;
            to[o + 1] = mapped(entry_from_rgb_to_st2084, from[o + 1]);
            to[o + 3] = mapped(entry_from_rgb_to_st2084, from[o + 3]);
        }
    });
}

// The four bytes of the copy are all read before the first is written.
int st2084_to_yuv2(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height)
{
    return each_line(dst, src, dstStride, srcStride, height, [](uint8_t* to, const uint8_t* from, uint32_t bytes) {
        for (uint32_t group = 0; group < bytes / 4; ++group) {
            const uint32_t o = group * 4;
            const uint8_t b1 = from[o + 1], b2 = from[o + 2], b3 = from[o + 3], b4 = from[o + 4];
            to[o + 1] = b1, to[o + 2] = b2, to[o + 3] = b3, to[o + 4] = b4;
            to[o + 1] = mapped(entry_from_st2084_to_rgb, from[o + 1]);
            to[o + 3] = mapped(entry_from_st2084_to_rgb, from[o + 3]);
        }
    });
}

int v210_to_st2084(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height)
{
    return each_line(dst, src, dstStride, srcStride, height, [](uint8_t* to, const uint8_t* from, uint32_t bytes) {
        map_words(to, from, bytes, entry_from_rgb_to_st2084);
    });
}

int st2084_to_v210(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height)
{
    return each_line(dst, src, dstStride, srcStride, height, [](uint8_t* to, const uint8_t* from, uint32_t bytes) {
        map_words(to, from, bytes, entry_from_st2084_to_rgb);
    });
}

}  // namespace tintvert::reference
