// No level of libycbcr touches a byte beyond its lines.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "companions/ycbcr_levels.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using namespace ycbcr;

// A buffer of random bytes with a fence at one end.
class Fenced : public FencedBuffer {
public:
    Fenced(Random& random, int64_t count, Side side)
        : FencedBuffer({0, count}, side == Side::above ? count : 0, side, Closed::wholly)
    {
        for (int64_t i = 0; i < count; ++i) pointer()[i] = static_cast<uint8_t>(random.next());
    }
};

template <class Form>
void expect_inside_fences(InstructionSet level, const Form& form, int width, Side side, Random& random)
{
    const size_t bytes = static_cast<size_t>(width) * 4;
    std::vector<uint8_t> expected(bytes);
    scalar_line(expected.data(), form, 0, width, bt601);
    const Fenced dst(random, width * 4, side);
    ASSERT_FALSE(faults([&] { line(level, dst.pointer(), form, width, bt601); })) << name_of(level) << ' ' << width;
    EXPECT_EQ(0, std::memcmp(dst.pointer(), expected.data(), bytes)) << name_of(level) << ' ' << width;
}

// No level reads past the last sample that a line needs.
TEST_F(CycbcrLevels, stay_between_fences)
{
    Random random(10);
    for (const InstructionSet level : levels) {
        for (int width = 1; width <= 300; ++width) {
            for (const Side side : {Side::below, Side::above}) {
                const Fenced pairs(random, Uyvy::bytes_of(width), side), groups(random, V210::bytes_of(width), side);
                const Fenced y(random, width, side), cb(random, width / 2, side), cr(random, width / 2, side);
                expect_inside_fences(level, Uyvy{pairs.pointer()}, width, side, random);
                expect_inside_fences(level, V210{groups.pointer()}, width, side, random);
                expect_inside_fences(level, planar(y.pointer(), cb.pointer(), cr.pointer(), width), width, side,
                                     random);
            }
        }
    }
}

// The fences do close: one pixel, pair or group more is a fault, for each buffer of each form.
TEST_F(CycbcrLevels, fault_beyond_a_fence)
{
    Random random(11);
    std::vector<uint8_t> open = random.bytes(2000);
    uint8_t* const far = open.data();
    for (const InstructionSet level : levels) {
        for (int width = 1; width <= 100; ++width) {
            const Fenced dst(random, width * 4, Side::above), y(random, width, Side::above);
            const Fenced pairs(random, (width + 1) / 2 * 4, Side::above),
                groups(random, (width + 5) / 6 * 16, Side::above);
            const Fenced chroma(random, (width + 1) / 2, Side::above);
            const auto line_faults = [&](uint8_t* to, const auto& form, int pixels) {
                return faults([&] { line(level, to, form, pixels, bt601); });
            };
            EXPECT_TRUE(line_faults(dst.pointer(), Uyvy{far}, width + 1));
            EXPECT_TRUE(line_faults(dst.pointer(), V210{far}, width + 1));
            EXPECT_TRUE(line_faults(dst.pointer(), planar(far, far, far, width + 1), width + 1));
            EXPECT_TRUE(line_faults(far, Uyvy{pairs.pointer()}, width + 2));
            EXPECT_TRUE(line_faults(far, V210{groups.pointer()}, width + 6));
            EXPECT_TRUE(line_faults(far, planar(y.pointer(), far, far, width + 1), width + 1));
            EXPECT_TRUE(line_faults(far, planar(far, chroma.pointer(), far, width + 3), width + 3));
            EXPECT_TRUE(line_faults(far, planar(far, far, chroma.pointer(), width + 3), width + 3));
        }
    }
}

}  // namespace
}  // namespace tintvert::test
