#include "geometry.h"

#include <algorithm>

#include "shapes.h"

namespace tintvert::catalog {
namespace {

// The class code under which a dissolve takes frames of a layout.
int64_t fourcc_of(const Layout& layout)
{
    const std::string_view code = &layout == &layout::v210 ? "v210" : layout.line_bytes(2) == 4 ? "2vuy" : "BGRA";
    int64_t result = 0;
    for (size_t i = 0; i < 4; ++i) result |= static_cast<int64_t>(code[i]) << (8 * i);
    return result;
}

}  // namespace

Arguments plain_arguments(const Routine& routine, const Geometry& geometry)
{
    const int64_t width = geometry.width, height = geometry.height;
    const bool any_layout = routine.from == &layout::none;
    const Layout* const chosen = find_layout(geometry.layout);
    const Layout& from = any_layout && chosen != nullptr ? *chosen : *routine.from;
    const Layout& to = any_layout && chosen != nullptr ? *chosen : *routine.to;
    Arguments call;
    call[Arg::width] = width;
    call[Arg::height] = height;
    call[Arg::pixels] = width * height;
    call[Arg::scale] = geometry.scale;
    call[Arg::dstStride] =
        to.line_bytes(routine.takes(Arg::scale) ? width / std::max<int64_t>(geometry.scale, 1) : width);
    call[Arg::srcStride] = from.line_bytes(width);
    call[Arg::stride] = any_layout ? from.line_bytes(width) : width * 2;
    call[Arg::fieldStride] = call[Arg::stride];
    call[Arg::count] = width * height;
    call[Arg::groups] = width / 2;
    call[Arg::total] = width / 2 * height;
    call[Arg::srcPitch] = call[Arg::dstPitch] = width;
    call[Arg::bytes] = width * height * 2;
    call[Arg::bits] = 16;
    call[Arg::order] = 2;
    call[Arg::alpha] = 255;
    call[Arg::swapBytes] = 1;
    call[Arg::mode] = 1;
    call[Arg::bgra] = call[Arg::bgraOrder] = call[Arg::hasAlpha] = 1;
    call[Arg::fourcc] = fourcc_of(from);
    // Buffers that differ from each other and from null.
    for (const Arg argument : routine.arguments)
        if (describe(argument).kind == Argument::buffer) call[argument] = static_cast<int64_t>(argument) + 1;
    call[Arg::payloadSize] = layout::pgroups.line_bytes(width);
    call[Arg::pgroupCount] = width / 2;
    return call;
}

Arguments plain_call(const Routine& routine, const Geometry& geometry)
{
    return routine.shape->plain(routine, geometry);
}

std::vector<Content> contents(const Routine& routine, const Arguments& call)
{
    std::vector<Content> result;
    for (const PictureBuffer& picture : routine.shape->pictures) {
        const int64_t bytes = picture.bytes(routine, call);
        if (bytes < 1) continue;
        Content content{picture.buffer, false, false, 0, bytes};
        for (const Touch& touch : routine.extents(call)) {
            if (touch.buffer != picture.buffer) continue;
            content.in = touch.buffer == Arg::dst ? routine.shape->works_on_dst : !touch.read.empty();
            content.out = !touch.written.empty();
            if (picture.origin != nullptr) content.origin = picture.origin(call);
        }
        if (content.in || content.out) result.push_back(content);
    }
    return result;
}

}  // namespace tintvert::catalog
