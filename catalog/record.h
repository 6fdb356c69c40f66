// What the records of the routines are written with.
#pragma once

#include <tintvert.h>

#include <type_traits>

#include "extents.h"
#include "layouts.h"
#include "refusals/memory.h"
#include "routine_id.h"
#include "shapes.h"

namespace tintvert::catalog {

// A call by name: each argument of the routine takes its value by the name that its shape gives the place.
template <auto routine, auto& shape, class Result, class... Parameters>
int64_t call_with(const Arguments& values, Result (*)(Parameters...))
{
    static_assert(sizeof...(Parameters) == shape.arguments.size(), "the shape and the declaration differ in length");
    return [&]<size_t... place>(std::index_sequence<place...>)->int64_t
    {
        if constexpr (std::is_void_v<Result>)
            return routine(values.as<Parameters>(shape.arguments[place])...), 0;
        else if constexpr (std::is_pointer_v<Result>)
            return reinterpret_cast<int64_t>(routine(values.as<Parameters>(shape.arguments[place])...));
        else
            return routine(values.as<Parameters>(shape.arguments[place])...);
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
inline constexpr std::string_view type_name<void> = "void";
template <>
inline constexpr std::string_view type_name<int> = "int";
template <>
inline constexpr std::string_view type_name<long> = "long";
template <>
inline constexpr std::string_view type_name<unsigned char> = "unsigned char";
template <>
inline constexpr std::string_view type_name<unsigned short> = "unsigned short";
template <>
inline constexpr std::string_view type_name<unsigned int> = "unsigned int";
template <>
inline constexpr std::string_view type_name<void*> = "void*";
template <>
inline constexpr std::string_view type_name<void**> = "void**";
template <>
inline constexpr std::string_view type_name<unsigned char*> = "unsigned char*";
template <>
inline constexpr std::string_view type_name<unsigned short*> = "unsigned short*";
template <>
inline constexpr std::string_view type_name<unsigned int*> = "unsigned int*";
template <>
inline constexpr std::string_view type_name<v210FourWords*> = "v210FourWords*";

template <class Signature>
struct Types;
template <class Result, class... Parameters>
struct Types<Result (*)(Parameters...)> {
    static constexpr std::string_view result = type_name<Result>;
    static constexpr std::array<std::string_view, sizeof...(Parameters)> parameters = {type_name<Parameters>...};
};

// The declaration of each routine, by number.
template <RoutineId>
struct Declared;
#define TNTVT_ROUTINE(routine)                             \
    template <>                                            \
    struct Declared<RoutineId::routine> {                  \
        static constexpr auto function = &::routine;       \
        static constexpr std::string_view name = #routine; \
    };
#include "routines.def"
#undef TNTVT_ROUTINE

template <RoutineId id, auto& shape>
constexpr Routine record(const Facts& facts)
{
    using Types = catalog::Types<std::decay_t<decltype(Declared<id>::function)>>;
    return {facts,
            id,
            Declared<id>::name,
            &shape,
            shape.arguments,
            refusals::fits_in_memory<shape>,
            call<Declared<id>::function, shape>,
            Types::result,
            Types::parameters};
}

// The words of the records.
namespace records {
using namespace peers;
using enum InPlace;
}  // namespace records

}  // namespace tintvert::catalog
