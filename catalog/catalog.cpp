#include "catalog.h"

#include <tintvert.h>

#include <algorithm>
#include <type_traits>

#include "extents.h"
#include "routine_id.h"
#include "shapes.h"

namespace tintvert::catalog {
namespace {

constexpr Argument arguments[] = {
#define TNTVT_ARGUMENT(name, kind, meaning) {#name, Argument::kind, meaning},
#include "arguments.def"
#undef TNTVT_ARGUMENT
};

// A call by name: each argument of the routine takes its value by the name that its shape gives the place.
template <auto routine, auto& shape, class Result, class... Parameters>
int64_t call_with(const Arguments& values, Result (*)(Parameters...))
{
    static_assert(sizeof...(Parameters) == std::size(shape), "the shape and the declaration differ in length");
    return [&]<size_t... place>(std::index_sequence<place...>)->int64_t
    {
        if constexpr (std::is_void_v<Result>)
            return routine(values.as<Parameters>(shape[place])...), 0;
        else if constexpr (std::is_pointer_v<Result>)
            return reinterpret_cast<int64_t>(routine(values.as<Parameters>(shape[place])...));
        else
            return routine(values.as<Parameters>(shape[place])...);
    }
    (std::index_sequence_for<Parameters...>{});
}

template <auto routine, auto& shape>
int64_t call(const Arguments& values)
{
    return call_with<routine, shape>(values, routine);
}

// The types of the declarations, in words.
template <class Type>
constexpr std::string_view type_name = {};
template <>
constexpr std::string_view type_name<void> = "void";
template <>
constexpr std::string_view type_name<int> = "int";
template <>
constexpr std::string_view type_name<long> = "long";
template <>
constexpr std::string_view type_name<unsigned char> = "unsigned char";
template <>
constexpr std::string_view type_name<unsigned short> = "unsigned short";
template <>
constexpr std::string_view type_name<unsigned int> = "unsigned int";
template <>
constexpr std::string_view type_name<void*> = "void*";
template <>
constexpr std::string_view type_name<void**> = "void**";
template <>
constexpr std::string_view type_name<unsigned char*> = "unsigned char*";
template <>
constexpr std::string_view type_name<unsigned short*> = "unsigned short*";
template <>
constexpr std::string_view type_name<unsigned int*> = "unsigned int*";
template <>
constexpr std::string_view type_name<v210FourWords*> = "v210FourWords*";

template <class Signature>
struct Types;
template <class Result, class... Parameters>
struct Types<Result (*)(Parameters...)> {
    static constexpr std::string_view result = type_name<Result>;
    static constexpr std::array<std::string_view, sizeof...(Parameters)> parameters = {type_name<Parameters>...};
};

constexpr Routine all[] = {
#define TNTVT_ROUTINE(chapter, name, shape, from, to, rule, summary) \
    {RoutineId::name,                                                \
     #chapter,                                                       \
     #name,                                                          \
     #shape,                                                         \
     #from,                                                          \
     #to,                                                            \
     summary,                                                        \
     shapes::shape,                                                  \
     extents::rule,                                                  \
     call<&::name, shapes::shape>,                                   \
     Types<decltype(&::name)>::result,                               \
     Types<decltype(&::name)>::parameters},
#include "routines.def"
#undef TNTVT_ROUTINE
};

}  // namespace

const Argument& describe(Arg argument) { return arguments[static_cast<size_t>(argument)]; }

std::span<const Routine> routines() { return all; }

const Routine* find(std::string_view name)
{
    const auto found = std::ranges::find(all, name, &Routine::name);
    return found == std::end(all) ? nullptr : found;
}

}  // namespace tintvert::catalog
