// The intrinsics of x86-64. g++ 12 takes the deliberately undefined operands inside many of the 512-bit ones for
// mistakes.
#pragma once

#if defined(__x86_64__)
#if defined(__clang__)
#include <immintrin.h>
#else
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <immintrin.h>
#pragma GCC diagnostic pop
#endif
#endif
