// One call of a routine over buffers of its own, and what the peers see of it.
#pragma once

#include <cstdint>
#include <vector>

#include "catalog.h"
#include "placed.h"

namespace tintvert::bench {

struct Size {
    const char* name;
    int64_t width, height;
};
inline constexpr Size sizes[] = {{"slice", 1920, 16}, {"frame", 1920, 1080}};

// The buffers are filled with a pattern that has every byte value.
struct Measured {
    catalog::Arguments call;
    Size size;
    int64_t moved = 0;  // bytes read and written

    Measured(const catalog::Routine& routine, const Size& size);

    uint8_t* buffer(catalog::Arg argument) const { return call.as<uint8_t*>(argument); }

private:
    std::vector<uint8_t> stream_;
    std::vector<Placed> buffers_;
};

}  // namespace tintvert::bench
