// BMP files of run-length coded indexed pictures (BI_RLE8).
#pragma once

#include <cstdint>
#include <vector>

#include "input_file.h"

namespace tintvert::tool {

struct BmpRle8 {
    int64_t width, height;
    std::vector<uint8_t> palette;  // 256 entries of four bytes: blue, green, red, unused
    std::vector<uint8_t> stream;
};

BmpRle8 read_bmp_rle8(InputFile& file);  // throws Failure

}  // namespace tintvert::tool
