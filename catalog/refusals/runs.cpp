// Frames that are taken as one run, and planes: sizes are products of 32 bits.
#include "refusals/rules.h"

namespace tintvert::catalog::refusals {

Reason negative_size(const Arguments& call)
{
    if (call[Arg::size] >= 0) return {};
    return {Refusal::reads_as_unsigned, "a negative `size` asks for nearly 4 GiB"};
}

Reason negative_width(const Arguments& call)
{
    if (call[Arg::width] >= 0) return {};
    return {Refusal::reads_as_unsigned, "a negative `width` is 2^31 pixels and more"};
}

Reason run_of_pixels(const Arguments& call)
{
    if (!above(most_signed, call[Arg::width], call[Arg::height])) return {};
    return {Refusal::wraps, "`width` x `height` wraps at 32 bits"};
}

Reason run_of_triples(const Arguments& call)
{
    if (!above(most_unsigned / 3, call[Arg::width], call[Arg::height])) return {};
    return {Refusal::wraps, "`width` x `height` x 3 wraps at 32 bits"};
}

Reason no_groups(const Arguments& call)
{
    if (call[Arg::groups] != 0) return {};
    return {Refusal::divides_by_zero, "`groups` of 0 divides by zero"};
}

Reason planes_420(const Arguments& call)
{
    const int64_t width = call[Arg::width], height = call[Arg::height], given = call[Arg::stride];
    if (above(most_unsigned, width, height)) return {Refusal::wraps, "`width` x `height` wraps at 32 bits"};
    const int64_t stride = given == 0 || given == most_unsigned ? width * 2 : given;
    if (above(most_unsigned, stride, height)) return {Refusal::wraps, "lines that far apart wrap at 32 bits"};
    return {};
}

Reason counted_down(const Arguments& call)
{
    if (call[Arg::height] > 0) return {};
    return {Refusal::walks_2_32_lines, "a `height` of 0 or below counts down through 2^64 lines"};
}

Reason frame_copy(const Arguments& call)
{
    const int64_t width = call[Arg::width], height = call[Arg::height], stride = call[Arg::srcStride];
    if (width == 0) return {Refusal::divides_by_zero, "a `width` of 0 divides by zero"};
    if (stride != call[Arg::dstStride]) return {};
    const int64_t line = stride / width * width;
    if (line * height < 0 || above(most_unsigned, line, height))
        return {Refusal::wraps, "the size of the block wraps at 32 bits"};
    return {};
}

// From an address below its magnitude it ends near 2^64, and the line with it.
Reason packed_lines(const Arguments& call)
{
    if (call[Arg::dstStride] >= 0) return {};
    return {Refusal::wraps, "a negative `dstStride` may end behind the last address"};
}

Reason pitch_pair(const Arguments& call)
{
    const int64_t height = call[Arg::height];
    if (height < 0) return {Refusal::walks_2_32_lines, "a negative `height` is 2^31 lines and more"};
    if (above(most_unsigned, call[Arg::dstStride], height) || above(most_unsigned, call[Arg::srcStride], height))
        return {Refusal::wraps, "lines that far apart wrap at 32 bits"};
    return {};
}

}  // namespace tintvert::catalog::refusals
