/* A site's own libycbcr, which writes one pixel: the matrix number. */
#include <stdio.h>
#include <string.h>
#include <ycbcr.h>

#define DECODER(name)                                                                                        \
    int name(void* dst, void* src, int width, int height, int dstStride, int srcStride, unsigned int matrix, \
             unsigned int flags)                                                                             \
    {                                                                                                        \
        (void)src;                                                                                           \
        printf("site " #name " %d %d %d %d %u\n", width, height, dstStride, srcStride, flags);               \
        memcpy(dst, &matrix, sizeof matrix);                                                                 \
        return 0;                                                                                            \
    }

DECODER(cycbcr_uyvy_to_rgb32)
DECODER(cycbcr_012v_to_rgb32)
DECODER(cycbcr_i420_to_rgb32)
DECODER(cycbcr_yv12_to_rgb32)
