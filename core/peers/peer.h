// What independent programs and libraries make of a frame.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "samples.h"

namespace tintvert::core {

struct PeerQuestion {
    std::string_view peer, asked;
    std::string_view from, to;   // layouts
    std::vector<uint8_t> frame;  // planes one after the other, lines without slack
    int64_t width, height;

    std::vector<catalog::PlacedPlane> planes(std::string_view layout) const;
};

struct PeerAnswer {
    std::optional<std::vector<uint8_t>> frame = {};
    std::string why_none = {};
};

PeerAnswer answer_of_program(const PeerQuestion& question);  // FFmpeg or GStreamer
PeerAnswer answer_of_oiiotool(const PeerQuestion& question);
PeerAnswer answer_of_libyuv(const PeerQuestion& question);
PeerAnswer answer_of_zimg(const PeerQuestion& question);

// Whether built with them.
bool has_libyuv();
bool has_zimg();

}  // namespace tintvert::core
