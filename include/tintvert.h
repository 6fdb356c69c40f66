/* libtintvert: pixel layout conversion for professional video.
 *
 * A flat list of C functions. A caller hands frames or lines in one layout to a routine and finds them
 * in another; there are no handles and no contexts, nothing is opened first and nothing is closed. A
 * routine starts no thread, keeps no pointer, and may run on any number of threads over different
 * buffers.
 *
 * Names. tntvt_<from>_<to> converts a frame: destination first, then source. <from>_to_<to> converts a
 * line: source first. The names of layouts are explained, byte by byte, in docs/layouts.md.
 *
 * Numbers. `width` counts pixels and `height` lines. A stride is the distance in bytes from the start
 * of a line to the start of the next. Forward routines find a line at the start of its stride, backward
 * routines at its end; each says which it is.
 *
 * Sizes. No routine tests the size of a buffer. Those that work on pairs or groups run their last group
 * whole; how far that reaches stands with each routine. A `width` or `height` below 1 is no work unless
 * the routine says otherwise. */
#ifndef TINTVERT_H
#define TINTVERT_H

/* The version of these headers. */
#define TINTVERT_VERSION_MAJOR 1
#define TINTVERT_VERSION_MINOR 0
#define TINTVERT_VERSION_PATCH 0

#include <tintvert/decode.h>
#include <tintvert/export.h>
#include <tintvert/field.h>
#include <tintvert/frame.h>
#include <tintvert/hdr.h>
#include <tintvert/rgb.h>
#include <tintvert/ycbcr10.h>
#include <tintvert/ycbcr8.h>

#endif
