#include "checked_call.h"

#include <utility>

#include "routine_id.h"

namespace tintvert::fuzz {
namespace {

struct Values {
    const catalog::Routine& routine;
    const catalog::Arguments& numbers;
    const Buffers& buffers;
    const checked::Options& options;

    template <class Type>
    Type at(size_t place) const
    {
        if constexpr (std::is_same_v<Type, const checked::Options&>)
            return options;
        else if constexpr (std::is_same_v<Type, checked::Buffer>)
            return buffers[static_cast<size_t>(routine.arguments[place])];
        else
            return numbers.as<Type>(routine.arguments[place]);
    }
};

template <class Value>
Answer answer_of(const checked::Result<Value>& result)
{
    if constexpr (std::is_void_v<Value>)
        return {result, 0};
    else if constexpr (std::is_pointer_v<Value>)
        return {result, reinterpret_cast<int64_t>(result.value)};
    else
        return {result, static_cast<int64_t>(result.value)};
}

template <class Result, class... Parameters, size_t... place>
Answer call(Result (*function)(Parameters...), const Values& values, std::index_sequence<place...>)
{
    return answer_of(function(values.at<Parameters>(place)...));
}
template <class Result, class... Parameters>
Answer call(Result (*function)(Parameters...), const Values& values)
{
    return call(function, values, std::index_sequence_for<Parameters...>{});
}

template <auto function>
Answer run(const Values& values)
{
    return call(function, values);
}

constexpr std::array<Answer (*)(const Values&), catalog::routine_count> runs = {
#define TNTVT_ROUTINE(name) run<&checked::name>,
#include "routines.def"
#undef TNTVT_ROUTINE
};

}  // namespace

Answer call_checked(size_t routine, const catalog::Arguments& numbers, const Buffers& buffers,
                    const checked::Options& options)
{
    return runs[routine]({catalog::routines()[routine], numbers, buffers, options});
}

}  // namespace tintvert::fuzz
