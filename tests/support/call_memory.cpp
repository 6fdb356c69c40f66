#include "support/call_memory.h"

#include <algorithm>
#include <cstring>

namespace tintvert::test {

using catalog::Arg;
using catalog::Range;

bool takes(const catalog::Routine& routine, Arg argument)
{
    return std::ranges::find(routine.arguments, argument) != routine.arguments.end();
}

Range accessed_in(const catalog::Extents& extents, Arg buffer)
{
    Range range;
    for (const catalog::Touch& touch : extents)
        if (touch.buffer == buffer) range = join(range, touch.touched);
    return range.empty() ? Range{} : range;
}

Range with_pointer(Range range)
{
    return range.empty() ? Range{} : Range{std::min<int64_t>(range.begin, 0), std::max<int64_t>(range.end, 0)};
}

CallBuffer::CallBuffer(Random& random, Range range)
    : range_(range), bytes_(random.bytes(static_cast<size_t>(range.end - range.begin)))
{}

CallMemory::CallMemory(Random& random, const catalog::Routine& routine, const catalog::Arguments& call, int64_t margin)
{
    const catalog::Extents extents = routine.extents(call);
    for (const Arg argument : routine.arguments) {
        if (describe(argument).kind != catalog::Argument::buffer) continue;
        const Range accessed = accessed_in(extents, argument), kept = with_pointer(accessed);
        Range written;
        for (const catalog::Touch& touch : extents)
            if (touch.buffer == argument) written = join(written, touch.written);
        places_.push_back({argument, accessed, written, CallBuffer(random, {kept.begin - margin, kept.end + margin})});
    }
    copy_stream(routine, call);
}

CallMemory::CallMemory(Random& random, const catalog::Routine& routine, const catalog::Arguments& call, Range range)
    : CallMemory(random, routine, call)
{
    for (Place& place : places_) place.buffer = CallBuffer(random, range);
    copy_stream(routine, call);
}

void CallMemory::copy_stream(const catalog::Routine& routine, const catalog::Arguments& call)
{
    if (!takes(routine, Arg::palette)) return;
    for (Place& place : places_)
        if (place.argument == Arg::src && !place.accessed.empty())  // a stream may go on after its end code
            std::memcpy(place.buffer.pointer(), call.as<const uint8_t*>(Arg::src),
                        static_cast<size_t>(std::min(place.accessed.end, call[Arg::streamSize])));
}

void CallMemory::point(catalog::Arguments& call)
{
    for (Place& place : places_) call[place.argument] = place.buffer.address();
}

}  // namespace tintvert::test
