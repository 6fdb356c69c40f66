#include "c_face.h"

#include <tintvert_checked.h>

int convert_in_c(unsigned char* yuv, size_t size, char* text, size_t text_size)
{
    unsigned char red[8] = {0, 0, 255, 0, 0, 0, 255, 0};
    const tntvt_checked_buffer src = {red, sizeof red, 0}, dst = {yuv, size, 0};
    const tntvt_checked_result done = checked_bgra_to_2vuy(src, dst, 2, NULL);
    tntvt_checked_message(&done, text, text_size);
    return done.code == TNTVT_CHECKED_OK;
}
