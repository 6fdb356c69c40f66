// Memory of just so many bytes, so that the address sanitizer sees one touched beside them, with a copy of what it
// held before the call.
#pragma once

#include <tintvert/checked.h>

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "catalog.h"

namespace tintvert::fuzz {

class Block {
public:
    // Bytes [begin, end) from its pointer, `lead` bytes after an aligned address; filled with `pattern` repeated.
    Block(catalog::Range range, size_t lead, std::span<const uint8_t> pattern);

    // The same memory with another pointer, `offset` bytes from this block's own.
    checked::Buffer buffer(int64_t offset = 0) const;

    // Whether all bytes are as before but those of `written`, counted from the pointer.
    bool is_unchanged_beside(std::span<const catalog::Range> written) const;

    const uint8_t* bytes() const { return memory_.get() + lead_; }
    const catalog::Range& range() const { return range_; }

private:
    catalog::Range range_;
    size_t lead_, size_;
    std::unique_ptr<uint8_t[]> memory_;
    std::vector<uint8_t> before_;  // with the lead
};

}  // namespace tintvert::fuzz
