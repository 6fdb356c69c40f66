// What other software offers for the work of a routine. A peer that is not installed offers nothing.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "measured.h"

namespace tintvert::bench {

struct Peer {
    std::string name;
    std::function<void()> work;  // over the same buffers
};

void offer_libyuv(const catalog::Routine& routine, const Measured& measured, std::vector<Peer>* peers);
void offer_libav(const catalog::Routine& routine, const Measured& measured, std::vector<Peer>* peers);
void offer_gstreamer(const catalog::Routine& routine, const Measured& measured, std::vector<Peer>* peers);

inline std::vector<Peer> peers_of(const catalog::Routine& routine, const Measured& measured)
{
    std::vector<Peer> peers;
    if (routine.shape->name == "strided_crossed") return peers;  // its pointers stand behind their frames' first bytes
    offer_libyuv(routine, measured, &peers);
    offer_libav(routine, measured, &peers);
    offer_gstreamer(routine, measured, &peers);
    return peers;
}

}  // namespace tintvert::bench
