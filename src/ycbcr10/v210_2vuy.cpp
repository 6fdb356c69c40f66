// `v210` and `2vuy`: samples move by two bits, in the same order on both sides.
#include <tintvert/ycbcr10.h>

#include "frame/memory.h"
#include "ycbcr10/v210.h"
#include "ycbcr10/v210_2vuy_simd.h"

using namespace tintvert;

namespace {

constexpr long narrow_group_bytes = 12;  // six pixels of `2vuy`

// The two directions differ in their default line, and neither has the 48-pixel blocks of the other `v210`
// routines, which come to 3456 bytes for 1280 pixels and to 384 for 100.
// QUIRK (keeps_lines_of_64_bytes): the mask takes bit 31 along with the low six.
constexpr uint32_t line_of_64_bytes(uint32_t width) { return (width * 16 / 6 + 63) & 0x7FFFFFC0; }
// QUIRK (keeps_unrounded_lines): a last group that is not whole is cut.
constexpr uint32_t unrounded_line(uint32_t width) { return width * 16 / 6; }

static_assert(line_of_64_bytes(1920) == 5120 && line_of_64_bytes(1280) == 3456 && line_of_64_bytes(100) == 320);
static_assert(unrounded_line(1920) == 5120 && unrounded_line(1280) == 3413 && unrounded_line(100) == 266);

constexpr long groups_of(long count, long each) { return (count + each - 1) / each; }

// Three words in, then four words out.
void widen_group(uint8_t* dst, const uint8_t* src)
{
    uint32_t sample[12];
    for (int n = 0; n < 12; ++n) sample[n] = static_cast<uint32_t>(src[n]) << 2;
    for (int word = 0; word < 4; ++word)
        store(dst + 4 * word, v210_word(sample[3 * word], sample[3 * word + 1], sample[3 * word + 2]));
}

// Four words in, then three words out. The two low bits of a sample are dropped.
void narrow_group(uint8_t* dst, const uint8_t* src)
{
    uint8_t byte[narrow_group_bytes];
    for (uint32_t n = 0; n < 12; ++n) byte[n] = static_cast<uint8_t>(v210_sample(src, n) >> 2);
    std::memcpy(dst, byte, sizeof byte);
}

void widen_line(uint8_t* dst, const uint8_t* src, long width, InstructionSet level)
{
    const long groups = groups_of(width, v210_group_pixels);
    long done = run_simd<WidenGroups>(level, {{dst, groups * v210_group_bytes}}, {{src, groups * narrow_group_bytes}},
                                      dst, src, groups);
    for (; done < groups; ++done) widen_group(dst + done * v210_group_bytes, src + done * narrow_group_bytes);
}

void narrow_line(uint8_t* dst, const uint8_t* src, long groups, InstructionSet level)
{
    long done = run_simd<NarrowGroups>(level, {{dst, groups * narrow_group_bytes}}, {{src, groups * v210_group_bytes}},
                                       dst, src, groups);
    for (; done < groups; ++done) narrow_group(dst + done * narrow_group_bytes, src + done * v210_group_bytes);
}

// QUIRK (keeps_double_length_lines): output words are counted against pixels, two to a word, so a line
// runs on to twice its length: a group for every three pixels. The next line overwrites the surplus and the last
// line's goes past the end of the frame, where callers leave `width` * 2 bytes of room.
long doubled_groups(long width) { return groups_of(width, 3); }

// Offsets of lines are running sums, kept to 32 bits.
constexpr bool sums_wrap(uint32_t lines, uint32_t step) { return (lines - uint64_t{1}) * step > 0xFFFFFFFF; }

static_assert(!sums_wrap(1, 0xFFFFFFFF) && !sums_wrap(2, 0xFFFFFFFF) && sums_wrap(3, 0x80000000));

// Each line begins where the width of the one before it ends, and no line writes below its beginning. So unless
// an offset wraps, the surplus of every line but the last is overwritten, and need not be written where the
// frames share no byte.
bool surplus_is_overwritten(const uint8_t* dst, const uint8_t* src, uint32_t width, uint32_t height, uint32_t stride)
{
    if (height == 0 || sums_wrap(height, width * 2) || sums_wrap(height, stride)) return false;
    const long last = height - 1L, groups = doubled_groups(width);
    return disjoint(dst, last * (width * 2) + groups * narrow_group_bytes, src,
                    last * stride + groups * v210_group_bytes);
}

}  // namespace

// QUIRK (keeps_last_line_first_without_guard): the line index is unsigned and 0 lines are 2^32 of them.
void tntvt_2vuy_v210(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int dstStride)
{
    if (dstStride == 0) dstStride = line_of_64_bytes(width);
    if (width == 0) return;
    const InstructionSet level = instruction_set();
    uint32_t y = height;
    do {
        --y;
        widen_line(advance(dst, line_offset(y, dstStride)), advance(src, line_offset(y, width * 2L)), width, level);
    } while (y != 0);
}

void tntvt_v210_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int srcStride)
{
    if (srcStride == 0) srcStride = unrounded_line(width);
    if (width == 0) return;
    const InstructionSet level = instruction_set();
    const long groups = doubled_groups(width);
    const bool once = level > InstructionSet::scalar && surplus_is_overwritten(dst, src, width, height, srcStride);
    const long groups_above = once ? groups_of(width, v210_group_pixels) : groups;
    uint32_t dst_offset = 0, src_offset = 0;
    for (uint32_t y = 0; y != height; ++y) {
        const long line_groups = y + 1 == height ? groups : groups_above;
        narrow_line(advance(dst, dst_offset), advance(src, src_offset), line_groups, level);
        dst_offset += width * 2;
        src_offset += srcStride;
    }
}

void tntvt_yuv422_8_yuv422_10(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                              unsigned int dstStride)
{
    tntvt_2vuy_v210(dst, src, width, height, dstStride);
}

void tntvt_yuv422_10_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                              unsigned int srcStride)
{
    tntvt_v210_2vuy(dst, src, width, height, srcStride);
}
