#include <stdio.h>
#include <tintvert.h>
int main(void)
{
    unsigned char red[8] = {0, 0, 255, 0, 0, 0, 255, 0}, pair[4];  // two pixels: B, G, R, alpha
    bgra_to_2vuy(red, pair, 2);
    printf("%d %d %d %d\n", pair[0], pair[1], pair[2], pair[3]);  // Cb Y Cr Y: 99 81 211 81
}
