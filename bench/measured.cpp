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

// A picture of run-length coded lines, eight pixels a run.
std::vector<uint8_t> coded_picture(const Size& picture)
{
    std::vector<uint8_t> stream;
    for (int64_t line = 0; line < picture.height; ++line) {
        for (int64_t x = 0; x < picture.width; x += 8) {
            stream.push_back(8);
            stream.push_back(static_cast<uint8_t>(x + line));
        }
        stream.insert(stream.end(), {0, 0});
    }
    stream.insert(stream.end(), {0, 1});
    return stream;
}

}  // namespace

Measured::Measured(const Routine& routine, const Size& picture)
    : call(plain_call(routine, geometry_of(routine, picture))), size(picture)
{
    const bool coded = routine.from->name == "rle8";
    if (coded) {
        stream_ = coded_picture(picture);
        call[Arg::src] = reinterpret_cast<int64_t>(stream_.data());
        call[Arg::streamSize] = static_cast<int64_t>(stream_.size());
    }
    for (const Touch& touch : routine.extents(call)) {
        const Range read = touch.read, written = touch.written;
        if (!read.empty()) moved += read.end - read.begin;
        if (!written.empty()) moved += written.end - written.begin;
        if (coded && touch.buffer == Arg::src) continue;
        const int64_t begin = std::min({int64_t{0}, read.begin, written.begin});
        const int64_t end = std::max({int64_t{0}, read.end, written.end});
        const Placed& buffer = buffers_.emplace_back(begin, end, static_cast<int64_t>(buffers_.size()));
        call[touch.buffer] = buffer.address();
    }
}

}  // namespace tintvert::bench
