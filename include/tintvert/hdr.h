/* SMPTE ST 2084 tables and the conversions that use them. */
#ifndef TINTVERT_HDR_H
#define TINTVERT_HDR_H

#include <tintvert/export.h>

TNTVT_BEGIN

TNTVT_END

#endif
