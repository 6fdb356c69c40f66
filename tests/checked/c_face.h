/* What the tests do in C. */
#pragma once

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Two red pixels to `2vuy` into `yuv` of `size` bytes. The message, or "ok", goes into `text`. */
int convert_in_c(unsigned char* yuv, size_t size, char* text, size_t text_size);

#ifdef __cplusplus
}
#endif
