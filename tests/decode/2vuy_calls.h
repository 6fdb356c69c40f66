// Calls of the routines from `2vuy` to RGB, and lines of grey for them.
#pragma once

#include <gtest/gtest.h>
#include <tintvert.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace tintvert::test {

using Memory = std::vector<uint8_t>;
using Words = std::vector<uint16_t>;
using Decoder = void (*)(void*, long, void*, long, long, long, long);

struct DecodeCall {
    long dstStride, srcStride, width, height, scale;
};

// What a call leaves of `bytes` bytes of 0xEE; as many before them and after them stay as they are.
inline Memory decode(Decoder decoder, Memory src, size_t bytes, const DecodeCall& c)
{
    const auto size = static_cast<ptrdiff_t>(bytes);
    Memory dst(3 * bytes, 0xEE);
    decoder(dst.data() + size, c.dstStride, src.data(), c.srcStride, c.width, c.height, c.scale);
    EXPECT_EQ(Memory(dst.begin(), dst.begin() + size), Memory(bytes, 0xEE));
    EXPECT_EQ(Memory(dst.end() - size, dst.end()), Memory(bytes, 0xEE));
    return {dst.begin() + size, dst.end() - size};
}

inline Memory rgb24(const Memory& src, size_t bytes, const DecodeCall& c)
{
    return decode(tntvt_yuv422_rgb24, src, bytes, c);
}

inline Words rgb16(const Memory& src, size_t words, const DecodeCall& c)
{
    const Memory bytes = decode(tntvt_yuv422_rgb16, src, 2 * words, c);
    Words result(words);
    std::memcpy(result.data(), bytes.data(), bytes.size());
    return result;
}

// Pixels of neutral chroma. Luma 16, 128, 235 and 255 are the greys 0, 130, 254 and 255, and the words
// 0, 0x4210, 0x7FFF and 0x7FFF.
inline Memory greys(const std::vector<int>& luma)
{
    Memory bytes;
    for (const int y : luma) bytes.insert(bytes.end(), {128, static_cast<uint8_t>(y)});
    return bytes;
}

// One line after another.
inline Memory lines_of(const std::vector<Memory>& lines)
{
    Memory bytes;
    for (const Memory& line : lines) bytes.insert(bytes.end(), line.begin(), line.end());
    return bytes;
}

}  // namespace tintvert::test
