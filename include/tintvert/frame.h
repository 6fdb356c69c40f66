/* The open call and the scratch pair: what is not a conversion. */
#ifndef TINTVERT_FRAME_H
#define TINTVERT_FRAME_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* Asks the processor once for its feature bits and notes bit 0x20 for the life of the process. All
 * four arguments are ignored. Returns 0. No conversion depends on it: it may be called any number of
 * times, from any thread, or never, and there is no close call. */
TNTVT_API int tnvtt_open(unsigned int, unsigned int, unsigned int, unsigned int);

/* Obtains `size` bytes at a 32-byte boundary. `*raw` is the block as the allocator gave it, `*aligned`
 * the first multiple of 32 at or above it; on exhaustion both are null. The request is rounded up, so
 * that a `size` of 0 asks for 31 bytes and 1 to 32 for 63. Release with free_own_cache_lines. */
TNTVT_API void malloc_own_cache_lines(int size, void** raw, void** aligned);

/* Releases `*raw` if it is not null, and sets both pointers to null; calling it again is harmless. */
TNTVT_API void free_own_cache_lines(void** raw, void** aligned);

TNTVT_END

#endif
