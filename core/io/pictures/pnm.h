// PPM (P6) and PAM (P7, RGB and RGB_ALPHA) of 8 and 16 bits, one picture after the other.
#pragma once

#include <memory>

#include "io/input_file.h"
#include "io/output_file.h"
#include "io/pictures/picture.h"

namespace tintvert::core {

// The next picture; null at the end of the file. Samples are spread from the file's highest value to 255 or 65535.
std::unique_ptr<Picture> read_pnm(InputFile& file);  // throws Failure

void write_ppm(OutputFile& file, const Picture& picture);              // without alpha
void write_pam(OutputFile& file, const Picture& picture, bool alpha);  // RGB_ALPHA if alpha is kept

}  // namespace tintvert::core
