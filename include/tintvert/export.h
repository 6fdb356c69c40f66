/* What every chapter header includes: fixed-width integers, the export mark, and the brackets that give a
 * declaration C linkage in C++. */
#ifndef TINTVERT_EXPORT_H
#define TINTVERT_EXPORT_H

#include <stddef.h>
#include <stdint.h>

#define TNTVT_API __attribute__((visibility("default")))

#ifdef __cplusplus
#define TNTVT_BEGIN extern "C" {
#define TNTVT_END }
#else
#define TNTVT_BEGIN
#define TNTVT_END
#endif

#endif
