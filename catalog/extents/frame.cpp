#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

constexpr Range pointer{0, sizeof(void*)};

}  // namespace

Extents untouched(const Arguments&) { return {}; }

Extents scratch_new(const Arguments&)
{
    Extents result;
    result.add(Arg::raw, {}, pointer);
    result.add(Arg::aligned, {}, pointer);
    return result;
}

Extents scratch_free(const Arguments&)
{
    Extents result;
    result.add(Arg::raw, pointer, pointer);
    result.add(Arg::aligned, {}, pointer);
    return result;
}

}  // namespace tintvert::catalog::extents
