#include "measured.h"

#include <algorithm>

#include "geometry.h"

namespace tintvert::bench {

using namespace catalog;

namespace {

// What works on one line gets the picture as one.
Geometry geometry_of(const Routine& routine, const Size& picture)
{
    if (std::ranges::find(routine.arguments, Arg::height) != routine.arguments.end())
        return {picture.width, picture.height};
    return {picture.width * picture.height, 1};
}

}  // namespace

Measured::Measured(const Routine& routine, const Size& picture)
    : call(plain_call(routine, geometry_of(routine, picture))), size(picture)
{
    for (const Touch& touch : routine.extents(call)) {
        const Range read = touch.read, written = touch.written;
        const int64_t begin = std::min({int64_t{0}, read.begin, written.begin});
        const int64_t end = std::max({int64_t{0}, read.end, written.end});
        auto& buffer = buffers_.emplace_back(static_cast<size_t>(end - begin));
        for (size_t i = 0; i < buffer.size(); ++i) buffer[i] = static_cast<uint8_t>(i * 167 >> 3);
        call[touch.buffer] = reinterpret_cast<int64_t>(buffer.data() - begin);
        if (!read.empty()) moved += read.end - read.begin;
        if (!written.empty()) moved += written.end - written.begin;
    }
}

}  // namespace tintvert::bench
