#include "call.h"

#include <algorithm>

#include "extents.h"
#include "in_place.h"
#include "refusals.h"

namespace tintvert::checked {
namespace {

using catalog::Arg;
using catalog::extents::join;

constexpr Refusal refusal_of(catalog::Refusal refusal) { return static_cast<Refusal>(refusal); }
static_assert(refusal_of(catalog::Refusal::none) == Refusal::none);
static_assert(refusal_of(catalog::Refusal::too_large) == Refusal::too_large);
static_assert(refusal_of(catalog::Refusal::divides_by_zero) == Refusal::divides_by_zero);
static_assert(refusal_of(catalog::Refusal::never_returns) == Refusal::never_returns);
static_assert(refusal_of(catalog::Refusal::walks_2_32_lines) == Refusal::walks_2_32_lines);
static_assert(refusal_of(catalog::Refusal::wraps) == Refusal::wraps);
static_assert(refusal_of(catalog::Refusal::reads_as_unsigned) == Refusal::reads_as_unsigned);
static_assert(refusal_of(catalog::Refusal::overruns_scratch) == Refusal::overruns_scratch);

// An argument's name ends with a 0.
const char* name_of(Arg argument) { return describe(argument).name.data(); }

Range range_of(catalog::Range range) { return {range.begin, range.end}; }

void report(const catalog::Extents& extents, Extents& query)
{
    query = {};
    for (const catalog::Touch& touch : extents)
        query.add({name_of(touch.buffer), range_of(touch.read), range_of(touch.written)});
}

catalog::Range common(catalog::Range one, catalog::Range other)
{
    return {std::max(one.begin, other.begin), std::min(one.end, other.end)};
}

catalog::Range moved(catalog::Range range, int64_t distance) { return {range.begin + distance, range.end + distance}; }

bool knows(const catalog::Extents& extents, Arg buffer)
{
    return std::ranges::any_of(extents, [=](const catalog::Touch& touch) { return touch.buffer == buffer; });
}

}  // namespace

bool Call::may_be_made(const Options& options, Status& error)
{
    error.routine = routine_.name.data();
    if (refused(numbers_, error)) return false;
    const catalog::Extents extents = routine_.extents(numbers_);
    if (options.query != nullptr) {
        report(extents, *options.query);
        return true;
    }
    for (const catalog::Touch& touch : extents)
        if (is_too_small(touch, error)) return false;
    if (null_frames_ > 0 && (touches_one_null_frame(error) || interpolates_null(error))) return false;
    return options.allow_overlap || !overlaps(extents, error);
}

// Two null pointers are two buffers to the rules and one frame to the routine.
bool Call::touches_one_null_frame(Status& error) const
{
    if (null_frames_ < 2) return false;
    catalog::Arguments in_place = numbers_;
    in_place[Arg::dst] = in_place[Arg::src] = 1;
    if (refused(in_place, error)) return true;
    return std::ranges::any_of(routine_.extents(in_place),
                               [&](const catalog::Touch& touch) { return is_too_small(touch, error); });
}

// To the rules a null is a buffer that is still to come. Mode 11 makes something else of it: where either frame is
// null it copies the second line of `src` to the first of `dst`, whatever the height.
bool Call::interpolates_null(Status& error) const
{
    if (id_of(routine_) != catalog::RoutineId::tntvt_change_field_rgb) return false;
    if (numbers_.as<uint32_t>(Arg::mode) != 11) return false;
    const int64_t dst_pitch = numbers_.as<uint32_t>(Arg::dstStride), given = numbers_.as<uint32_t>(Arg::srcStride);
    const int64_t pitch = given == 0 ? dst_pitch : given;
    if (address(Arg::src) + pitch == address(Arg::dst) + dst_pitch) return false;
    return is_too_small({Arg::src, {pitch, 2 * pitch}, {}}, error) || is_too_small({Arg::dst, {}, {0, pitch}}, error);
}

bool Call::refused(const catalog::Arguments& numbers, Status& error) const
{
    const catalog::Reason reason = catalog::reason(routine_, numbers);
    if (reason.refusal == catalog::Refusal::none) return false;
    error.code = Code::refused;
    error.refusal = refusal_of(reason.refusal);
    error.why = reason.sentence;
    return true;
}

bool Call::is_too_small(const catalog::Touch& touch, Status& error) const
{
    const catalog::Range& all = touch.touched;
    if (all.empty()) return false;
    const Room& room = room_of(touch.buffer);
    const bool null = address(touch.buffer) == 0;
    if (!null && room.holds(all)) return false;
    error.code = null ? Code::null : Code::too_small;
    error.buffer = name_of(touch.buffer);
    error.has = room.size;
    error.front = room.front;
    error.needs = static_cast<uint64_t>(std::max<int64_t>(all.end, 0) - std::min<int64_t>(all.begin, 0));
    error.where = range_of(all);
    return true;
}

// What is written in one buffer and touched in another. A frame in place is known to some rules as `dst` alone.
inline bool Call::overlaps(const catalog::Extents& extents, Status& error) const
{
    if (catalog::extents::in_place(numbers_) && knows(extents, Arg::dst)) {
        if (promised_in_place(routine_, numbers_)) return false;
        if (!knows(extents, Arg::src)) {
            const catalog::Touch& frame = *extents.begin();
            return overlap(frame, {Arg::src, frame.read, {}}, error);
        }
    }
    for (const catalog::Touch& one : extents) {
        if (one.written.empty()) continue;
        const catalog::Range place = moved(one.touched, address(one.buffer));
        for (const catalog::Touch& other : extents) {
            const int64_t at = address(other.buffer);
            if (place.begin >= at + other.touched.end || at + other.touched.begin >= place.end) continue;
            const bool seen = &other == &one || (&other < &one && !other.written.empty());
            if (!seen && overlap(one, other, error)) return true;
        }
    }
    return false;
}

// If both are written, what the first reads counts as well.
bool Call::overlap(const catalog::Touch& one, const catalog::Touch& other, Status& error) const
{
    const int64_t distance = address(other.buffer) - address(one.buffer);
    const catalog::Range read = moved(other.read, distance), written = moved(other.written, distance);
    const catalog::Range both =
        join(common(one.written, written), join(common(one.written, read), common(one.read, written)));
    if (both.empty()) return false;
    error.code = Code::overlap;
    error.buffer = name_of(one.buffer);
    error.other = name_of(other.buffer);
    error.has = room_of(one.buffer).size;
    error.front = room_of(one.buffer).front;
    error.where = range_of(both);
    return true;
}

}  // namespace tintvert::checked
