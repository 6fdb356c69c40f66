// BMP files: 24 and 32 bits a pixel to read and write, run-length coded ones (BI_RLE8) to read.
#pragma once

#include "calls/rle8.h"
#include "io/input_file.h"
#include "io/output_file.h"
#include "io/pictures/picture.h"

namespace tintvert::core {

// Both throw Failure. Alpha is read from files that have a mask for it; all others are opaque.
CodedPicture read_bmp_rle8(InputFile& file);
Picture read_bmp(InputFile& file);

// 24 bits, or 32 with a mask for alpha; bottom line first.
void write_bmp(OutputFile& file, const Picture& picture, bool alpha);

}  // namespace tintvert::core
