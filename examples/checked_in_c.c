/* A checked call in C: a destination with one byte less than a line needs. */
#include <stdio.h>
#include <tintvert_checked.h>

int main(void)
{
    unsigned char rgb[48 * 4] = {0}, yuv[48 * 2 - 1];
    const tntvt_checked_buffer src = {rgb, sizeof rgb, 0}, dst = {yuv, sizeof yuv, 0};

    const tntvt_checked_result done = checked_bgra_to_2vuy(src, dst, 48, NULL);
    if (done.code != TNTVT_CHECKED_OK) {
        char text[200];
        tntvt_checked_message(&done, text, sizeof text);
        puts(text);
    }
    return 0;
}
