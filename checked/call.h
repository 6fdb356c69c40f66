// One checked call: its numbers and buffers by argument, what is wrong with it, and the call itself.
#pragma once

#include <tintvert/checked.h>

#include <algorithm>
#include <limits>

#include "catalog.h"
#include "routine_id.h"

namespace tintvert::checked {

inline int64_t bytes_of(const Buffer& buffer)
{
    constexpr auto most = static_cast<size_t>(std::numeric_limits<int64_t>::max());
    return static_cast<int64_t>(std::min(buffer.size(), most));
}

// How far a stream may be read: up to the end of its memory, if its pointer is in there.
inline int64_t bytes_behind(const Buffer& buffer)
{
    if (buffer.pointer() == nullptr || buffer.front() < 0) return 0;
    return std::max<int64_t>(bytes_of(buffer) - buffer.front(), 0);
}

class Call {
public:
    explicit Call(const catalog::Routine& routine) : routine_(routine), buffers_(0) {}

    template <class Number>
    void set(size_t place, Number value)
    {
        numbers_[routine_.arguments[place]] = static_cast<int64_t>(value);
    }
    void set(size_t place, const Buffer& buffer)
    {
        const catalog::Arg argument = routine_.arguments[place];
        if (argument == catalog::Arg::ignored) return;
        numbers_[argument] = reinterpret_cast<int64_t>(buffer.pointer());
        given_[buffers_++] = {argument, &buffer};
        if (argument == catalog::Arg::src) numbers_[catalog::Arg::streamSize] = bytes_behind(buffer);
    }

    // Whether the call may be made. What speaks against it is told in `error`.
    bool may_be_made(const Options& options, Error& error);

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
    struct Given {
        catalog::Arg argument;
        const Buffer* buffer;
    };

    // Every buffer that the extents tell has been set.
    const Buffer& given(catalog::Arg argument) const;
    int64_t address(catalog::Arg argument) const { return numbers_[argument]; }
    bool refused(const catalog::Arguments& numbers, Error& error) const;
    bool touches_one_null_frame(Error& error) const;
    bool interpolates_null(Error& error) const;
    using Places = std::array<catalog::Range, 8>;  // by touch, from address 0

    bool lacks_room(catalog::Arg argument, catalog::Range all, Error& error) const;
    bool overlaps(const catalog::Extents& extents, const Places& places, Error& error) const;
    bool overlap(const catalog::Touch& one, const catalog::Touch& other, Error& error) const;

    const catalog::Routine& routine_;
    catalog::Arguments numbers_;
    std::array<Given, 8> given_;
    size_t buffers_;
};

template <class Value, class... Values>
Result<Value> run(catalog::RoutineId id, const Options& options, const Values&... values)
{
    Result<Value> result;
    Call call(catalog::routine_at(id));
    size_t place = 0;
    (call.set(place++, values), ...);
    if (!call.may_be_made(options, result) || options.query != nullptr) return result;
    if constexpr (std::is_void_v<Value>)
        call.make<int64_t>();
    else
        result.value = call.make<Value>();
    return result;
}

}  // namespace tintvert::checked
