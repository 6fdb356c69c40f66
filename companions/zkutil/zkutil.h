/* libzkutil: what libtintvert asks of the machine it runs on.
 *
 * A site may put a library of its own under this soname, or a program may define any of these functions
 * itself: libtintvert binds them by name when it is loaded. Every function may be called from any number
 * of threads at once. */
#ifndef ZKUTIL_H
#define ZKUTIL_H

#ifdef __cplusplus
extern "C" {
#endif

#define ZKUTIL_API __attribute__((visibility("default")))

/* The bits of CPUFeatureFlags. All others are 0. */
#define ZKUTIL_CPU_MMX 0x20u /* the bit that tnvtt_open notes */
#define ZKUTIL_CPU_SSE2 0x40u
#define ZKUTIL_CPU_SSSE3 0x80u
#define ZKUTIL_CPU_AVX2 0x100u

/* What the processor and the operating system can do, as ZKUTIL_CPU_ bits. */
ZKUTIL_API unsigned int CPUFeatureFlags(void);

/* Copies `bytes` bytes, 0 included, as memmove does: the two blocks may overlap in either direction or be
 * the same. This one never throws; a replacement may throw any C++ exception. */
ZKUTIL_API void CopyMemoryFast(void* destination, const void* source, unsigned int bytes);

/* A block of at least `bytes` bytes, aligned for any C type and not cleared; null if there is no memory. */
ZKUTIL_API void* ZKAlloc(unsigned int bytes);

/* Releases a block from ZKAlloc. Null is no work. */
ZKUTIL_API void ZKFree(void* block);

/* Writes a message to standard error, as printf with `format` and what follows it, and adds nothing: a
 * line end is the format's own. The first three arguments grade a message for loggers that sort by them
 * (0xC0000000 is an error, the other two are 0); here they are ignored. A failed write is not reported. */
ZKUTIL_API void ErrFmtOut(unsigned int, unsigned int, unsigned int, const char* format, ...)
    __attribute__((format(printf, 4, 5)));

/* The class of a FourCC code: 1 if the code belongs to it, else 0. No code belongs to two classes.
 *
 * A code is four characters, case included. Both ways of making a number of them are known: the first
 * character in the lowest byte ("2vuy" is 0x79757632, as files and RIFF headers have it) and in the
 * highest ("2vuy" is 0x32767579, as a multi-character constant has it). So every code below means
 * its mirror image too: "v210" for "012v", "BGRA" for "ARGB".
 *
 *   fccIsYCbCr8     packed 4:2:2, 8 bits a sample, 2 bytes a pixel
 *                   Cb first:   2vuy 2Vuy UYVY UYNV HDYC Y422
 *                   luma first: yuv2 yuvs yuvu YUY2 YUYV YUNV V422
 *                   Cr first or Cr before Cb: VYUY YVYU
 *   fccIsYCbCr10    packed 4:2:2, 10 bits a sample, 6 pixels in four 32-bit words: v210 V210
 *   fccIsDPX        RGB, 10 bits a sample, a pixel in a 32-bit word, as in DPX files:
 *                   r210 R10k R10g R10b R10l AVrp
 *   fccIsRGB        RGB, 8 bits a sample, 4 bytes a pixel in any order: BGRA ARGB RGBA ABGR, with a
 *                   fourth byte of no meaning BGRX XRGB RGBX XBGR, lower case rgba abgr, and RGB4 BGR4
 *
 * Codes that leave the depth to a field beside them ("raw ", and 0 and 3 of bitmaps) are in no class. */
ZKUTIL_API int fccIsYCbCr8(unsigned int fourcc);
ZKUTIL_API int fccIsYCbCr10(unsigned int fourcc);
ZKUTIL_API int fccIsDPX(unsigned int fourcc);
ZKUTIL_API int fccIsRGB(unsigned int fourcc);

#ifdef __cplusplus
}
#endif

#endif
