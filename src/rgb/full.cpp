// A frame from one buffer to another by pixel size, which each side's stride gives.
#include <tintvert/rgb.h>

#include "frame/bit_moves.h"
#include "frame/imports.h"
#include "frame/walk.h"

using namespace tintvert;

namespace {

// The bytes that both sides have, in their order. A fourth source byte is dropped and a fourth destination
// byte keeps what it held.
template <long src_size, long dst_size>
struct ThreeBytes {
    static constexpr long src_bytes = src_size, dst_bytes = dst_size;
    using Simd = BitMoves<ThreeBytes>;
    static constexpr MovedByte moved(int byte) { return moved_byte<0, 1, 2, kept_byte>(byte); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        dst[0] = src[0];
        dst[1] = src[1];
        dst[2] = src[2];
    }
};

struct Word {
    static constexpr long src_bytes = 4, dst_bytes = 4;
    static constexpr void pixel(uint8_t* dst, const uint8_t* src) { store(dst, load<uint32_t>(src)); }
};

// The frame is upside down for the walk: last line first, each line from its start.
template <class Form>
void copy_lines(const Frame& frame, long width, long height)
{
    if (width < 1 || height < 1) return;
    const long last = height - 1;
    walk_forward<Form>({advance(frame.dst, line_offset(last, frame.dst_stride)), line_offset(-1, frame.dst_stride),
                        advance(frame.src, line_offset(last, frame.src_stride)), line_offset(-1, frame.src_stride)},
                       width, height);
}

// QUIRK (keeps_block_of_pixels): the size counts pixels and not strides, in 32 bits and for any
// `height`. Slack goes along, and a frame that has it loses its last lines.
void copy_block(const Frame& frame, long pixel_bytes, long width, long height)
{
    const uint32_t line = static_cast<uint32_t>(pixel_bytes) * static_cast<uint32_t>(width);
    CopyMemoryFast(frame.dst, frame.src, line * static_cast<uint32_t>(height));
}

}  // namespace

// QUIRK (keeps_division_first): `width` is not tested before it divides.
// QUIRK (keeps_words_for_other_sizes): any pair but those of 3 and 4 bytes that have a case of their own
// moves 32-bit words: 2 to 2 reads twice the pixels' bytes and 8 to 4 half.
void tntvt_rgba_full(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    if (dst == nullptr || src == nullptr) return;
    if (dst == src && dstStride == srcStride) return;
    const long from = srcStride / width, to = dstStride / width;
    const Frame frame = {dst, dstStride, src, srcStride};
    if (from == 4 && to == 3)
        copy_lines<ThreeBytes<4, 3>>(frame, width, height);
    else if (from == 3 && to == 4)
        copy_lines<ThreeBytes<3, 4>>(frame, width, height);
    else if (dstStride == srcStride)
        copy_block(frame, from, width, height);
    else if (from == 3 && to == 3)
        copy_lines<ThreeBytes<3, 3>>(frame, width, height);
    else
        copy_lines<Word>(frame, width, height);
}
