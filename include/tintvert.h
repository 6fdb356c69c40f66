/* libtintvert: pixel-format conversion for professional video.
 *
 * A flat list of C functions. The caller passes frames or lines in one layout and gets them back in another.
 * There are no handles and no contexts, and nothing is opened or closed. A routine starts no thread, keeps no
 * pointer, and may run on any number of threads over different buffers.
 *
 * Names. tntvt_<from>_<to> converts a frame: destination first, then source. <from>_to_<to> converts a line:
 * source first. docs/layouts.md shows every layout byte by byte.
 *
 * Numbers. `width` counts pixels and `height` lines. A stride is the distance in bytes from the start of one
 * line to the start of the next. Forward routines expect a line at the start of its stride, backward routines
 * at the end, right-aligned; each says which it is. Slack is the part of a stride without pixels.
 *
 * Sizes. No routine checks the size of a buffer. Routines that work on pairs or groups of pixels process the
 * last group whole; each says how many bytes past the end it reads or writes. A `width` or `height` below 1
 * does nothing unless the routine says otherwise.
 *
 * Quirks. Behaviour that looks like a bug and is required has a name, keeps_..., listed in docs/quirks.md. */
#ifndef TINTVERT_H
#define TINTVERT_H

/* The version of the interface, by the rules in docs/installing.md. */
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
