// The bytes of one fuzz case, taken as numbers from the front. Past the end there are zeros.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tintvert::fuzz {

class Input {
public:
    Input(const uint8_t* data, size_t size) : left_(data, size) {}

    uint8_t byte()
    {
        if (left_.empty()) return 0;
        const uint8_t first = left_.front();
        left_ = left_.subspan(1);
        return first;
    }
    int64_t little_endian(int bytes)
    {
        uint64_t value = 0;
        for (int i = 0; i < bytes; ++i) value |= uint64_t{byte()} << 8 * i;
        return static_cast<int64_t>(value);
    }
    std::span<const uint8_t> rest() const { return left_; }

private:
    std::span<const uint8_t> left_;
};

// A number for any argument: small, a distance between lines, on the edge of a type, or anything at all.
int64_t any_number(Input& input);

}  // namespace tintvert::fuzz
