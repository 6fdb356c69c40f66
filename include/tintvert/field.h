/* Fields, deinterlacing, flips, mixing and dissolve. */
#ifndef TINTVERT_FIELD_H
#define TINTVERT_FIELD_H

#include <tintvert/export.h>

TNTVT_BEGIN

TNTVT_END

#endif
