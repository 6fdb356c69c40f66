#include "bmp.h"

#include <algorithm>

#include "failure.h"
#include "frame/memory.h"

namespace tintvert::tool {

BmpRle8 read_bmp_rle8(InputFile& file)
{
    const std::vector<uint8_t> bytes = file.read_all();
    const auto broken = [&](const char* what) { return Failure(Exit::no_file, "{}: {}", file.path().string(), what); };
    if (bytes.size() < 54 || bytes[0] != 'B' || bytes[1] != 'M') throw broken("no BMP file");
    const auto word = [&](size_t at) { return load<uint32_t>(bytes.data() + at); };
    const size_t pixels_at = word(10), header = word(14);
    const auto width = static_cast<int32_t>(word(18)), height = static_cast<int32_t>(word(22));
    if (header < 40 || load<uint16_t>(bytes.data() + 28) != 8 || word(30) != 1)
        throw broken("a BMP that is not run-length coded with 8 bits a pixel");
    if (width < 1 || height < 1 || width > 1 << 20 || height > 1 << 20) throw broken("a BMP of impossible size");
    const size_t colours = word(46) == 0 ? 256 : std::min<size_t>(word(46), 256), palette_at = 14 + header;
    if (palette_at + colours * 4 > bytes.size() || pixels_at > bytes.size()) throw broken("a BMP that is cut short");
    BmpRle8 result{width, height, std::vector<uint8_t>(1024), {}};
    std::copy_n(bytes.begin() + static_cast<long>(palette_at), colours * 4, result.palette.begin());
    result.stream.assign(bytes.begin() + static_cast<long>(pixels_at), bytes.end());
    return result;
}

}  // namespace tintvert::tool
