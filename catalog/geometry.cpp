#include "geometry.h"

#include "layouts.h"

namespace tintvert::catalog {
namespace {

int64_t line_of(std::string_view layout, int64_t width)
{
    const Layout* found = find_layout(layout);
    return found == nullptr ? 0 : found->line_bytes(width);
}

}  // namespace

Arguments plain_call(const Routine& routine, int64_t width, int64_t height)
{
    Arguments call;
    call[Arg::width] = width;
    call[Arg::height] = height;
    call[Arg::pixels] = width * height;
    call[Arg::dstStride] = line_of(routine.to, width);
    call[Arg::srcStride] = line_of(routine.from, width);
    call[Arg::scale] = 1;
    call[Arg::bgra] = 1;
    return call;
}

}  // namespace tintvert::catalog
