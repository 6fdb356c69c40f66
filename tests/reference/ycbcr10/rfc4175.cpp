#include "reference/ycbcr10/rfc4175.h"

#include <algorithm>

namespace tintvert::reference {
namespace {

// The twelve samples of a group are three a word, from its lowest bit up, so that sample s begins at bit
// 32 * (s / 3) + 10 * (s % 3) of the group; bit n of the group is bit n % 8 of byte n / 8.
int first_bit(int sample) { return 32 * (sample / 3) + 10 * (sample % 3); }

void set_bit(uint8_t* bytes, long number, bool value)
{
    const int mask = 1 << number % 8;
    bytes[number / 8] = static_cast<uint8_t>(value ? bytes[number / 8] | mask : bytes[number / 8] & ~mask);
}

void clear_bits_30_and_31(uint8_t* group, int word) { group[4 * word + 3] &= 0x3F; }

uint32_t v210_line(uint32_t width) { return (width + 47) / 48 * 48 * 8 / 3; }

void big_endian(uint8_t* bytes, int count, uint32_t value)
{
    for (int i = 0; i < count; ++i) bytes[i] = static_cast<uint8_t>(value >> 8 * (count - 1 - i));
}

void stamp_header(uint8_t* packet, uint32_t counter, uint32_t timestamp, uint32_t ssrc, uint16_t extSeq, uint32_t width,
                  uint32_t line, uint32_t start)
{
    packet[0] = 0x90;
    packet[1] = 0x60;
    big_endian(packet + 2, 2, counter);
    big_endian(packet + 4, 4, timestamp);
    big_endian(packet + 8, 4, ssrc);
    big_endian(packet + 12, 2, extSeq);
    big_endian(packet + 14, 2, start + 550 < width ? 1375 : 224);
    packet[16] = static_cast<uint8_t>(packet[16] | (line >> 8 & 0x7F));
    packet[17] = static_cast<uint8_t>(line);
    packet[18] = static_cast<uint8_t>(packet[18] | (start >> 8 & 0x7F));
    packet[19] = static_cast<uint8_t>(start);
}

}  // namespace

Pgroup read_pgroup(const uint8_t* bytes, long size, long pgroup)
{
    Pgroup samples = {};
    for (long i = 0; i < 40; ++i) {
        const long bit = 40 * pgroup + i;
        const bool value = bit / 8 < size && (bytes[bit / 8] >> (7 - bit % 8) & 1) != 0;
        unsigned& sample = samples[static_cast<size_t>(i / 10)];
        sample = sample * 2 + (value ? 1 : 0);
    }
    return samples;
}

void write_pgroup(uint8_t* bytes, long size, long pgroup, const Pgroup& samples)
{
    for (long i = 0; i < 40; ++i) {
        const long bit = 40 * pgroup + i;
        const bool value = (samples[static_cast<size_t>(i / 10)] >> (9 - i % 10) & 1) != 0;
        if (bit / 8 < size) set_bit(bytes, bit / 8 * 8 + 7 - bit % 8, value);
    }
}

Pgroup load_place(const uint8_t* group, int place)
{
    Pgroup samples = {};
    for (int sample = 0; sample < 4; ++sample) {
        for (int bit = 9; bit >= 0; --bit) {
            const int number = first_bit(4 * place + sample) + bit;
            unsigned& value = samples[static_cast<size_t>(sample)];
            value = value * 2 + (group[number / 8] >> number % 8 & 1);
        }
    }
    return samples;
}

// Of the words that a pgroup stores into, all but word 1 under pgroup 0 lose their bits 30 and 31.
void store_place(uint8_t* group, int place, const Pgroup& samples)
{
    for (int sample = 0; sample < 4; ++sample)
        for (int bit = 0; bit < 10; ++bit)
            set_bit(group, first_bit(4 * place + sample) + bit, (samples[static_cast<size_t>(sample)] >> bit & 1) != 0);
    if (place == 0) clear_bits_30_and_31(group, 0);
    if (place == 1) clear_bits_30_and_31(group, 1);
    if (place >= 1) clear_bits_30_and_31(group, 2);
    if (place == 2) clear_bits_30_and_31(group, 3);
}

int payload_to_v210(uint8_t* dst, const uint8_t* payload, long payloadSize, long pgroupCount, long startPhase)
{
    long next = 0;
    const auto unpack = [&](int place) { store_place(dst, place, read_pgroup(payload, payloadSize, next++)); };
    if (startPhase == 2) unpack(1);
    if (startPhase == 2 || startPhase == 4) {
        unpack(2);
        dst += 16;
    }
    for (long count = 0; count < pgroupCount; ++count) {
        const int place = static_cast<int>(count % 3);
        unpack(place);
        if (place == 2) dst += 16;
    }
    return 0;
}

int packed_to_v210(uint8_t* dst, const uint8_t* src, uint32_t width, uint32_t height)
{
    const uint32_t src_line = width * 20 >> 3;
    for (uint32_t y = 0; y < height; ++y) {
        const uint8_t* const from = src + y * src_line;
        uint8_t* group = dst + y * v210_line(width);
        for (uint32_t p = 0; p < width; p += 2) {
            const Pgroup samples = read_pgroup(from, src_line, p / 2);
            if (p % 6 == 0 && p != 0) group += 16;
            store_place(group, static_cast<int>(p % 6 / 2), samples);
        }
    }
    return 0;
}

int v210_frame_to_packet(uint8_t* packet, uint16_t* seq, uint32_t timestamp, uint32_t ssrc, uint16_t extSeq,
                         uint32_t width, uint32_t height)
{
    uint32_t counter = *seq;
    for (uint32_t y = 0; y < height && width != 0; ++y) {
        const uint8_t* const line = packet + y * v210_line(width);
        uint32_t start = 0, running;
        do {
            stamp_header(packet, counter++, timestamp, ssrc, extSeq, width, y + 1, start);
            running = start;
            for (long pass = 0; start < std::min(550u, width - running); ++pass, running += 2) {
                const Pgroup samples = load_place(line + start / 6 * 16, static_cast<int>(start % 6 / 2));
                write_pgroup(packet + 20, 1375, pass, samples);
            }
            running += 550;
            start = running;
        } while (running < width);
    }
    packet[1] |= 0x80;
    *seq = static_cast<uint16_t>(counter);
    return 0;
}

}  // namespace tintvert::reference
