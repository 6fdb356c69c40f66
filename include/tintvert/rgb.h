/* RGB: channel orders, depths, packed 10 and 12 bits, run-length images, frame copy. */
#ifndef TINTVERT_RGB_H
#define TINTVERT_RGB_H

#include <tintvert/export.h>

TNTVT_BEGIN

TNTVT_END

#endif
