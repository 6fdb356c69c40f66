#include "in_place.h"

#include <cstdlib>

#include "catalog.h"

namespace tintvert::catalog {

InPlace in_place(const Routine& routine) { return routine.in_place.kind; }

bool promised_in_place(const Routine& routine, const Arguments& call)
{
    const auto allowed = routine.in_place.allowed;
    return allowed != nullptr && allowed(call);
}

namespace in_place_rules {
namespace {

int64_t dst_stride(const Arguments& call) { return call[Arg::dstStride]; }
int64_t src_stride(const Arguments& call) { return call[Arg::srcStride]; }
bool one_line(const Arguments& call) { return std::abs(call[Arg::height]) < 2; }

// First line first: what is written never gets ahead of what is read.
bool shrinks(const Arguments& call, int64_t src_line)
{
    return one_line(call) ||
           (dst_stride(call) >= 0 && dst_stride(call) <= src_stride(call) && src_stride(call) >= src_line);
}

bool tight(const Arguments& call, int64_t dst_pixel, int64_t src_pixel)
{
    return dst_stride(call) == call[Arg::width] * dst_pixel && src_stride(call) == call[Arg::width] * src_pixel;
}

}  // namespace

bool always(const Arguments&) { return true; }
bool equal_strides(const Arguments& call) { return dst_stride(call) == src_stride(call); }

// Lines of whole groups: the last group of another line is the first of the next, which would pass the table
// twice.
bool equal_strides_of_groups(const Arguments& call)
{
    return equal_strides(call) && (one_line(call) || dst_stride(call) % 16 == 0);
}

// Lines that do not overlap, at one pitch.
bool words(const Arguments& call)
{
    return one_line(call) || (equal_strides(call) && std::abs(dst_stride(call)) >= call[Arg::width] * 4);
}

bool words_shrink(const Arguments& call) { return shrinks(call, call[Arg::width] * 4); }
bool words_to_plane(const Arguments& call) { return one_line(call) || src_stride(call) >= call[Arg::width] * 4; }

// `height` + 1 lines.
bool luma_shrinks(const Arguments& call)
{
    return call[Arg::height] < 1 || (dst_stride(call) >= 0 && dst_stride(call) <= src_stride(call) &&
                                     src_stride(call) >= (call[Arg::width] >> 1) * 4);
}

// Last line first, each right-aligned in its stride.
bool luma_grows(const Arguments& call)
{
    const int64_t pairs = call[Arg::width] >> 1;
    return src_stride(call) >= pairs * 2 && dst_stride(call) - src_stride(call) >= pairs * 2;
}

bool tight_16_to_32(const Arguments& call) { return tight(call, 4, 2); }
bool tight_24_to_32(const Arguments& call) { return tight(call, 4, 3); }

// Modes 1 to 4 use `dst` alone, and modes 9 to 12 copy no line onto itself.
bool field_modes(const Arguments& call)
{
    const int64_t mode = call[Arg::mode];
    if (mode >= 9 && mode <= 12) return src_stride(call) == 0 || equal_strides(call);
    return mode < 5 || mode > 14;
}

}  // namespace in_place_rules
}  // namespace tintvert::catalog
