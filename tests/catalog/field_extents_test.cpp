#include <gtest/gtest.h>
#include <zkutil.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

// Two frames, one frame in place.
void supply_frames(catalog::Arguments* call, Random* random)
{
    (*call)[Arg::dst] = 1;
    (*call)[Arg::src] = random->between(1, 3) == 1 ? 1 : 2;
}

// Left out: heights that modes 3 and 5 to 8 never end with, and scratch lines shorter than what goes in.
TEST(Extents, change_field)
{
    Random random(61);
    for (const char* name : {"tntvt_change_field_rgb", "tntvt_change_field_yuv"}) {
        for (int round = 0; round < 15 * rounds; ++round) {
            catalog::Arguments call;
            const long mode = round % 16;
            supply_frames(&call, &random);
            call[Arg::mode] = mode;
            call[Arg::width] = random.between(0, 40);
            call[Arg::height] = random.between(0, 12);
            call[Arg::dstStride] = random.between(0, 100);
            call[Arg::srcStride] = random.between(0, 2) == 0 ? call[Arg::dstStride] : random.between(0, 100);
            if ((mode >= 5 && mode <= 8) || mode >= 13) {
                if (random.between(0, 3) == 0) call[Arg::src] = 0;
            }
            if (mode >= 5 && mode <= 8) call[Arg::height] &= ~1;
            if (mode == 3) {
                call[Arg::height] += 2;
                call[Arg::srcStride] = random.between(0, call[Arg::dstStride]);
            }
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

TEST(Extents, deinterlace)
{
    Random random(62);
    const long modes[] = {0, 2, 16, 17, 18, -1};
    const long softnesses[] = {0, 20, 100, 50000, 65536};
    for (int round = 0; round < 5 * rounds; ++round) {
        catalog::Arguments call;
        supply_frames(&call, &random);
        call[Arg::mode] = modes[random.between(0, 5)];
        call[Arg::softness] = softnesses[random.between(0, 4)];
        call[Arg::threshold] = random.between(-100, 100);
        call[Arg::width] = random.between(0, 20);
        call[Arg::height] = random.between(0, 9);
        call[Arg::stride] = random.between(0, 180);
        expect_exact_extents(*catalog::find("tntvt_deinterlace_rgb"), call);
    }
}

// Left out: a negative height in place, which leaves any frame.
TEST(Extents, flips)
{
    Random random(63);
    for (const char* name : {"tntvt_flip_vert", "tntvt_flip_vert_flags", "tntvt_flip_horz"}) {
        for (int round = 0; round < 2 * rounds; ++round) {
            catalog::Arguments call;
            supply_frames(&call, &random);
            const bool one_frame = call[Arg::dst] == call[Arg::src];
            call[Arg::width] = random.between(one_frame ? 0 : -1, 30);
            call[Arg::height] = random.between(one_frame ? 0 : -1, 9);
            call[Arg::stride] = random.between(0, 150);
            call[Arg::srcStride] = random.between(0, 100);
            // In place the scratch line and both lines have the longer of the two pitches.
            call[Arg::dstStride] = random.between(one_frame ? call[Arg::srcStride] : 0, 120);
            call[Arg::flags] = random.between(0, 15) << 24 | random.between(0, 0xFFFFFF);
            call[Arg::keepMargins] = random.between(-1, 1);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

TEST(Extents, field_mixing)
{
    Random random(64);
    for (const char* name : {"tntvt_fld_sep_to_mix32", "tntvt_fld_mix_to_sep32"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(0, 30);
            call[Arg::height] = random.between(0, 9);
            call[Arg::dstStride] = call[Arg::srcStride] = random.between(-150, 150);
            call[Arg::fieldStride] = random.between(-150, 150);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

// Left out: products and strides below 0, which are sizes near 4 GiB.
TEST(Extents, copy_interleaved)
{
    Random random(65);
    for (int round = 0; round < rounds; ++round) {
        catalog::Arguments call;
        supply_frames(&call, &random);
        call[Arg::dstStride] = random.between(0, 150);
        call[Arg::srcStride] = random.between(0, 1) == 0 ? call[Arg::dstStride] : random.between(0, 150);
        call[Arg::height] = random.between(call[Arg::dstStride] == call[Arg::srcStride] ? 0 : -1, 9);
        expect_exact_extents(*catalog::find("tntvt_copy_interleaved"), call);
    }
}

TEST(Extents, copy_dissolve)
{
    Random random(66);
    for (const unsigned int fourcc : {0x79757632u, 0x30313276u, 0x30313272u, 0x41524742u, 0u}) {
        const int classes = fccIsYCbCr8(fourcc) + fccIsYCbCr10(fourcc) + fccIsDPX(fourcc) + fccIsRGB(fourcc);
        EXPECT_EQ(classes, fourcc == 0 ? 0 : 1) << fourcc;
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            supply_frames(&call, &random);
            call[Arg::fourcc] = fourcc;
            call[Arg::width] = random.between(-2, 40);
            call[Arg::height] = random.between(-1, 9);
            call[Arg::stride] = random.between(-150, 150);
            expect_exact_extents(*catalog::find("tntvt_copy_dissolve"), call);
        }
    }
}

}  // namespace
}  // namespace tintvert::test

// The program's own copy touches every byte that it is asked to, those of a line onto itself too, which a
// memmove may leave alone.
void CopyMemoryFast(void* destination, const void* source, unsigned int bytes)
{
    auto* to = static_cast<volatile unsigned char*>(destination);
    const auto* from = static_cast<const volatile unsigned char*>(source);
    for (size_t i = 0; i < bytes; ++i) to[i] = from[i];
}
