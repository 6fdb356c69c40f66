/* libkmrutil: which colour matrix a frame of a given size has. */
#ifndef KMRUTIL_H
#define KMRUTIL_H

#ifdef __cplusplus
extern "C" {
#endif

#define KMRUTIL_API __attribute__((visibility("default")))

/* The matrix selectors, numbered like the ITU-R recommendations that define them. */
enum { KMR_MATRIX_BT601 = 601, KMR_MATRIX_BT709 = 709, KMR_MATRIX_BT2020 = 2020 };

/* The selector for a frame of `width` pixels by |`height`| lines. The third argument is ignored.
 *
 * BT.601   up to 1024 x 576: the 525 and 625-line rasters with square or non-square pixels.
 * BT.2020  3840 x 2160 and above: the rasters of that recommendation. Material of this size that was
 *          made with the BT.709 matrix cannot be recognised by its size; a site that ships it puts its own
 *          libkmrutil in place of this one.
 * BT.709   everything else. */
KMRUTIL_API unsigned int GetMatrixBySize(int width, int height, int zero);

#ifdef __cplusplus
}
#endif

#endif
