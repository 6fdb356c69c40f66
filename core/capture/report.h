// What came of a capture.
#pragma once

#include <string>

#include "capture/walker.h"

namespace tintvert::core::capture {

struct FrameCounts {
    uint64_t whole = 0, incomplete = 0, written = 0;
    uint64_t whole_lines = 0, broken_lines = 0, missing_pixels = 0;
};

struct Report {
    std::string file, format;
    bool ends_early = false;
    uint64_t skipped = 0, fragments = 0;
    FrameSize size{};
    Scan scan = Scan::progressive;
    std::optional<Stream> stream{};
    PacketCounts packets{};
    SegmentCounts segments{};
    FrameCounts frames{};
    std::string missing_picture;      // the file, if one was written
    uint64_t missing_picture_of = 0;  // the frame, from 1

    // Every packet came, whole and readable, and filled every frame.
    bool is_complete() const;
};

}  // namespace tintvert::core::capture
