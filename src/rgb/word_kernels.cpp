// The word kernels: one run of 32-bit pixels in another order, first pixel first.
//
// The letters of a name are the bytes of the word from the most significant down, and they are names
// only: what a kernel does is what the code says.
#include <tintvert/rgb.h>

#include "frame/walk.h"
#include "rgb/word_order.h"

using namespace tintvert;

namespace {

template <uint32_t (*order)(uint32_t)>
void reorder_run(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    walk_forward<EachWord<order>>({dst, 0, src, 0}, pixels, 1);
}

}  // namespace

void rgba2argb(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<rotate_right_8>(dst, src, pixels);
}

void bgra2abgr(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<rotate_right_8>(dst, src, pixels);
}

void bgra2abgrMMX(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<rotate_right_8>(dst, src, pixels);
}

// QUIRK (keeps_kernels_that_rotate_apart): this one rotates right and abgr2bgra left. The two undo
// each other.
void abgr2bgraMMX(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<rotate_right_8>(dst, src, pixels);
}

void argb2rgba(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<rotate_left_8>(dst, src, pixels);
}

void abgr2bgra(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<rotate_left_8>(dst, src, pixels);
}

void bgra2argb(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<reverse_bytes>(dst, src, pixels);
}

void argb2bgra(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<reverse_bytes>(dst, src, pixels);
}

void abgr2argb(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<swap_low_pair>(dst, src, pixels);
}

void argb2abgr(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<swap_low_pair>(dst, src, pixels);
}

void bgra2rgba(unsigned char* dst, unsigned char* src, unsigned int pixels)
{
    reorder_run<swap_low_pair>(dst, src, pixels);
}
