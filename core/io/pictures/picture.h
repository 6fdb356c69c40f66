// A picture in memory: red, green, blue, alpha, 8 or 16 bits a sample, lines without a gap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tintvert::core {

struct Picture {
    enum Depth { bits8 = 1, bits16 = 2 };  // bytes a sample; 16-bit samples are little-endian
    static constexpr long samples = 4;

    Picture() = default;
    Picture(long picture_width, long picture_height, Depth picture_depth = bits8)
        : width(picture_width),
          height(picture_height),
          depth(picture_depth),
          bytes(static_cast<size_t>(picture_width * picture_height * samples * picture_depth))
    {}

    long stride() const { return width * samples * depth; }
    uint8_t* line(long y) { return bytes.data() + y * stride(); }
    const uint8_t* line(long y) const { return bytes.data() + y * stride(); }
    uint8_t* pixel(long x, long y) { return line(y) + x * samples * depth; }
    const uint8_t* pixel(long x, long y) const { return line(y) + x * samples * depth; }

    long width = 0, height = 0;
    Depth depth = bits8;
    std::vector<uint8_t> bytes;
};

// The upper byte of every sample.
Picture with_8_bits(const Picture& picture);

bool is_opaque(const Picture& picture);

}  // namespace tintvert::core
