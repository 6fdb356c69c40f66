#include "capture/order.h"

#include <cstdlib>
#include <utility>

namespace tintvert::core::capture {

void Order::take(uint32_t number, Bytes packet, size_t size)
{
    if (!has_begun_) start_at(number);
    const int64_t step = distance(number);
    if (std::abs(step) < far) {
        if (stray_) ++counts_.stray;
        stray_.reset();
        place(highest_ + step, packet, size);
    } else if (stray_ && number == stray_->number + 1) {
        restart(number, packet, size);
    } else {
        if (stray_) ++counts_.stray;
        stray_ = Stray{number, {{packet.begin(), packet.end()}, size}};
    }
}

void Order::finish()
{
    if (stray_) ++counts_.stray;
    stray_.reset();
    release(0);
}

// A large step back is not one that a packet takes on its way; then the upper half is not counted, and the
// lower half decides.
int64_t Order::distance(uint32_t number) const
{
    const uint32_t highest = static_cast<uint32_t>(highest_);
    const int32_t step = static_cast<int32_t>(number - highest);
    return step >= -32768 ? step : static_cast<int16_t>(number - highest);
}

// As if the number before had come already.
void Order::start_at(int64_t number)
{
    has_begun_ = true;
    is_released_ = false;
    seen_.reset();
    first_ = number;
    highest_ = number - 1;
}

// Two packets in a row agree on where the sender is now.
void Order::restart(uint32_t number, Bytes packet, size_t size)
{
    const Stray stray = std::move(*stray_);
    stray_.reset();
    release(0);
    ++counts_.restarts;
    const int64_t step = distance(stray.number);
    if (step > 0) counts_.missing += static_cast<uint64_t>(step - 1);
    start_at(stray.number);
    place(stray.number, stray.packet.bytes, stray.packet.size);
    place(number, packet, size);
}

void Order::place(int64_t number, Bytes packet, size_t size)
{
    if (number > highest_) {
        counts_.missing += static_cast<uint64_t>(number - highest_ - 1);
        while (highest_ < number) seen(++highest_) = false;
    } else if (seen(number)) {
        ++counts_.duplicate;
        return;
    } else if (is_released_ && number < next_) {
        seen(number) = true;
        ++counts_.late;
        return;
    } else {
        ++counts_.reordered;
        if (number < first_)
            counts_.missing += static_cast<uint64_t>(first_ - number - 1);
        else
            --counts_.missing;
    }
    if (number < first_) first_ = number;
    seen(number) = true;
    if (is_released_ && number == next_ && held_.empty()) {
        ++next_;
        deliver_(packet, size, true);
        return;
    }
    held_.emplace(number, Packet{{packet.begin(), packet.end()}, size});
    release(depth);
}

void Order::release(size_t most_held)
{
    while (!held_.empty() && (held_.size() > most_held || (is_released_ && held_.begin()->first == next_))) {
        const auto node = held_.extract(held_.begin());
        const bool follows = is_released_ && node.key() == next_;
        is_released_ = true;
        next_ = node.key() + 1;
        deliver_(node.mapped().bytes, node.mapped().size, follows);
    }
}

}  // namespace tintvert::core::capture
