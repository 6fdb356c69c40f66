#include "geometry.h"

#include <algorithm>

namespace tintvert::catalog {
namespace {

int64_t line_of(std::string_view layout, int64_t width)
{
    const Layout* found = find_layout(layout);
    return found == nullptr ? 0 : found->line_bytes(width);
}

int64_t frame_of(std::string_view layout, int64_t width, int64_t height)
{
    const Layout* found = find_layout(layout);
    return found == nullptr ? 0 : frame_bytes(*found, width, height);
}

// The class code under which a dissolve takes frames of a layout.
int64_t fourcc_of(std::string_view layout)
{
    const std::string_view code = layout == "v210" ? "v210" : line_of(layout, 2) == 4 ? "2vuy" : "BGRA";
    int64_t result = 0;
    for (size_t i = 0; i < 4; ++i) result |= static_cast<int64_t>(code[i]) << (8 * i);
    return result;
}

bool takes(const Routine& routine, Arg argument)
{
    return std::ranges::find(routine.arguments, argument) != routine.arguments.end();
}

bool any_layout(const Routine& routine) { return routine.from == "none"; }

// The bytes of one buffer. `lines` are those of the result where the routine reduces.
int64_t bytes_of(const Routine& routine, const Arguments& call, Arg buffer)
{
    const int64_t width = call[Arg::width], height = std::abs(call[Arg::height]);
    const int64_t scale = std::max<int64_t>(call[Arg::scale], 1);
    const bool planes = takes(routine, Arg::count), pitches = takes(routine, Arg::srcPitch);
    switch (buffer) {
        case Arg::src:
            if (routine.shape == "run_to_rgb") return (width * height + 5) / 6 * 16;
            if (planes) return call[Arg::count] / 2 * 4;
            if (pitches) return call[Arg::srcPitch] * 2 * height;
            if (takes(routine, Arg::pixels)) return line_of(routine.from, call[Arg::pixels]);
            if (takes(routine, Arg::palette)) return call[Arg::streamSize];
            if (takes(routine, Arg::srcStride) && routine.from != "i420" && routine.from != "yv12")
                return std::abs(call[Arg::srcStride]) * height;
            if (any_layout(routine)) return call[Arg::stride] * height;
            if (takes(routine, Arg::stride) && routine.from == "2vuy") return call[Arg::stride] * height;
            if (!takes(routine, Arg::height)) return line_of(routine.from, width);
            return frame_of(routine.from, width, height);
        case Arg::dst:
            if (planes) return call[Arg::count] / 2 * 4;
            if (takes(routine, Arg::groups)) return call[Arg::total] * 4;
            if (takes(routine, Arg::pixels)) return line_of(routine.to, call[Arg::pixels]);
            if (takes(routine, Arg::payload)) return line_of("v210", width);
            if (routine.shape == "coded_tight") return line_of(routine.to, width) * height;
            if (takes(routine, Arg::dstStride)) return std::abs(call[Arg::dstStride]) * (height / scale);
            if (any_layout(routine)) return call[Arg::stride] * height;
            if (takes(routine, Arg::stride) && routine.to == "2vuy") return call[Arg::stride] * height;
            if (!takes(routine, Arg::height)) return line_of(routine.to, width);
            return frame_of(routine.to, width, height);
        case Arg::y:
            return planes ? call[Arg::count] / 2 * 2 : call[Arg::dstPitch] * height;
        case Arg::cb:
        case Arg::cr:
            return planes ? call[Arg::count] / 2 : call[Arg::dstPitch] / 2 * ((height + 1) / 2);
        case Arg::y1:
        case Arg::y2:
            return call[Arg::total] / 2 * 2;
        case Arg::cb1:
        case Arg::cr1:
        case Arg::cb2:
        case Arg::cr2:
            return call[Arg::total] / 2;
        case Arg::firstField:
            return call[Arg::fieldStride] * ((height + 1) / 2);
        case Arg::secondField:
            return call[Arg::fieldStride] * (height / 2);
        case Arg::packet:
            return std::max<int64_t>(line_of("v210", width) * height, 1395);
        case Arg::payload:
            return call[Arg::payloadSize];
        case Arg::palette:
            return 256 * (routine.to == "rgb24" ? 3 : 4);
        case Arg::buf:
        case Arg::buffer:
            return call[Arg::bytes];
        default:
            return 0;
    }
}

// A destination that the routine works on rather than fills.
bool works_on_destination(const Routine& routine)
{
    return routine.shape == "dissolve" || routine.shape == "alpha_set" || routine.shape == "field_change";
}

}  // namespace

Arguments plain_call(const Routine& routine, const Geometry& geometry)
{
    const int64_t width = geometry.width, height = geometry.height,
                  reduced = width / std::max<int64_t>(geometry.scale, 1);
    const std::string_view from = any_layout(routine) ? geometry.layout : routine.from;
    const std::string_view to = any_layout(routine) ? geometry.layout : routine.to;
    Arguments call;
    call[Arg::width] = width;
    call[Arg::height] = height;
    call[Arg::pixels] = width * height;
    call[Arg::scale] = geometry.scale;
    call[Arg::dstStride] = line_of(to, takes(routine, Arg::scale) ? reduced : width);
    call[Arg::srcStride] = line_of(from, width);
    call[Arg::stride] = any_layout(routine) ? line_of(from, width) : width * 2;
    call[Arg::fieldStride] = call[Arg::stride];
    if (routine.shape == "comb_repair") call[Arg::width] = call[Arg::stride] / 8;  // elements of 8 bytes
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
    call[Arg::payloadSize] = line_of("pgroups", width);
    call[Arg::pgroupCount] = width / 2;
    return call;
}

std::vector<Content> contents(const Routine& routine, const Arguments& call)
{
    std::vector<Content> result;
    for (const Arg argument : routine.arguments) {
        if (describe(argument).kind != Argument::buffer) continue;
        const int64_t bytes = bytes_of(routine, call, argument);
        if (bytes < 1) continue;
        Content content{argument, false, false, 0, bytes};
        for (const Touch& touch : routine.extents(call)) {
            if (touch.buffer != argument) continue;
            content.in = argument == Arg::dst ? works_on_destination(routine) : !touch.read.empty();
            content.out = !touch.written.empty();
            // Each pointer stands one line behind its frame's first byte.
            if (routine.shape == "strided_crossed")
                content.origin = argument == Arg::dst ? -call[Arg::dstStride] : -call[Arg::srcStride];
        }
        if (content.in || content.out) result.push_back(content);
    }
    return result;
}

}  // namespace tintvert::catalog
