// Random calls of any routine of the catalogue, and the buffers of a call.
#pragma once

#include <cstdint>
#include <vector>

#include "catalog.h"
#include "support/random.h"

namespace tintvert::test {

// Numbers that no rule refuses: small pictures, tight lines about every second time, negative numbers where
// the routine has signed ones. A run-length coded stream of one run and an end stands at `src` and stays there.
catalog::Arguments random_call(Random& random, const catalog::Routine& routine);

bool takes(const catalog::Routine& routine, catalog::Arg argument);

// Whatever `extents` tell of one buffer: from the lowest to the highest byte, and the pointer.
catalog::Range touched_in(const catalog::Extents& extents, catalog::Arg buffer);

// Memory around a pointer.
class Memory {
public:
    Memory(Random& random, catalog::Range range);

    uint8_t* pointer() { return bytes_.data() - range_.begin; }
    int64_t address() { return reinterpret_cast<int64_t>(pointer()); }
    const catalog::Range& range() const { return range_; }
    const std::vector<uint8_t>& bytes() const { return bytes_; }

private:
    catalog::Range range_;
    std::vector<uint8_t> bytes_;
};

}  // namespace tintvert::test
