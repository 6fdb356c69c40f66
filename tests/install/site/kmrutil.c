/* A site's own libkmrutil with a matrix number that only its own libycbcr knows. */
#include <kmrutil.h>
#include <stdio.h>

unsigned int GetMatrixBySize(int width, int height, int zero)
{
    (void)zero;
    printf("site GetMatrixBySize %d %d\n", width, height);
    return 4321;
}
