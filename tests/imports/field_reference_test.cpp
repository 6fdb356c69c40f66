// The field routines and their reference implementations ask the same of the companions, call by call, and leave by
// the same exception wherever a copy throws.
#include <tintvert/field.h>

#include <array>

#include "recorder.h"
#include "support/arena.h"
#include "support/field_calls.h"

namespace tintvert::test {
namespace {

struct Outcome {
    bool thrown = false;
    int status = 0;
    Log log;
    bool operator==(const Outcome&) const = default;
};

class FieldCalls : public testing::TestWithParam<MakeFieldCall> {
protected:
    // The call on a memory of which every address is named, with the `nth` copy throwing if that is not 0.
    static Outcome run(const std::function<int(uint8_t*)>& call, uint8_t* memory, int nth, const std::string& fourcc)
    {
        calls() = {};
        calls().name("memory", memory - field_call_reach, 2 * field_call_reach);
        calls().fourcc_class = fourcc;
        if (nth != 0) calls().throw_at("CopyMemoryFast", nth);
        Outcome outcome;
        try {
            outcome.status = call(memory);
        } catch (const Thrown&) {
            outcome.thrown = true;
        }
        outcome.log = calls().log;
        return outcome;
    }
};

TEST_P(FieldCalls, same_calls_in_the_same_order)
{
    Random random(71);
    const std::string classes[] = {"fccIsYCbCr8", "fccIsYCbCr10", "fccIsDPX", "fccIsRGB", "none"};
    int passed_on = 0, caught = 0;
    for (int round = 0; round < 1500; ++round) {
        const FieldCall call = GetParam()(random);
        const std::string fourcc = classes[random.between(0, 4)];
        const int nth = random.between(0, 1) == 0 ? 0 : static_cast<int>(random.between(1, 9));
        Arena memory(random, field_call_reach, field_call_reach);
        const Outcome library = run(call.library, memory.actual(), nth, fourcc);
        const Outcome expected = run(call.expected, memory.expected(), nth, fourcc);
        EXPECT_EQ(library, expected) << call.text << ", throwing at copy " << nth << ", " << fourcc << '\n'
                                     << testing::PrintToString(library.log) << '\n'
                                     << testing::PrintToString(expected.log);
        EXPECT_TRUE(memory.agrees()) << call.text << ", throwing at copy " << nth << ", " << fourcc;
        passed_on += library.thrown;
        caught += !library.log.empty() && library.log.back().starts_with("ZKFree") && calls().count("ErrFmtOut") == 1;
    }
    RecordProperty("passed_on", passed_on);
    RecordProperty("caught", caught);
    const bool copies = GetParam() != field_calls::flip_horz && GetParam() != field_calls::copy_dissolve;
    EXPECT_EQ(passed_on > 20, copies);
    const bool has_handler = GetParam() == field_calls::flip_vert || GetParam() == field_calls::flip_vert_flags ||
                             GetParam() == field_calls::change_field_rgb || GetParam() == field_calls::change_field_yuv;
    EXPECT_EQ(caught > 5, has_handler);
}

INSTANTIATE_TEST_SUITE_P(Calls, FieldCalls, testing::ValuesIn(every_field_call));

}  // namespace
}  // namespace tintvert::test
