// No work is no loop: a call without pixels returns at once, whatever the other dimension is.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

#include "geometry.h"
#include "simd/agreement.h"
#include "support/fence.h"
#include "support/random_call.h"
#include "support/sanitized.h"
#include "support/single_step.h"

namespace tintvert::test {
namespace {

using namespace catalog;

constexpr long most_instructions = 5'000;

bool returns_at_once(const std::function<void()>& work)
{
    long count = 0;
    const bool faulted = faults([&] { single_step(work, [&] { return ++count < most_instructions; }); });
    return !faulted && count < most_instructions;
}

std::string_view type_of(const Routine& routine, Arg argument)
{
    for (size_t i = 0; i < routine.arguments.size(); ++i)
        if (routine.arguments[i] == argument) return routine.types[i];
    return "";
}

int64_t most(std::string_view type)
{
    if (type == "long") return LONG_MAX;
    return type == "int" ? INT_MAX : static_cast<int64_t>(UINT_MAX);
}

// Whether the call is one with work: some routines go by a stride alone, some take `height` + 1 lines, and a negative
// number is some work as an unsigned one or as a factor of 32 bits.
bool has_work(const Routine& routine, Arguments call, Arg empty, Arg large)
{
    if (call[empty] < 0 && (type_of(routine, empty).starts_with("unsigned") || routine.name == "tntvt_rgba_addalpha"))
        return true;
    const auto touches = [&] {
        const Extents extents = routine.extents(call);
        return std::ranges::any_of(extents, [](const Touch& touch) { return !touch.touched.empty(); });
    };
    if (touches()) return true;
    call[large] = 64;
    return touches();
}

class NoWork : public testing::TestWithParam<const Routine*> {
protected:
    void SetUp() override
    {
        if (sanitized || !can_single_step()) GTEST_SKIP() << "no single steps here";
    }
    ~NoWork() override { highest_instruction_set = InstructionSet::avx512; }

    // No byte is touched, so that none is supplied.
    void expect_return(Arg empty, Arg large)
    {
        Arguments call = plain_call(routine, {.width = 64, .height = 2, .scale = 2});
        call[Arg::dst] = 0x10000;
        call[Arg::src] = 0x20000;
        call[Arg::width] = call[Arg::height] = 0;
        routine.call(call);  // builds what tables there are
        call[large] = most(type_of(routine, large));
        for (const int64_t none : {0, -1}) {
            call[empty] = none;
            if (has_work(routine, call, empty, large)) continue;
            for (const InstructionSet level : {InstructionSet::scalar, InstructionSet::avx2, InstructionSet::avx512}) {
                highest_instruction_set = level;
                EXPECT_TRUE(returns_at_once([&] { routine.call(call); }))
                    << describe(empty).name << ' ' << none << ", level " << static_cast<int>(level);
            }
        }
    }

    const Routine& routine = *GetParam();
};

TEST_P(NoWork, without_pixels_in_a_line) { expect_return(Arg::width, Arg::height); }

TEST_P(NoWork, without_lines) { expect_return(Arg::height, Arg::width); }

// Left out: what divides by `width`, makes packets, or walks and copies the lines of any frame.
bool returns_without_pixels(const Routine& routine)
{
    constexpr std::string_view others[] = {
        "tntvt_rgba_full",       "tntvt_v210_frame_to_rtp_4175", "tntvt_YCbCr10Packed_to_v210",
        "tntvt_deinterlace_rgb", "tntvt_fld_sep_to_mix32",       "tntvt_fld_mix_to_sep32",
    };
    return std::ranges::find(others, routine.name) == std::end(others);
}

std::vector<const Routine*> routines_of_frames()
{
    std::vector<const Routine*> result;
    for (const Routine& routine : routines())
        if (takes(routine, Arg::width) && takes(routine, Arg::height) && returns_without_pixels(routine))
            result.push_back(&routine);
    return result;
}

INSTANTIATE_TEST_SUITE_P(Routines, NoWork, testing::ValuesIn(routines_of_frames()),
                         [](const auto& routine) { return std::string{routine.param->name}; });

TEST(NoWorkInPlace, mirror_of_one_pixel)
{
    if (sanitized || !can_single_step()) GTEST_SKIP() << "no single steps here";
    for (const int width : {0, 1})
        EXPECT_TRUE(returns_at_once([&] { tntvt_flip_horz(nullptr, nullptr, width, INT_MAX, 8); })) << width;
}

TEST(NoWorkHarness, sees_a_loop)
{
    if (sanitized || !can_single_step()) GTEST_SKIP() << "no single steps here";
    EXPECT_FALSE(returns_at_once([] {
        for (volatile long n = 0; n < LONG_MAX;) n = n + 1;
    }));
    EXPECT_TRUE(returns_at_once([] {}));
}

}  // namespace
}  // namespace tintvert::test
