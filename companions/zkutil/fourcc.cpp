#include "zkutil.h"

int fccIsYCbCr8(unsigned int) { return 0; }
int fccIsYCbCr10(unsigned int) { return 0; }
int fccIsDPX(unsigned int) { return 0; }
int fccIsRGB(unsigned int) { return 0; }
