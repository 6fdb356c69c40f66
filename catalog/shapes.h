// The calling shapes as lists of arguments, known while compiling.
#pragma once

#include <array>

#include "catalog.h"

namespace tintvert::catalog::shapes {

template <class... Args>
constexpr std::array<Arg, sizeof...(Args)> in_order(Args... arguments)
{
    return {arguments...};
}

using enum Arg;
#define TNTVT_SHAPE(name, ...) inline constexpr auto name = in_order(__VA_ARGS__);
#include "shapes.def"
#undef TNTVT_SHAPE

}  // namespace tintvert::catalog::shapes
