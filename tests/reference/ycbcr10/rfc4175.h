// Pgroups, `v210` fields and the routines between them, the reference implementation: one bit after the other, each
// sample read when its turn comes and each field stored alone.
#pragma once

#include <array>
#include <cstdint>

namespace tintvert::reference {

using Pgroup = std::array<unsigned, 4>;  // Cb, Y0, Cr, Y1, ten bits each

// Pgroup number `pgroup` of the `size` bytes from `bytes` on; bits from `size` on are 0.
Pgroup read_pgroup(const uint8_t* bytes, long size, long pgroup);
void write_pgroup(uint8_t* bytes, long size, long pgroup, const Pgroup& samples);

// The samples of a `v210` group that belong to its pixels 0 and 1 (`place` 0), 2 and 3, or 4 and 5.
Pgroup load_place(const uint8_t* group, int place);
void store_place(uint8_t* group, int place, const Pgroup& samples);

int payload_to_v210(uint8_t* dst, const uint8_t* payload, long payloadSize, long pgroupCount, long startPhase);
int packed_to_v210(uint8_t* dst, const uint8_t* src, uint32_t width, uint32_t height);

// `width` must be even. The two counts past the end of the frame's packets, both 0, are left to the caller.
int v210_frame_to_packet(uint8_t* packet, uint16_t* seq, uint32_t timestamp, uint32_t ssrc, uint16_t extSeq,
                         uint32_t width, uint32_t height);

}  // namespace tintvert::reference
