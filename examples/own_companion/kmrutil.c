/* A libkmrutil for a site whose large frames were all made with the BT.709 matrix. */
#include <tintvert/companions/kmrutil.h>

unsigned int GetMatrixBySize(int width, int height, int zero)
{
    (void)zero;
    return width <= 1024 && height <= 576 ? KMR_MATRIX_BT601 : KMR_MATRIX_BT709;
}
