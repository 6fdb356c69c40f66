// A `v210` frame that is filled segment by segment and knows what is still missing.
#pragma once

#include <vector>

#include "capture/packets/payload.h"

namespace tintvert::core::capture {

struct FrameSize {
    long width = 0, height = 0;  // of whole pairs

    long pairs() const { return width / 2; }
    long line_bytes() const { return (width + 47) / 48 * 128; }
};

class Frame {
public:
    explicit Frame(FrameSize size);

    // All samples and the padding 0, nothing there.
    void clear();

    // The samples of a segment into line `y`, unless it is refused or does not fit.
    Refusal store(const Segment& segment, long y);

    const FrameSize& size() const { return size_; }
    const std::vector<uint8_t>& bytes() const { return bytes_; }
    bool has_pair(long pair, long y) const { return there_[static_cast<size_t>(y * size_.pairs() + pair)]; }
    bool is_whole() const { return missing_pairs_ == 0; }
    long missing_pixels() const { return missing_pairs_ * 2; }
    long whole_lines() const;

private:
    FrameSize size_;
    std::vector<uint8_t> bytes_;
    std::vector<bool> there_;  // pair after pair
    long missing_pairs_ = 0;
};

}  // namespace tintvert::core::capture
