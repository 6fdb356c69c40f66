// Packets back into the order in which they were sent.
#pragma once

#include <bitset>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "capture/packets/bytes.h"

namespace tintvert::core::capture {

struct OrderCounts {
    uint64_t missing = 0;    // sequence numbers that no packet came for in time
    uint64_t reordered = 0;  // came after a higher number, and went back to their place
    uint64_t late = 0;       // came when their place was already passed, and were left out
    uint64_t duplicate = 0;
    uint64_t stray = 0;     // a number 3000 or more away that the next packet did not go on from
    uint64_t restarts = 0;  // jumps of that size that the next packet confirmed
};

// Holds packets back until all before them are there, or 512 more than fit have come. The number is the 32-bit
// one; a sender that leaves its upper half alone is followed over the wrap by the lower.
class Order {
public:
    // `follows`: the packet before it was the last to be delivered.
    using Deliver = std::function<void(Bytes packet, size_t size, bool follows)>;

    Order(OrderCounts& counts, Deliver deliver) : counts_(counts), deliver_(std::move(deliver)) {}

    void take(uint32_t number, Bytes packet, size_t size);
    void finish();

private:
    struct Packet {
        std::vector<uint8_t> bytes;
        size_t size;
    };
    struct Stray {
        uint32_t number;
        Packet packet;
    };

    static constexpr int64_t far = 3000;
    static constexpr size_t depth = 512, remembered = 4096;

    int64_t distance(uint32_t number) const;
    void start_at(int64_t number);
    void restart(uint32_t number, Bytes packet, size_t size);
    void place(int64_t number, Bytes packet, size_t size);
    void release(size_t most_held);
    auto seen(int64_t number) { return seen_[static_cast<size_t>(number) % remembered]; }

    OrderCounts& counts_;
    Deliver deliver_;
    std::bitset<remembered> seen_;  // of the numbers up to `highest_`
    std::map<int64_t, Packet> held_;
    std::optional<Stray> stray_;
    bool has_begun_ = false, is_released_ = false;
    int64_t first_ = 0, highest_ = 0;
    int64_t next_ = 0;  // to be delivered, once the first has been
};

}  // namespace tintvert::core::capture
