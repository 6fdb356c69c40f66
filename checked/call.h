// One checked call: its numbers and buffers by argument, what is wrong with it, and the call itself.
#pragma once

#include <tintvert/checked.h>

#include "catalog.h"
#include "routine_id.h"

namespace tintvert::checked {

class Call {
public:
    explicit Call(const catalog::Routine& routine) : routine_(routine) {}

    template <class Number>
    void set(size_t place, Number value)
    {
        numbers_[routine_.arguments[place]] = static_cast<int64_t>(value);
    }
    void set(size_t place, const Buffer& buffer);

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
        catalog::Arg argument{};
        const Buffer* buffer = nullptr;
    };

    const Buffer& given(catalog::Arg argument) const;
    int64_t address(catalog::Arg argument) const { return numbers_[argument]; }
    bool refused(Error& error) const;
    bool lacks_room(const catalog::Touch& touch, Error& error) const;
    bool overlaps(const catalog::Extents& extents, Error& error) const;
    bool overlap(const catalog::Touch& one, const catalog::Touch& other, Error& error) const;

    const catalog::Routine& routine_;
    catalog::Arguments numbers_;
    std::array<Given, 8> given_;
    size_t buffers_ = 0;
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
