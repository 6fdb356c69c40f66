#include "kmrutil.h"

unsigned int GetMatrixBySize(int width, int height, int)
{
    const unsigned lines = height < 0 ? 0u - static_cast<unsigned>(height) : static_cast<unsigned>(height);
    if (width <= 1024 && lines <= 576) return KMR_MATRIX_BT601;
    if (width >= 3840 && lines >= 2160) return KMR_MATRIX_BT2020;
    return KMR_MATRIX_BT709;
}
