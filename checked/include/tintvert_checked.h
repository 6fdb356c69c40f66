/* Checked calls in C: the routines of libtintvert over buffers of known size. A call does exactly what the
 * routine does, or it touches nothing and says which buffer is too small, how many bytes are needed and where,
 * or what was refused and why. No exception leaves a call, and nothing is allocated but by the routines
 * themselves.
 *
 *     tntvt_checked_buffer yuv = {memory, bytes, 0}, rgb = {pixels, pixel_bytes, 0};
 *     tntvt_checked_result done = checked_tntvt_rgb32_2vuy(yuv, 3840, rgb, 7680, 1920, 1080, NULL);
 *     if (done.code != TNTVT_CHECKED_OK) {
 *         char text[200];
 *         tntvt_checked_message(&done, text, sizeof text);
 *         puts(text);
 *     }
 *
 * Every routine of <tintvert.h> is in tintvert/checked_c_routines.h with `checked_` before its name. */
#ifndef TINTVERT_CHECKED_C_H
#define TINTVERT_CHECKED_C_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct tntvt_checked_buffer {
    void* pointer;   /* what the routine is given */
    size_t size;     /* bytes of the memory that it points into */
    ptrdiff_t front; /* how many of them are before the pointer: usually 0 */
} tntvt_checked_buffer;

/* Bytes [from, to), counted from the pointer. `from` is negative before it. */
typedef struct tntvt_checked_range {
    int64_t from, to;
} tntvt_checked_range;

/* From the lowest to the highest byte that a call reads and writes in one buffer. */
typedef struct tntvt_checked_touch {
    const char* buffer; /* by the name of the argument */
    tntvt_checked_range read, written;
} tntvt_checked_touch;

typedef struct tntvt_checked_extents {
    tntvt_checked_touch touches[8];
    size_t count;
} tntvt_checked_extents;

typedef struct tntvt_checked_options {
    int allow_overlap;            /* buffers may overlap in ways that the routine does not promise */
    tntvt_checked_extents* query; /* if not NULL: report the extents here and call nothing */
} tntvt_checked_options;

typedef enum tntvt_checked_code {
    TNTVT_CHECKED_OK,
    TNTVT_CHECKED_NULL,      /* a buffer that would be touched is null */
    TNTVT_CHECKED_TOO_SMALL, /* a buffer has not the bytes that would be touched */
    TNTVT_CHECKED_OVERLAP,   /* two buffers overlap in a way that the routine does not promise */
    TNTVT_CHECKED_REFUSED,   /* the numbers are not for this routine */
    TNTVT_CHECKED_FAILED     /* a companion library threw; what it had done stays done */
} tntvt_checked_code;

typedef enum tntvt_checked_refusal {
    TNTVT_CHECKED_NOT_REFUSED,
    TNTVT_CHECKED_TOO_LARGE, /* more than memory holds */
    TNTVT_CHECKED_DIVIDES_BY_ZERO,
    TNTVT_CHECKED_NEVER_RETURNS,
    TNTVT_CHECKED_WALKS_2_32_LINES,  /* or more, by a counter that goes below 0 */
    TNTVT_CHECKED_WRAPS,             /* a product at the width of the interface */
    TNTVT_CHECKED_READS_AS_UNSIGNED, /* a negative number as one near 2^32 */
    TNTVT_CHECKED_OVERRUNS_SCRATCH   /* a copy longer than the routine's own scratch line */
} tntvt_checked_refusal;

typedef struct tntvt_checked_result {
    tntvt_checked_code code;
    tntvt_checked_refusal refusal;
    const char* routine;
    const char* buffer;        /* null, too small, overlap */
    const char* other;         /* overlap: the other buffer */
    const char* why;           /* refused: a sentence */
    uint64_t has;              /* bytes of the buffer */
    int64_t front;             /* how many of them are before the pointer */
    uint64_t needs;            /* bytes from `where.from`, or the pointer if that is lower, to `where.to` */
    tntvt_checked_range where; /* what would be touched */
    int value;                 /* what a routine that returns an int returned */
    void* pointer;             /* what a routine that returns a pointer returned */
} tntvt_checked_result;

/* "dst: 4147200 bytes, needs 4149760 (bytes 0-4149759)" into `text`, cut to `size` bytes with the 0 at its
 * end. Answers the length of the whole. */
size_t tntvt_checked_message(const tntvt_checked_result* result, char* text, size_t size);

#include <tintvert/checked_c_routines.h>

#ifdef __cplusplus
}
#endif

#endif
