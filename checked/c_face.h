// From the C structs and back, and the wall that no exception passes.
#pragma once

#include <tintvert/checked.h>
#include <tintvert_checked.h>

#include "call.h"

namespace tintvert::checked {

inline tntvt_checked_range to_c(Range range) { return {range.from, range.to}; }

inline void to_c(const Extents& extents, tntvt_checked_extents& query)
{
    query.count = 0;
    for (const Touch& touch : extents)
        query.touches[query.count++] = {touch.buffer, to_c(touch.read), to_c(touch.written)};
}

inline tntvt_checked_result to_c(const Status& error)
{
    if (error.ok()) return {TNTVT_CHECKED_OK, {}, error.routine, "", "", "", 0, 0, 0, {0, 0}, 0, nullptr};
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
    tntvt_checked_result in_c = to_c(static_cast<const Status&>(result));
    if constexpr (std::is_pointer_v<Value>)
        in_c.pointer = result.value;
    else if constexpr (!std::is_void_v<Value>)
        in_c.value = result.value;
    return in_c;
}

template <class Value, catalog::Arg... arguments, class... Values>
tntvt_checked_result run_in_c(catalog::RoutineId id, const tntvt_checked_options* options,
                              const Values&... values) noexcept
{
    try {
        const bool allow_overlap = options != nullptr && options->allow_overlap != 0;
        if (options == nullptr || options->query == nullptr)
            return to_c(run<Value, arguments...>(id, {allow_overlap, nullptr}, values...));
        Extents extents;
        const auto result = run<Value, arguments...>(id, {allow_overlap, &extents}, values...);
        to_c(extents, *options->query);
        return to_c(result);
    } catch (...) {
        Status error;
        error.code = Code::failed;
        error.routine = catalog::routine_at(id).name.data();
        return to_c(error);
    }
}

}  // namespace tintvert::checked
