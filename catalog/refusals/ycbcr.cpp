// Decoders, `v210` and packets.
#include "layouts.h"
#include "refusals/rules.h"

namespace tintvert::catalog::refusals {
namespace {

constexpr Reason line_wraps = {Refusal::wraps, "the length of a line wraps at 32 bits"};
constexpr Reason frame_wraps = {Refusal::wraps, "lines that far apart wrap at 32 bits"};

}  // namespace

Reason no_scale(const Arguments& call)
{
    if (call[Arg::scale] != 0) return {};
    return {Refusal::divides_by_zero, "a `scale` of 0 divides by zero"};
}

// libycbcr takes strides of 32 bits.
Reason by_matrix_or_scale(const Arguments& call)
{
    if (call[Arg::scale] != 1) return no_scale(call);
    for (const Arg stride : {Arg::dstStride, Arg::srcStride})
        if (call[stride] > most_signed) return {Refusal::wraps, "a stride above 2^31 - 1 wraps at 32 bits"};
    return above(most_signed, call[Arg::width], 4) ? line_wraps : Reason{};
}

Reason planes_to_rgb32(const Arguments& call)
{
    if (above(most_signed, call[Arg::width], 4) || call[Arg::srcStride] > most_signed) return line_wraps;
    return {};
}

// `srcPitch` counts pixels of two bytes, and a pair of lines is twice as far. Distances are 32-bit numbers.
Reason pitches(const Arguments& call)
{
    const int64_t dst_pitch = call[Arg::dstPitch];
    if (above(most_signed, call[Arg::srcPitch], 4) || above(most_signed, dst_pitch, 2)) return frame_wraps;
    return dst_pitch - call[Arg::width] < -most_signed ? frame_wraps : Reason{};
}

Reason run_to_rgb(const Arguments& call)
{
    const Reason reason = run_of_pixels(call);
    if (reason.refusal != Refusal::none) return reason;
    return above(most_signed, call[Arg::dstStride], call[Arg::height]) ? frame_wraps : Reason{};
}

Reason widened_2vuy(const Arguments& call)
{
    const int64_t width = call[Arg::width];
    if (width == 0) return {};
    if (call[Arg::height] == 0) return {Refusal::walks_2_32_lines, "a `height` of 0 walks 2^32 lines"};
    return call[Arg::dstStride] == 0 && above(most_unsigned, width, 16) ? line_wraps : Reason{};
}

Reason narrowed_v210(const Arguments& call)
{
    const int64_t width = call[Arg::width], height = call[Arg::height], given = call[Arg::srcStride];
    if (given == 0 && above(most_unsigned, width, 16)) return line_wraps;
    const int64_t stride = given == 0 ? width * 16 / 6 : given;
    if (above(most_unsigned, width * 2, height) || above(most_unsigned, stride, height)) return frame_wraps;
    return {};
}

// From an address below its magnitude it ends near 2^64, and the payload with it.
Reason payload(const Arguments& call)
{
    if (call[Arg::payloadSize] >= 0) return {};
    return {Refusal::wraps, "a negative `payloadSize` may end behind the last address"};
}

Reason packed10(const Arguments& call)
{
    const int64_t width = call[Arg::width];
    if (above(most_unsigned, width, 20)) return line_wraps;
    return above(most_unsigned, v210_line_bytes(width), call[Arg::height]) ? frame_wraps : Reason{};
}

Reason packets(const Arguments& call)
{
    const int64_t width = call[Arg::width];
    if (width % 2 != 0) return {Refusal::never_returns, "an odd `width` never returns"};
    if (above(most_unsigned, width + 47, 8)) return line_wraps;
    return above(most_unsigned, v210_line_bytes(width), call[Arg::height]) ? frame_wraps : Reason{};
}

}  // namespace tintvert::catalog::refusals
