#include "call.h"

#include <algorithm>
#include <limits>

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

int64_t bytes_of(const Buffer& buffer)
{
    constexpr auto most = static_cast<size_t>(std::numeric_limits<int64_t>::max());
    return static_cast<int64_t>(std::min(buffer.size(), most));
}

// How far a stream may be read: up to the end of its memory, if its pointer is in there.
int64_t bytes_behind(const Buffer& buffer)
{
    if (buffer.pointer() == nullptr || buffer.front() < 0) return 0;
    return std::max<int64_t>(bytes_of(buffer) - buffer.front(), 0);
}

Range told(catalog::Range range) { return {range.begin, range.end}; }

void tell(const catalog::Extents& extents, Extents& query)
{
    query = {};
    for (const catalog::Touch& touch : extents)
        query.add({name_of(touch.buffer), told(touch.read), told(touch.written)});
}

catalog::Range common(catalog::Range one, catalog::Range other)
{
    return {std::max(one.begin, other.begin), std::min(one.end, other.end)};
}

catalog::Range moved(catalog::Range range, int64_t distance) { return {range.begin + distance, range.end + distance}; }

bool writes(const catalog::Extents& extents, Arg buffer)
{
    return std::ranges::any_of(
        extents, [=](const catalog::Touch& touch) { return touch.buffer == buffer && !touch.written.empty(); });
}

bool knows(const catalog::Extents& extents, Arg buffer)
{
    return std::ranges::any_of(extents, [=](const catalog::Touch& touch) { return touch.buffer == buffer; });
}

}  // namespace

void Call::set(size_t place, const Buffer& buffer)
{
    const Arg argument = routine_.arguments[place];
    if (argument == Arg::ignored) return;
    numbers_[argument] = reinterpret_cast<int64_t>(buffer.pointer());
    given_[buffers_++] = {argument, &buffer};
    if (argument == Arg::src) numbers_[Arg::streamSize] = bytes_behind(buffer);
}

const Buffer& Call::given(Arg argument) const { return *std::ranges::find(given_, argument, &Given::argument)->buffer; }

bool Call::may_be_made(const Options& options, Error& error)
{
    error.routine = routine_.name.data();
    if (refused(error)) return false;
    const catalog::Extents extents = routine_.extents(numbers_);
    if (options.query != nullptr) {
        tell(extents, *options.query);
        return true;
    }
    for (const catalog::Touch& touch : extents)
        if (lacks_room(touch, error)) return false;
    return options.allow_overlap || !overlaps(extents, error);
}

bool Call::refused(Error& error) const
{
    const catalog::Reason reason = catalog::reason(routine_, numbers_);
    if (reason.refusal == catalog::Refusal::none) return false;
    error.code = Code::refused;
    error.refusal = refusal_of(reason.refusal);
    error.why = reason.sentence;
    return true;
}

bool Call::lacks_room(const catalog::Touch& touch, Error& error) const
{
    const catalog::Range all = join(touch.read, touch.written);
    if (all.empty()) return false;
    const Buffer& buffer = given(touch.buffer);
    const int64_t front = buffer.front();
    const bool null = buffer.pointer() == nullptr;
    if (!null && all.begin >= -front && all.end <= bytes_of(buffer) - front) return false;
    error.code = null ? Code::null : Code::too_small;
    error.buffer = name_of(touch.buffer);
    error.has = buffer.size();
    error.front = front;
    error.needs = static_cast<uint64_t>(std::max<int64_t>(all.end, 0) - std::min<int64_t>(all.begin, 0));
    error.where = told(all);
    return true;
}

// A frame in place is known to some rules as `dst` alone.
bool Call::overlaps(const catalog::Extents& extents, Error& error) const
{
    const bool one_frame = catalog::extents::in_place(numbers_) && knows(extents, Arg::dst);
    if (one_frame && promised_in_place(routine_, numbers_)) return false;
    if (one_frame && !knows(extents, Arg::src) && writes(extents, Arg::dst)) {
        const catalog::Touch& touch = *std::ranges::find(extents, Arg::dst, &catalog::Touch::buffer);
        return overlap(touch, {Arg::src, touch.read, {}}, error);
    }
    for (const catalog::Touch* one = extents.begin(); one != extents.end(); ++one)
        for (const catalog::Touch* other = one + 1; other != extents.end(); ++other)
            if (overlap(*one, *other, error)) return true;
    return false;
}

// What one of the two writes and the other touches.
bool Call::overlap(const catalog::Touch& one, const catalog::Touch& other, Error& error) const
{
    const int64_t distance = address(other.buffer) - address(one.buffer);
    const catalog::Range read = moved(other.read, distance), written = moved(other.written, distance);
    const catalog::Range both =
        join(common(one.written, written), join(common(one.written, read), common(one.read, written)));
    if (both.empty()) return false;
    error.code = Code::overlap;
    error.buffer = name_of(one.buffer);
    error.other = name_of(other.buffer);
    error.has = given(one.buffer).size();
    error.front = given(one.buffer).front();
    error.where = told(both);
    return true;
}

}  // namespace tintvert::checked
