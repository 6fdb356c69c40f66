/* libzkutil: what libtintvert asks of the machine it runs on. */
#ifndef ZKUTIL_H
#define ZKUTIL_H

#ifdef __cplusplus
extern "C" {
#endif

#define ZKUTIL_API __attribute__((visibility("default")))

ZKUTIL_API unsigned int CPUFeatureFlags(void);
ZKUTIL_API void CopyMemoryFast(void* destination, const void* source, unsigned int bytes);
ZKUTIL_API void* ZKAlloc(unsigned int bytes);
ZKUTIL_API void ZKFree(void* block);
ZKUTIL_API void ErrFmtOut(unsigned int, unsigned int, unsigned int, const char* format, ...);
ZKUTIL_API int fccIsYCbCr8(unsigned int fourcc);
ZKUTIL_API int fccIsYCbCr10(unsigned int fourcc);
ZKUTIL_API int fccIsDPX(unsigned int fourcc);
ZKUTIL_API int fccIsRGB(unsigned int fourcc);

#ifdef __cplusplus
}
#endif

#endif
