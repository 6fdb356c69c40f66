/* The open call and aligned scratch memory: what is not a conversion. */
#ifndef TINTVERT_FRAME_H
#define TINTVERT_FRAME_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* Queries the processor's feature bits and records bit 0x20 for the life of the process; once the bit has
 * been seen, later calls query nothing. All four arguments are ignored. Returns 0. No conversion depends on
 * it: call it any number of times, from any thread, or never. There is no close call. */
TNTVT_API int tnvtt_open(unsigned int, unsigned int, unsigned int, unsigned int);

/* Allocates `size` bytes at a 32-byte boundary. `*raw` is the block as allocated, `*aligned` the first
 * multiple of 32 at or above it; both are null if there is no memory. The request is rounded up: 31 bytes for
 * a `size` of 0, 63 for 1 to 32. Release with free_own_cache_lines. */
TNTVT_API void malloc_own_cache_lines(int size, void** raw, void** aligned);

/* Releases `*raw` if it is not null, and sets both pointers to null; calling it again is harmless. */
TNTVT_API void free_own_cache_lines(void** raw, void** aligned);

TNTVT_END

#endif
