#include "checked_call.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "extents.h"
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

template <class Told, class... Parameters, size_t... place>
Told call(Told (*function)(Parameters...), const Values& values, std::index_sequence<place...>)
{
    return function(values.at<Parameters>(place)...);
}
template <class Told, class... Parameters>
Told call(Told (*function)(Parameters...), const Values& values)
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

Answer answer_of(const tntvt_checked_result& told)
{
    checked::Status error;
    error.code = static_cast<checked::Code>(told.code);
    error.refusal = static_cast<checked::Refusal>(told.refusal);
    error.routine = told.routine;
    error.buffer = told.buffer;
    error.other = told.other;
    error.why = told.why;
    error.has = told.has;
    error.front = told.front;
    error.needs = told.needs;
    error.where = range_of(told.where);
    return {error, told.pointer != nullptr ? reinterpret_cast<int64_t>(told.pointer) : told.value};
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

constexpr int64_t margin = 48;

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

Buffer Scene::Place::exactly(uint8_t* pointer, catalog::Range range)
{
    return Buffer(pointer + range.begin, static_cast<size_t>(range.end - range.begin)).at(-range.begin);
}

Scene::Scene(Random& random, const catalog::Routine& routine, const catalog::Arguments& numbers)
{
    for (const catalog::Touch& touch : routine.extents(numbers)) {
        const catalog::Range touched = catalog::extents::join(touch.read, touch.written);
        const catalog::Range around = {std::min<int64_t>(touched.begin, 0) - margin,
                                       std::max<int64_t>(touched.end, 0) + margin};
        places_.push_back({touch.buffer, touched, touch.written, Memory(random, around)});
        if (takes(routine, Arg::palette) && touch.buffer == Arg::src && !touched.empty())
            std::memcpy(places_.back().memory.pointer(), numbers.as<const uint8_t*>(Arg::src),
                        numbers.as<size_t>(Arg::streamSize));
    }
}

std::vector<Given> Scene::given()
{
    std::vector<Given> result;
    for (Place& place : places_) result.push_back({place.argument, place.buffer(place.touched)});
    return result;
}

void Scene::point(catalog::Arguments& numbers)
{
    for (Place& place : places_) numbers[place.argument] = place.memory.address();
}

bool Scene::same_bytes(const Scene& other) const
{
    return std::ranges::equal(places_, other.places_, [](const Place& one, const Place& two) {
        return one.memory.bytes() == two.memory.bytes();
    });
}

}  // namespace tintvert::test
