// From the C structs and back, and the wall that no exception passes.
#pragma once

#include <tintvert/checked.h>
#include <tintvert_checked.h>

#include <algorithm>

namespace tintvert::checked {

inline Buffer from_c(const tntvt_checked_buffer& buffer) { return {buffer.pointer, buffer.size, buffer.front}; }

inline tntvt_checked_range to_c(Range range) { return {range.from, range.to}; }

inline void to_c(const Extents& extents, tntvt_checked_extents& told)
{
    told.count = 0;
    for (const Touch& touch : extents)
        told.touches[told.count++] = {touch.buffer, to_c(touch.read), to_c(touch.written)};
}

inline tntvt_checked_result to_c(const Error& error)
{
    if (error) return {TNTVT_CHECKED_OK, {}, error.routine, "", "", "", 0, 0, 0, {0, 0}, 0, nullptr};
    return {static_cast<tntvt_checked_code>(error.code),
            static_cast<tntvt_checked_refusal>(error.refusal),
            error.routine,
            error.buffer,
            error.other,
            error.why,
            error.has,
            error.front,
            error.needs,
            to_c(error.where),
            0,
            nullptr};
}

template <class Value>
tntvt_checked_result to_c(const Result<Value>& result)
{
    tntvt_checked_result told = to_c(static_cast<const Error&>(result));
    if constexpr (std::is_pointer_v<Value>)
        told.pointer = result.value;
    else if constexpr (!std::is_void_v<Value>)
        told.value = result.value;
    return told;
}

template <class Call>
tntvt_checked_result answer(const char* routine, const tntvt_checked_options* options, Call call) noexcept
{
    try {
        if (options == nullptr) return to_c(call(Options{}));
        Extents extents;
        const bool asks = options->query != nullptr;
        const auto result = call(Options{options->allow_overlap != 0, asks ? &extents : nullptr});
        if (asks) to_c(extents, *options->query);
        return to_c(result);
    } catch (...) {
        Error error;
        error.code = Code::failed;
        error.routine = routine;
        return to_c(error);
    }
}

}  // namespace tintvert::checked
