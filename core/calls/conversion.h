// One call of a routine over buffers that hold everything it touches.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "catalog.h"
#include "geometry.h"

namespace tintvert::tool {

class Conversion {
public:
    // Throws Failure (unsafe) for geometry that the routine must not be called with.
    Conversion(const catalog::Routine& routine, catalog::Arguments call);
    Conversion(Conversion&&) = default;  // the call points into the buffers, so it is moved and not copied

    // The buffers that pictures go into and come out of, in the order of the arguments.
    std::vector<std::span<uint8_t>> inputs();
    std::vector<std::span<uint8_t>> outputs();

    // The bytes behind a buffer's pointer, for what is no picture: a palette.
    std::span<uint8_t> bytes(catalog::Arg buffer, int64_t count);

    void clear();  // all buffers to 0, so that a frame depends on no frame before it
    void run();

private:
    struct Buffer {
        catalog::Arg argument;
        int64_t begin;  // of the bytes, counted from the pointer
        std::vector<uint8_t> bytes;
    };
    std::span<uint8_t> part(catalog::Arg argument, int64_t origin, int64_t count);

    const catalog::Routine* routine_;
    catalog::Arguments call_;
    std::vector<catalog::Content> contents_;
    std::vector<Buffer> buffers_;
};

}  // namespace tintvert::tool
