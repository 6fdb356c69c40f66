// A file as a BMP picture, run-length coded ones among them.
#include "io/pictures/bmp.h"

#include "failure.h"
#include "frame/memory.h"
#include "memory_file.h"
#include "must.h"

namespace {

using namespace tintvert::core;

// A run-length coded picture is as large as its header says, however short its stream is; large ones are right and
// slow.
bool is_small(std::span<const uint8_t> bytes)
{
    if (bytes.size() < 26) return true;
    const int64_t width = tintvert::load<int32_t>(bytes.data() + 18),
                  height = tintvert::load<int32_t>(bytes.data() + 22);
    return std::abs(width) * std::abs(height) <= 1 << 14;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (!is_small({data, size})) return 0;
    try {
        InputFile file(tintvert::fuzz::memory_file({data, size}));
        const Picture picture = read_bmp(file);
        tintvert::fuzz::must(picture.bytes.size() == static_cast<size_t>(picture.stride() * picture.height),
                             "a picture has all its lines");
    } catch (const Failure&) {
    }
    return 0;
}
