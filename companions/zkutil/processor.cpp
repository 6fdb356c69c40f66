#include "zkutil.h"

unsigned int CPUFeatureFlags(void)
{
    unsigned int flags = 0;
#if defined(__x86_64__)
    if (__builtin_cpu_supports("mmx")) flags |= ZKUTIL_CPU_MMX;
    if (__builtin_cpu_supports("sse2")) flags |= ZKUTIL_CPU_SSE2;
    if (__builtin_cpu_supports("ssse3")) flags |= ZKUTIL_CPU_SSSE3;
    if (__builtin_cpu_supports("avx2")) flags |= ZKUTIL_CPU_AVX2;
#endif
    return flags;
}
