// The 32-bit run-length decoder at every level beside its scalar version: runs of every length, and runs over the
// palette and over the indices that they are made of.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

#include "simd/agreement.h"
#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr long room = 1 << 16, dst_stride = 4099;

// Where each buffer is in one memory.
struct Places {
    long dst, src, palette;
};
constexpr Places apart = {3 * room, 0, room};

class Rle8Simd : public testing::Test {
protected:
    ~Rle8Simd() override { highest_instruction_set = InstructionSet::avx512; }

    static void put(Bytes& memory, long at, const Bytes& bytes)
    {
        std::copy(bytes.begin(), bytes.end(), memory.begin() + at);
    }

    static Bytes after(Bytes memory, const Places& at, long height, InstructionSet level)
    {
        highest_instruction_set = level;
        tntvt_rle8_rgba32(&memory[static_cast<size_t>(at.dst)], dst_stride, &memory[static_cast<size_t>(at.src)], 0, 0,
                          height, &memory[static_cast<size_t>(at.palette)]);
        return memory;
    }

    // Pixels that the SIMD versions make of it.
    static long expect_agreement(const Bytes& memory, const Places& at, long height = 1)
    {
        const Bytes expected = after(memory, at, height, InstructionSet::scalar);
        simd_units = 0;
        for (const InstructionSet level : levels())
            EXPECT_TRUE(after(memory, at, height, level) == expected)
                << "level " << static_cast<int>(level) << ", dst at " << at.dst << ", palette at " << at.palette;
        return simd_units;
    }

    // Codes of three lines, absolute runs and their indices among them.
    Bytes three_lines(long longest)
    {
        Bytes codes;
        for (int line = 0; line < 3; ++line) {
            for (int run = 0; run < 8; ++run) {
                const long pixels = random.between(3, longest);
                const Bytes more = random.bytes(static_cast<size_t>(pixels + (pixels & 1)));
                const bool in_indices = random.between(0, 1) == 1;
                codes.push_back(static_cast<uint8_t>(in_indices ? 0 : pixels));
                codes.push_back(in_indices ? static_cast<uint8_t>(pixels) : more[0]);
                if (in_indices) codes.insert(codes.end(), more.begin(), more.end());
            }
            codes.insert(codes.end(), {0, 0});
        }
        return codes;
    }

    Random random{8};
};

TEST_F(Rle8Simd, encoded_runs_of_every_length)
{
    Bytes memory = random.bytes(4 * room);
    for (int pixels = 1; pixels <= 255; ++pixels) {
        const auto index = static_cast<uint8_t>(random.next());
        put(memory, apart.src, {static_cast<uint8_t>(pixels), index, 0, 1});
        const long made = expect_agreement(memory, {apart.dst + pixels % 64, apart.src, apart.palette});
        EXPECT_EQ(made, pixels < 8 ? 0 : pixels * static_cast<long>(levels().size()));
    }
}

TEST_F(Rle8Simd, absolute_runs_of_every_length)
{
    Bytes memory = random.bytes(4 * room);
    for (int pixels = 3; pixels <= 255; ++pixels) {
        put(memory, apart.src, {0, static_cast<uint8_t>(pixels)});
        put(memory, apart.src + 2 + pixels + pixels % 2, {0, 1});
        const long made = expect_agreement(memory, {apart.dst + pixels % 64, apart.src, apart.palette});
        EXPECT_EQ(made, pixels * static_cast<long>(levels().size()));
    }
}

TEST_F(Rle8Simd, lines_of_runs)
{
    Bytes memory = random.bytes(4 * room);
    for (const long longest : {4, 20, 255})
        for (int round = 0; round < 50; ++round) {
            const Places places = {apart.dst + random.between(0, 63), apart.src, apart.palette + random.between(0, 63)};
            put(memory, apart.src, three_lines(longest));
            expect_agreement(memory, places, 3);
        }
}

// A run that covers its own entry is made of what it has written.
TEST_F(Rle8Simd, runs_over_the_palette)
{
    Bytes memory = random.bytes(4 * room);
    for (long distance = -64; distance <= 64; ++distance)
        for (const uint8_t pixels : Bytes{1, 2, 8, 11, 40}) {
            const Places places = {apart.palette + distance, apart.src, apart.palette};
            put(memory, apart.src, {pixels, static_cast<uint8_t>(random.between(0, 12)), 0, 1});
            expect_agreement(memory, places);
            put(memory, apart.src, {0, 8, 3, 1, 4, 1, 5, 9, 2, 6, 0, 1});
            expect_agreement(memory, places);
        }
}

// Of a palette of black, what is written over codes to come ends the line.
TEST_F(Rle8Simd, runs_over_their_indices)
{
    Bytes memory(4 * room);
    put(memory, apart.palette, {1, 0, 0, 0, 7, 7, 7, 7});
    Bytes codes(2 + 40, 1);
    codes[0] = 0, codes[1] = 40;
    for (long distance = -200; distance <= 64; ++distance) {
        put(memory, room / 2, codes);
        expect_agreement(memory, {room / 2 + distance, room / 2, apart.palette});
    }
}

TEST_F(Rle8Simd, touches_nothing_outside_the_extents)
{
    for (const InstructionSet level : levels())
        for (const uint8_t pixels : Bytes{3, 8, 9, 10, 17, 80}) {
            highest_instruction_set = level;
            const auto decodes = [&](Bytes codes, int64_t palette_bytes, int64_t dst_bytes) {
                const FencedBuffer palette({0, palette_bytes}, palette_bytes, Side::above, Closed::wholly);
                const FencedBuffer dst({0, dst_bytes}, dst_bytes, Side::above, Closed::wholly);
                return !faults([&] { tntvt_rle8_rgba32(dst.pointer(), 0, codes.data(), 0, 0, 1, palette.pointer()); });
            };
            Bytes indices(2u + pixels + pixels % 2u, 255);
            indices[0] = 0, indices[1] = pixels;
            indices.insert(indices.end(), {0, 1});
            EXPECT_TRUE(decodes({pixels, 255, 0, 1}, 1023, 4 * pixels));
            EXPECT_TRUE(decodes(indices, 1023, 4 * pixels));
        }
}

}  // namespace
}  // namespace tintvert::test
