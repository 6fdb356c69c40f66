#include "checked_call.h"

#include <algorithm>
#include <array>

#include "routine_id.h"

namespace tintvert::test {
namespace {

using catalog::Arg;
using checked::Buffer;

checked::Range range_of(tntvt_checked_range range) { return {range.from, range.to}; }

// What goes into the parameters of a call, by place and type.
struct Values {
    const catalog::Routine& routine;
    const catalog::Arguments& numbers;
    const std::vector<Given>& given;
    const checked::Options& options;
    const tntvt_checked_options* c_options = nullptr;

    Buffer buffer(Arg argument) const
    {
        const auto found = std::ranges::find(given, argument, &Given::argument);
        return found == given.end() ? Buffer{} : found->buffer;
    }

    template <class Type>
    Type at(size_t place) const
    {
        if constexpr (std::is_same_v<Type, const checked::Options&>) {
            return options;
        } else if constexpr (std::is_same_v<Type, const tntvt_checked_options*>) {
            return c_options;
        } else if constexpr (std::is_same_v<Type, Buffer>) {
            return buffer(routine.arguments[place]);
        } else if constexpr (std::is_same_v<Type, tntvt_checked_buffer>) {
            const Buffer one = buffer(routine.arguments[place]);
            return {one.pointer(), one.size(), one.front()};
        } else {
            return numbers.as<Type>(routine.arguments[place]);
        }
    }
};

template <class Result, class... Parameters, size_t... place>
Result call(Result (*function)(Parameters...), const Values& values, std::index_sequence<place...>)
{
    return function(values.at<Parameters>(place)...);
}
template <class Result, class... Parameters>
Result call(Result (*function)(Parameters...), const Values& values)
{
    return call(function, values, std::index_sequence_for<Parameters...>{});
}

template <class Value>
Answer answer_of(const checked::Result<Value>& result)
{
    if constexpr (std::is_void_v<Value>)
        return {result, 0};
    else if constexpr (std::is_pointer_v<Value>)
        return {result, reinterpret_cast<int64_t>(result.value)};
    else
        return {result, result.value};
}

Answer answer_of(const tntvt_checked_result& reported)
{
    checked::Status error;
    error.code = static_cast<checked::Code>(reported.code);
    error.refusal = static_cast<checked::Refusal>(reported.refusal);
    error.routine = reported.routine;
    error.buffer = reported.buffer;
    error.other = reported.other;
    error.why = reported.why;
    error.has = reported.has;
    error.front = reported.front;
    error.needs = reported.needs;
    error.where = range_of(reported.where);
    return {error, reported.pointer != nullptr ? reinterpret_cast<int64_t>(reported.pointer) : reported.value};
}

template <auto function>
Answer run(const Values& values)
{
    return answer_of(call(function, values));
}

using Run = Answer (*)(const Values&);

constexpr std::array<Run, catalog::routine_count> runs = {
#define TNTVT_ROUTINE(name) run<&checked::name>,
#include "routines.def"
#undef TNTVT_ROUTINE
};
constexpr std::array<Run, catalog::routine_count> runs_in_c = {
#define TNTVT_ROUTINE(name) run<&checked_##name>,
#include "routines.def"
#undef TNTVT_ROUTINE
};

}  // namespace

Answer call_checked(const catalog::Routine& routine, const catalog::Arguments& numbers, const std::vector<Given>& given,
                    const checked::Options& options)
{
    return runs[static_cast<size_t>(id_of(routine))]({routine, numbers, given, options});
}

Answer call_checked_in_c(const catalog::Routine& routine, const catalog::Arguments& numbers,
                         const std::vector<Given>& given, const checked::Options& options)
{
    tntvt_checked_extents extents = {};
    const tntvt_checked_options chosen = {options.allow_overlap, options.query == nullptr ? nullptr : &extents};
    const Answer answer = runs_in_c[static_cast<size_t>(id_of(routine))]({routine, numbers, given, options, &chosen});
    if (options.query == nullptr) return answer;
    *options.query = {};
    for (size_t i = 0; i < extents.count; ++i)
        options.query->add(
            {extents.touches[i].buffer, range_of(extents.touches[i].read), range_of(extents.touches[i].written)});
    return answer;
}

std::string text_of(const catalog::Routine& routine, const catalog::Arguments& numbers)
{
    std::string text{routine.name};
    for (const Arg argument : routine.arguments)
        text += ' ' + std::string{describe(argument).name} + '=' + std::to_string(numbers[argument]);
    return text;
}

Buffer exactly(uint8_t* pointer, catalog::Range range)
{
    return Buffer(pointer + range.begin, static_cast<size_t>(range.end - range.begin)).at(-range.begin);
}

std::vector<Given> exact_buffers(CallMemory& memory)
{
    std::vector<Given> result;
    for (CallMemory::Place& place : memory.places())
        result.push_back({place.argument, exactly(place.buffer.pointer(), place.accessed)});
    return result;
}

}  // namespace tintvert::test
