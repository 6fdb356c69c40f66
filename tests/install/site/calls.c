/* Calls each companion once through libtintvert. Ours say nothing of it, the site's announce themselves. */
#include <stdio.h>
#include <tintvert.h>

int main(void)
{
    void *raw, *aligned;
    tnvtt_open(0, 0, 0, 0);
    malloc_own_cache_lines(32, &raw, &aligned);
    free_own_cache_lines(&raw, &aligned);

    unsigned char pair[4] = {80, 120, 60, 120}, pixels[8] = {0};
    tntvt_yuv422_8_rgb32(pixels, 0, pair, 0, 2, 1, 1);
    printf("B %d G %d R %d\n", pixels[0], pixels[1], pixels[2]);
    return 0;
}
