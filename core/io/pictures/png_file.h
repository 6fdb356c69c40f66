// PNG files to pictures and back.
#pragma once

#include <filesystem>

#include "io/input_file.h"
#include "io/pictures/picture.h"

namespace tintvert::core {

// Any colour type, bit depth and interlacing; 16-bit files give 16-bit pictures, all others 8. A file that
// is missing, no PNG, damaged or cut short gives a Failure, and so does one of more than 2^28 pixels.
Picture read_png(InputFile& file);

// Red, green, blue and, if any pixel is not opaque, alpha.
void write_png(const std::filesystem::path& path, const Picture& picture);

}  // namespace tintvert::core
