// Memory for the buffers of one call, as large as the catalogue says that the call needs.
#pragma once

#include <cstdint>
#include <vector>

#include "catalog.h"
#include "support/random.h"

namespace tintvert::test {

bool takes(const catalog::Routine& routine, catalog::Arg argument);

// From the lowest to the highest byte that a call accesses in one buffer, counted from the pointer.
catalog::Range accessed_in(const catalog::Extents& extents, catalog::Arg buffer);

// ... and the byte at the pointer, if there is any.
catalog::Range with_pointer(catalog::Range range);

// Random bytes around a pointer.
class CallBuffer {
public:
    CallBuffer(Random& random, catalog::Range range);

    uint8_t* pointer() { return bytes_.data() - range_.begin; }
    int64_t address() { return reinterpret_cast<int64_t>(pointer()); }
    const catalog::Range& range() const { return range_; }
    const std::vector<uint8_t>& bytes() const { return bytes_; }

    bool operator==(const CallBuffer& other) const { return bytes_ == other.bytes_; }

private:
    catalog::Range range_;
    std::vector<uint8_t> bytes_;
};

// A buffer for each pointer among the arguments of a routine, in their order. A run-length coded stream is copied from
// where the arguments have it.
class CallMemory {
public:
    struct Place {
        catalog::Arg argument;
        catalog::Range accessed, written;  // may be empty
        CallBuffer buffer;

        bool operator==(const Place& other) const { return buffer == other.buffer; }
    };

    // What the call accesses, its pointer and `margin` bytes on either side.
    CallMemory(Random& random, const catalog::Routine& routine, const catalog::Arguments& call, int64_t margin = 0);
    // The same bytes around every pointer.
    CallMemory(Random& random, const catalog::Routine& routine, const catalog::Arguments& call, catalog::Range range);

    std::vector<Place>& places() { return places_; }
    const std::vector<Place>& places() const { return places_; }
    void point(catalog::Arguments& call);  // its buffers to these

    bool operator==(const CallMemory&) const = default;

private:
    void copy_stream(const catalog::Routine& routine, const catalog::Arguments& call);

    std::vector<Place> places_;
};

}  // namespace tintvert::test
