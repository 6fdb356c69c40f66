// Memory whose pointer is on a cache line, as frames of video do, and elsewhere within its page than other memory:
// a load waits for a store before it to an address that is equal modulo 4096.
#pragma once

#include <cstdint>
#include <vector>

namespace tintvert::bench {

class Placed {
public:
    // The bytes from `begin`, which is 0 or less, to `end`.
    Placed(int64_t begin, int64_t end, int64_t place) : bytes_(static_cast<size_t>(end - begin + 2 * page))
    {
        for (size_t i = 0; i < bytes_.size(); ++i) bytes_[i] = static_cast<uint8_t>(i * 167 >> 3);
        const int64_t first = reinterpret_cast<int64_t>(bytes_.data()) - begin;
        address_ = (first + page - 1) / page * page + place * apart % page;
    }

    int64_t address() const { return address_; }
    uint8_t* pointer() const { return reinterpret_cast<uint8_t*>(address_); }

private:
    static constexpr int64_t page = 4096, apart = 21 * 64;
    std::vector<uint8_t> bytes_;
    int64_t address_ = 0;
};

}  // namespace tintvert::bench
