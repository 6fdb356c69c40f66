/* v210_to_ppm WIDTH HEIGHT < frame.v210 > frame.ppm: makes one frame of v210 a picture that viewers open. */
#include <stdio.h>
#include <stdlib.h>
#include <tintvert.h>

int main(int argc, char** argv)
{
    const long width = argc == 3 ? atol(argv[1]) : 0, height = argc == 3 ? atol(argv[2]) : 0;
    if (width < 1 || height < 1) {
        fputs("usage: v210_to_ppm WIDTH HEIGHT < frame.v210 > frame.ppm\n", stderr);
        return 2;
    }
    const long v210_line = (width + 47) / 48 * 128; /* 128 bytes for each 48 pixels of a line */
    const long rgb_line = width * 3;                /* below width * 4, so that 24-bit pixels are written */
    const size_t v210_bytes = (size_t)(v210_line * height), rgb_bytes = (size_t)(rgb_line * height);

    /* The last pair of a line is written whole: with an odd width, three bytes past the end of the frame. */
    unsigned char* const v210 = malloc(v210_bytes);
    unsigned char* const rgb = malloc(rgb_bytes + 3);
    if (v210 == NULL || rgb == NULL) {
        fputs("v210_to_ppm: no memory\n", stderr);
        return 1;
    }
    if (fread(v210, 1, v210_bytes, stdin) != v210_bytes) {
        fputs("v210_to_ppm: the input is shorter than a frame\n", stderr);
        return 1;
    }
    tntvt_v210_rgb24(rgb, rgb_line, v210, v210_line, width, height, 1);

    /* The routine writes B, G, R and a PPM file holds R, G, B. */
    for (size_t i = 0; i < rgb_bytes; i += 3) {
        const unsigned char blue = rgb[i];
        rgb[i] = rgb[i + 2];
        rgb[i + 2] = blue;
    }
    printf("P6\n%ld %ld\n255\n", width, height);
    const int written = fwrite(rgb, 1, rgb_bytes, stdout) == rgb_bytes;
    free(v210);
    free(rgb);
    return written ? 0 : 1;
}
