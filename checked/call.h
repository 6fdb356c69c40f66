// One checked call: its numbers and buffers by argument, what is wrong with it, and the call itself.
#pragma once

#include <tintvert/checked.h>
#include <tintvert_checked.h>

#include <algorithm>

#include "catalog.h"
#include "routine_id.h"

namespace tintvert::checked {

// The memory of a buffer, about its pointer.
struct Room {
    size_t size;
    int64_t front;

    // Bytes [begin, end) from the pointer.
    bool holds(catalog::Range range) const
    {
        return range.begin >= -front && static_cast<size_t>(range.end) + static_cast<size_t>(front) <= size;
    }
};

class Call {
public:
    explicit Call(const catalog::Routine& routine) : routine_(routine) {}

    template <class Number>
    void set(catalog::Arg argument, Number value)
    {
        numbers_[argument] = static_cast<int64_t>(value);
    }
    void set(catalog::Arg argument, const Buffer& buffer)
    {
        set(argument, buffer.pointer(), {buffer.size(), buffer.front()});
    }
    void set(catalog::Arg argument, const tntvt_checked_buffer& buffer)
    {
        set(argument, buffer.pointer, {buffer.size, buffer.front});
    }

    // Whether the call may be made. Otherwise `error` says why not.
    bool may_be_made(const Options& options, Status& error);

    template <class Value>
    Value make() const
    {
        const int64_t value = routine_.call(numbers_);
        if constexpr (std::is_pointer_v<Value>)
            return reinterpret_cast<Value>(value);
        else
            return static_cast<Value>(value);
    }

private:
    void set(catalog::Arg argument, const void* pointer, Room room)
    {
        numbers_[argument] = reinterpret_cast<int64_t>(pointer);
        rooms_[static_cast<size_t>(argument)] = room;
        const bool frame = argument == catalog::Arg::dst || argument == catalog::Arg::src;
        if (frame && pointer == nullptr) ++null_frames_;
        // How far a stream may be read: up to the end of its memory, if its pointer is in there.
        if (argument == catalog::Arg::src && pointer != nullptr && room.front >= 0)
            numbers_[catalog::Arg::streamSize] =
                static_cast<int64_t>(room.size - std::min(room.size, static_cast<size_t>(room.front)));
    }

    // Every buffer of the extents has been set.
    const Room& room_of(catalog::Arg argument) const { return rooms_[static_cast<size_t>(argument)]; }
    int64_t address(catalog::Arg argument) const { return numbers_[argument]; }
    bool refused(const catalog::Arguments& numbers, Status& error) const;
    bool touches_one_null_frame(Status& error) const;
    bool interpolates_null(Status& error) const;
    bool is_too_small(const catalog::Touch& touch, Status& error) const;
    bool overlaps(const catalog::Extents& extents, Status& error) const;
    bool overlap(const catalog::Touch& one, const catalog::Touch& other, Status& error) const;

    const catalog::Routine& routine_;
    catalog::Arguments numbers_;
    std::array<Room, catalog::argument_count> rooms_;
    int null_frames_ = 0;  // of `dst` and `src`
};

template <class Value, catalog::Arg... arguments, class... Values>
inline Result<Value> run(catalog::RoutineId id, const Options& options, const Values&... values)
{
    Result<Value> result;
    Call call(catalog::routine_at(id));
    (call.set(arguments, values), ...);
    if (!call.may_be_made(options, result) || options.query != nullptr) return result;
    if constexpr (std::is_void_v<Value>)
        call.make<int64_t>();
    else
        result.value = call.make<Value>();
    return result;
}

}  // namespace tintvert::checked
