/* 10-bit YCbCr and RFC 4175 payloads. */
#ifndef TINTVERT_YCBCR10_H
#define TINTVERT_YCBCR10_H

#include <tintvert/export.h>

TNTVT_BEGIN

TNTVT_END

#endif
