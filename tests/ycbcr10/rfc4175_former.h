// A call of the routine that forms an RTP packet, with arguments that show in its header.
#pragma once

#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>

#include "v210_bytes.h"

namespace tintvert::test {

constexpr unsigned timestamp = 0xAABBCCDD, ssrc = 0x01020304;
constexpr unsigned short ext_seq = 0x5566;

struct Former {
    unsigned short seq = 0x1234;
    long packetSize = 1395;
    unsigned ignored = 0xDEADBEEF, outA = 7, outB = 9;

    void form(uint8_t* frame, unsigned width, unsigned height)
    {
        EXPECT_EQ(tntvt_v210_frame_to_rtp_4175(frame, packetSize, &seq, timestamp, ssrc, ext_seq, &ignored, width,
                                               height, &outA, &outB),
                  0);
        EXPECT_EQ(ignored, 0xDEADBEEF);
        EXPECT_EQ(outA, 0u);
        EXPECT_EQ(outB, 0u);
    }
};

inline size_t line_bytes(unsigned width) { return (width + 47) / 48 * 128; }

inline Bytes frame_of(unsigned width, unsigned height, uint8_t filling = 0)
{
    return Bytes(std::max<size_t>(1395, line_bytes(width) * height) + 64, filling);
}

inline Bytes part(const Bytes& bytes, size_t begin, size_t end)
{
    return Bytes(bytes.begin() + static_cast<long>(begin), bytes.begin() + static_cast<long>(end));
}

inline Bytes repeated(const Bytes& pgroup, int times)
{
    Bytes payload;
    for (int i = 0; i < times; ++i) payload.insert(payload.end(), pgroup.begin(), pgroup.end());
    return payload;
}

}  // namespace tintvert::test
