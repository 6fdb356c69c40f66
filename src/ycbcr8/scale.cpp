// A `2vuy` buffer between video and full range, in place.
#include <tintvert/ycbcr8.h>

#include <cstddef>

#include "frame/byte_lookup.h"
#include "ycbcr8/scale_tables.h"

using namespace tintvert;

namespace {

// A last group is scaled whole.
void scale_groups(uint8_t* buffer, size_t bytes, const uint8_t* chroma, const uint8_t* luma)
{
    const size_t whole = (bytes + 3) / 4 * 4;
    const long done = map_pairs_simd(instruction_set(), buffer, buffer, static_cast<long>(whole), {chroma, luma});
    for (size_t i = static_cast<size_t>(done); i < bytes; i += 4) {
        buffer[i] = chroma[buffer[i]];
        buffer[i + 1] = luma[buffer[i + 1]];
        buffer[i + 2] = chroma[buffer[i + 2]];
        buffer[i + 3] = luma[buffer[i + 3]];
    }
}

}  // namespace

// QUIRK (keeps_exchanged_tables_going_up): going up, chroma takes the luma table and luma the chroma
// table.
void tntvt_2vuy_scale(unsigned char* buffer, unsigned int bytes, unsigned int up)
{
    need_scale_tables();
    if (up != 0)
        scale_groups(buffer, bytes, gsbScaleLumaUp, gsbScaleChromaUp);
    else
        scale_groups(buffer, bytes, gsbScaleChromaDown, gsbScaleLumaDown);
}
