// RGB of 16 bits a channel against its reference, in one memory and at every overlap.
#include "reference/rgb/rgb_16bit.h"

#include <tintvert.h>

#include "support/strided.h"

namespace tintvert::test {
namespace {

using Routine = void(void*, long, void*, long, long, long);
using reference::DeepForm;
using reference::Depth;
using reference::Height;

struct DeepRoutine {
    const char* name;
    std::function<void(void*, long, void*, long, long, long, unsigned int bits, unsigned int order)> call;
    DeepForm form;
};

// A routine of six or seven arguments, with the rest left out.
auto with_bits(void (*routine)(void*, long, void*, long, long, long, unsigned int))
{
    return [routine](void* dst, long dst_stride, void* src, long src_stride, long width, long height, unsigned int bits,
                     unsigned int) { routine(dst, dst_stride, src, src_stride, width, height, bits); };
}

auto without_bits(Routine* routine)
{
    return [routine](void* dst, long dst_stride, void* src, long src_stride, long width, long height, unsigned int,
                     unsigned int) { routine(dst, dst_stride, src, src_stride, width, height); };
}

constexpr Depth to_8 = Depth::from_16_to_8, to_16 = Depth::from_8_to_16;
constexpr Depth be_to_8 = Depth::big_endian_to_8, be_to_16 = Depth::big_endian_to_16;

const DeepRoutine routines[] = {
    {"tntvt_rgb48_rgba32", with_bits(tntvt_rgb48_rgba32), {to_8, 3, 4, {"012z"}, Height::exact_flip}},
    {"tntvt_bgr48_rgba32", with_bits(tntvt_bgr48_rgba32), {to_8, 3, 4, {"210z"}, Height::one_line_off}},
    {"tntvt_rgba64_rgba32", with_bits(tntvt_rgba64_rgba32), {to_8, 4, 4, {"0123"}, Height::positive_only}},
    {"tntvt_argb64_rgba32", with_bits(tntvt_argb64_rgba32), {to_8, 4, 4, {"1230"}, Height::positive_only}},
    {"tntvt_abgr64_rgba32", with_bits(tntvt_abgr64_rgba32), {to_8, 4, 4, {"3210"}, Height::positive_only}},
    {"tntvt_bgra64_rgba32", with_bits(tntvt_bgra64_rgba32), {to_8, 4, 4, {"2103"}, Height::positive_only}},
    {"tntvt_rgba32_rgb48", with_bits(tntvt_rgba32_rgb48), {to_16, 4, 3, {"012"}, Height::exact_flip}},
    {"tntvt_rgba32_bgr48", with_bits(tntvt_rgba32_bgr48), {to_16, 4, 3, {"210"}, Height::one_line_off}},
    {"tntvt_rgba32_rgba64", with_bits(tntvt_rgba32_rgba64), {to_16, 4, 4, {"0123"}, Height::positive_only}},
    {"tntvt_rgba32_argb64", with_bits(tntvt_rgba32_argb64), {to_16, 4, 4, {"3012"}, Height::positive_only}},
    {"tntvt_bgra32_rgba64", without_bits(tntvt_bgra32_rgba64), {to_16, 4, 4, {"2103"}, Height::positive_only}},
    {"tntvt_argb64be_rgba64",
     tntvt_argb64be_rgba64,
     {be_to_16, 4, 4, {"3210", "0321", "1230", "0123"}, Height::positive_only}},
    {"tntvt_argb64be_rgb48", tntvt_argb64be_rgb48, {be_to_16, 4, 3, {"321", "", "123", ""}, Height::positive_only}},
    {"tntvt_argb64be_rgba32",
     tntvt_argb64be_rgba32,
     {be_to_8, 4, 4, {"3210", "0321", "1230", "0123"}, Height::positive_only}},
    {"tntvt_argb64be_rgb24", tntvt_argb64be_rgb24, {be_to_8, 4, 3, {"321", "", "123", ""}, Height::exact_flip}},
};

// The routine with no `bits` is the one with 16.
uint32_t bits_of(const DeepRoutine& routine, uint32_t bits)
{
    return std::string_view(routine.name) == "tntvt_bgra32_rgba64" ? 16 : bits;
}

Twins twins_of(const DeepRoutine& routine, uint32_t bits, uint32_t order)
{
    const Work call = [&routine, bits, order](const StridedFrame& f) {
        routine.call(f.dst, f.dst_stride, const_cast<uint8_t*>(f.src), f.src_stride, f.width, f.height, bits, order);
    };
    const Work expected = [&routine, bits, order](const StridedFrame& f) {
        reference::deep_frame(routine.form, f, bits_of(routine, bits), order);
    };
    return {routine.name, reference::pixel_bytes(routine.form), call, expected};
}

TEST(Rgb16BitReference, frames)
{
    Random random(503);
    for (const DeepRoutine& routine : routines)
        for (const uint32_t order : {0u, 1u, 2u, 3u, 4u, 0xFFFFFFFFu}) {
            const bool ordered = routine.form.depth == be_to_8 || routine.form.depth == be_to_16;
            if (!ordered && order > 3) continue;
            const uint32_t usual[] = {8, 10, 12, 16};
            const uint32_t bits =
                random.between(0, 1) ? usual[order % 4] : static_cast<uint32_t>(random.between(0, 50));
            EXPECT_TRUE(agree_everywhere(twins_of(routine, bits, order), 2)) << "bits " << bits << ", order " << order;
        }
}

TEST(Rgb16BitReference, a_wrong_reference_is_found)
{
    DeepRoutine wrong = routines[0];  // an alpha of its own
    wrong.form.picks[0] = "0120";
    EXPECT_FALSE(agree_everywhere(twins_of(wrong, 16, 0)));
    wrong = routines[1];  // an exact flip
    wrong.form.height = Height::exact_flip;
    EXPECT_FALSE(agree_everywhere(twins_of(wrong, 16, 0)));
    wrong = routines[12];  // order 1 written
    wrong.form.picks[1] = "032";
    EXPECT_FALSE(agree_everywhere(twins_of(wrong, 16, 1)));
    wrong = routines[13];  // little-endian channels
    wrong.form.depth = Depth::from_16_to_8;
    wrong.form.picks[0] = wrong.form.picks[2];
    EXPECT_FALSE(agree_everywhere(twins_of(wrong, 16, 2)));
}

// Every value of a channel, in every channel, at every shift: frames of 256 x 256 pixels of which channel c
// is the pixel's number plus 257 x c.
TEST(Rgb16BitExhaustive, values_and_shifts)
{
    constexpr long size = 256;
    for (const DeepRoutine& routine : routines) {
        const PixelBytes bytes = reference::pixel_bytes(routine.form);
        const bool deep = routine.form.depth != to_16;
        std::vector<uint8_t> src(static_cast<size_t>(size * size * bytes.src));
        size_t at = 0;
        for (uint32_t number = 0; number < size * size; ++number)
            for (uint32_t c = 0; c < static_cast<uint32_t>(routine.form.src_channels); ++c) {
                const uint32_t value = number + 257 * c;
                src[at++] = static_cast<uint8_t>(value);
                if (deep) src[at++] = static_cast<uint8_t>(value / 256);
            }
        std::vector<uint8_t> dst(static_cast<size_t>(size * size * bytes.dst));
        for (uint32_t bits = 0; bits < 33; ++bits) {
            std::vector<uint8_t> expected(dst);
            const Twins twins = twins_of(routine, bits, bits % 2 * 2);
            twins.routine({dst.data(), size * bytes.dst, src.data(), size * bytes.src, size, size});
            twins.reference({expected.data(), size * bytes.dst, src.data(), size * bytes.src, size, size});
            ASSERT_EQ(dst, expected) << routine.name << ", bits " << bits;
        }
    }
}

}  // namespace
}  // namespace tintvert::test
