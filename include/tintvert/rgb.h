/* RGB: channel orders, depths, packed 10 and 12 bits, run-length images, frame copy. */
#ifndef TINTVERT_RGB_H
#define TINTVERT_RGB_H

#include <tintvert/rgb_8bit.h>
#include <tintvert/rgb_deep.h>
#include <tintvert/rgb_rle.h>

#endif
