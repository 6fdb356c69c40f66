/* Decodes a 3840 x 2160 frame of one green and prints it. The matrix comes from whichever libkmrutil the
 * dynamic linker finds: the one installed with libtintvert, or the one beside this file if it is built and
 * LD_LIBRARY_PATH names its folder. */
#include <stdio.h>
#include <stdlib.h>
#include <tintvert.h>

int main(void)
{
    const long width = 3840, height = 2160;
    unsigned char* const src = malloc((size_t)(width * height * 2));
    unsigned char* const dst = malloc((size_t)(width * height * 4));
    if (src == NULL || dst == NULL) return 1;
    for (long i = 0; i < width * height * 2; i += 4) {
        src[i] = 80;     /* Cb */
        src[i + 2] = 60; /* Cr */
        src[i + 1] = src[i + 3] = 120;
    }
    tntvt_yuv422_8_rgb32(dst, 0, src, 0, width, height, 1);
    printf("B %d G %d R %d\n", dst[0], dst[1], dst[2]);
    free(src);
    free(dst);
    return 0;
}
