// A `v210` frame to RTP packets with the RFC 4175 payload header, each formed over the head of the frame.
#include <tintvert/ycbcr10.h>

#include <algorithm>
#include <cstdlib>

#include "ycbcr10/pgroup.h"
#include "ycbcr10/rfc4175_packet_simd.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

constexpr uint32_t packet_pixels = 550;
constexpr long header_bytes = 20, packet_bytes = 1395;

struct Stream {
    uint32_t sequence, timestamp, ssrc;
    uint16_t extended_sequence;
};

void put_16(uint8_t* at, uint32_t value)
{
    at[0] = static_cast<uint8_t>(value >> 8);
    at[1] = static_cast<uint8_t>(value);
}

void put_32(uint8_t* at, uint32_t value)
{
    put_16(at, value >> 16);
    put_16(at + 2, value);
}

// Bits 8 to 14 are added to what the byte holds, so the flag above them and bits of earlier values stay.
// QUIRK (keeps_or_of_high_bits): the high bits of line numbers pile up from line to line.
void put_15(uint8_t* at, uint32_t value)
{
    at[0] = static_cast<uint8_t>(at[0] | (value >> 8 & 0x7F));
    at[1] = static_cast<uint8_t>(value);
}

// QUIRK (keeps_fixed_length_224): the length field does not follow from what the payload holds.
void stamp_header(uint8_t* packet, const Stream& stream, uint32_t line_number, uint32_t start, uint32_t width)
{
    packet[0] = 0x90;  // version 2, extension
    packet[1] = 0x60;  // no marker, payload type 96
    put_16(packet + 2, stream.sequence);
    put_32(packet + 4, stream.timestamp);
    put_32(packet + 8, stream.ssrc);
    put_16(packet + 12, stream.extended_sequence);
    put_16(packet + 14, start + packet_pixels < width ? 1375 : 224);
    put_15(packet + 16, line_number);
    put_15(packet + 18, start);
}

Pgroup load_pgroup(const uint8_t* group, uint32_t position)
{
    const auto sample = [&](uint32_t n) { return v210_sample(group, position / 2 * 4 + n); };
    return {sample(0), sample(1), sample(2), sample(3)};
}

// A payload for an even `width`, which reads bytes 0 to 5 of `line`, all pixels of it in one packet. Past the 275th
// pgroup nothing is stored. Returns whether the order of loads and stores left it to be filled at once.
bool fill_payload(InstructionSet level, uint8_t* payload, const uint8_t* line, uint32_t width)
{
    const long count = std::min(packet_pixels, width) / 2;
    return run_simd<RepeatPgroup>(level, {{payload, 5 * count}}, {{line, 6}}, payload, load_pgroup(line, 0), count) > 0;
}

// One packet; returns the pixel that it ended before.
// QUIRK (keeps_place_in_line): every pass reads the same pair of pixels, the packet's first.
// QUIRK (keeps_endless_odd_width): `width` less `pixel` steps over 0 for an odd `width`, and the passes
// never end.
uint32_t form_packet(InstructionSet level, BitCursor* bits, uint8_t* packet, const uint8_t* line, uint32_t start,
                     uint32_t width)
{
    if (start == 0 && width % 2 == 0 && fill_payload(level, packet + header_bytes, line, width)) return width;
    restart(bits, packet + header_bytes, packet + packet_bytes);
    const uint8_t* const group = line + start / 6 * 16;
    uint32_t pixel = start;
    for (; start < std::min(packet_pixels, width - pixel); pixel += 2)
        write_pgroup(bits, load_pgroup(group, start % 6));
    return pixel;
}

void form_line(InstructionSet level, BitCursor* bits, uint8_t* packet, const uint8_t* line, Stream& stream,
               uint32_t line_number, uint32_t width)
{
    uint32_t start = 0;
    do {
        stamp_header(packet, stream, line_number, start, width);
        ++stream.sequence;
        start = form_packet(level, bits, packet, line, start, width) + packet_pixels;
    } while (start < width);
}

}  // namespace

// QUIRK (keeps_header_over_line_0): the header is stamped before the samples are read, so those of line
// 0 are header bytes, and lines that start below byte 1395 are read as earlier packets left them.
int tntvt_v210_frame_to_rtp_4175(void* packet, long packetSize, unsigned short* seq, unsigned int timestamp,
                                 unsigned int ssrc, unsigned short extSeq, unsigned int*, unsigned int width,
                                 unsigned int height, unsigned int* outA, unsigned int* outB)
{
    uint8_t* const frame = bytes(packet);
    const uint32_t line_bytes = v210_line_of_48(width);
    const InstructionSet level = instruction_set();
    BitCursor* bits = obtain_bit_cursor();
    restart(bits, frame, advance(frame, packetSize));
    Stream stream{load<uint16_t>(seq), timestamp, ssrc, extSeq};
    for (uint32_t y = 0; y < height && width != 0; ++y)
        form_line(level, bits, frame, frame + y * line_bytes, stream, y + 1, width);
    frame[1] |= 0x80;  // the marker of the last packet
    store(seq, static_cast<uint16_t>(stream.sequence));
    store(outA, uint32_t{0});
    store(outB, uint32_t{0});
    std::free(bits);
    return 0;
}
