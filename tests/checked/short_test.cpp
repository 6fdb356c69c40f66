// Memory that is one byte short at either end is refused with the numbers, and nothing is touched; so is null.
#include <gtest/gtest.h>

#include "checked_call.h"
#include "extents.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 60;

void expect_refused(const catalog::Routine& routine, const catalog::Arguments& numbers, CallMemory& memory, size_t of,
                    const checked::Buffer& buffer, checked::Code code)
{
    const CallMemory before = memory;
    std::vector<Given> given = exact_buffers(memory);
    given[of].buffer = buffer;
    const CallMemory::Place& place = memory.places()[of];
    for (const auto call : {call_checked, call_checked_in_c}) {
        const checked::Status error = call(routine, numbers, given, {}).error;
        const std::string text = text_of(routine, numbers);
        ASSERT_EQ(error.code, code) << text;
        ASSERT_EQ(error.buffer, describe(place.argument).name) << text;
        ASSERT_EQ(error.routine, routine.name);
        ASSERT_EQ(error.has, buffer.size()) << text;
        ASSERT_EQ(error.front, buffer.front()) << text;
        ASSERT_EQ(error.where, (checked::Range{place.accessed.begin, place.accessed.end})) << text;
        const auto needs = std::max<int64_t>(place.accessed.end, 0) - std::min<int64_t>(place.accessed.begin, 0);
        ASSERT_EQ(error.needs, static_cast<uint64_t>(needs)) << text;
        ASSERT_TRUE(memory == before) << text;
    }
}

// The field modes that do without `src`, or answer -2, when it is null.
bool means_something_null(const catalog::Routine& routine, const catalog::Arguments& numbers, Arg argument)
{
    const int64_t mode = numbers[Arg::mode];
    return routine.shape->name == "field_change" && argument == Arg::src && ((mode >= 5 && mode <= 8) || mode >= 13);
}

TEST(CheckedBuffers, null_src_of_a_field_change_is_handed_on)
{
    uint8_t frame[32];
    for (uint8_t i = 0; i < 32; ++i) frame[i] = i;
    EXPECT_EQ(checked::tntvt_change_field_rgb(frame, 5, 2, 4, 8, {}, 8).value, -2);
    EXPECT_EQ(checked::tntvt_change_field_rgb(frame, 13, 2, 4, 8, {}, 8).value, 0);
    EXPECT_EQ(frame[8], 16);
    EXPECT_EQ(checked::tntvt_change_field_rgb(frame, 9, 2, 4, 8, {}, 8).code, checked::Code::null);
}

// Of no lines as well: null makes the interpolation copy one.
TEST(CheckedBuffers, null_of_an_interpolation_is_refused)
{
    uint8_t frame[32] = {};
    const checked::Status no_src = checked::tntvt_change_field_rgb(frame, 11, 2, 0, 8, {}, 8);
    EXPECT_EQ(no_src.code, checked::Code::null);
    EXPECT_STREQ(no_src.buffer, "src");
    const checked::Status no_dst = checked::tntvt_change_field_rgb({}, 11, 2, 0, 8, frame, 8);
    EXPECT_EQ(no_dst.code, checked::Code::null);
    EXPECT_STREQ(no_dst.buffer, "dst");
    EXPECT_EQ(checked::tntvt_change_field_rgb({}, 11, 2, 0, 8, {}, 8).value, -2);
}

// With two frames there is nothing to copy from lines of 0 bytes, in place there is. Null twice is in place.
TEST(CheckedBuffers, null_twice_is_one_frame)
{
    const checked::Status error = checked::tntvt_flip_vert_flags({}, {}, 0, 0, 8, 64, 0, 0, 1);
    EXPECT_EQ(error.code, checked::Code::null);
    EXPECT_STREQ(error.buffer, "dst");
    EXPECT_EQ(error.needs, 512u);
    EXPECT_EQ(checked::tntvt_flip_vert_flags({}, {}, 0, 0, -1, 64, 0, 0, 1).refusal,
              checked::Refusal::reads_as_unsigned);
    EXPECT_TRUE(checked::tntvt_flip_vert_flags({}, {}, 0, 0, 1, 64, 0, 0, 1).ok());
    EXPECT_EQ(checked::tntvt_flip_vert({}, {}, 0, 0, 64).code, checked::Code::ok);
}

TEST(CheckedBuffers, one_byte_short_are_refused)
{
    int cases = 0;
    for (const catalog::Routine& routine : catalog::routines()) {
        Random random(11);
        for (int round = 0; round < rounds; ++round) {
            const catalog::Arguments numbers = random_call(random, routine);
            CallMemory memory(random, routine, numbers, margin);
            for (size_t i = 0; i < memory.places().size(); ++i, ++cases) {
                CallMemory::Place& place = memory.places()[i];
                const auto [begin, end] = place.accessed;
                uint8_t* const pointer = place.buffer.pointer();
                if (place.accessed.empty()) continue;
                expect_refused(routine, numbers, memory, i, exactly(pointer, {begin, end - 1}),
                               checked::Code::too_small);
                // Without its first byte a stream is not read, and what it needs is that byte.
                if (takes(routine, Arg::palette) && place.argument == Arg::src) continue;
                expect_refused(routine, numbers, memory, i, exactly(pointer, {begin + 1, end}),
                               checked::Code::too_small);
                if (means_something_null(routine, numbers, place.argument)) continue;
                expect_refused(routine, numbers, memory, i, {}, checked::Code::null);
                if (HasFatalFailure()) return;
            }
        }
    }
    EXPECT_GT(cases, 10000);
}

// The pointer of a stream has to be in its memory.
TEST(CheckedBuffers, streams_are_read_in_their_memory_alone)
{
    uint8_t stream[] = {1, 0, 0, 1}, palette[1024] = {}, frame[4] = {1, 1, 1, 1};
    const auto decode = [&](const checked::Buffer& src) {
        return checked::tntvt_rle8_rgb32(frame, 4, src, 0, 1, 1, palette).message();
    };
    EXPECT_EQ(decode(checked::Buffer(stream).at(-1)), "src: 4 bytes from 1, needs 1 (bytes 0-0)");
    EXPECT_EQ(decode(checked::Buffer(stream).at(5)), "src: 4 bytes from -5, needs 1 (bytes 0-0)");
    EXPECT_EQ(decode(checked::Buffer(stream, 3)), "src: 3 bytes, needs 4 (bytes 0-3)");
    EXPECT_EQ(decode({}), "src: null, needs 1 (bytes 0-0)");
    EXPECT_EQ(frame[0], 1);
    EXPECT_EQ(decode(stream), "ok");
    EXPECT_EQ(frame[0], 0);
}

TEST(CheckedBuffers, messages_say_where)
{
    std::vector<uint8_t> rgb(1920 * 1080 * 4), yuv(1920 * 1080 * 2);
    const checked::Buffer small(yuv.data(), 1920 * 1079 * 2);
    EXPECT_EQ(checked::tntvt_rgb32_2vuy(small, 3840, rgb, 7680, 1920, 1080).message(),
              "dst: 4143360 bytes, needs 4147200 (bytes 0-4147199)");
    // One line of `yuv` is read past the end of the frame.
    EXPECT_EQ(checked::tntvt_2yuv_to_alphay(rgb, 1920, yuv, 3840, 1920, 1080).message(),
              "src: 4147200 bytes, needs 4151040 (bytes 1-4151039)");
    // Lines before `dst`.
    EXPECT_EQ(checked::tntvt_rgba32_rgb24_invert(rgb, 30, rgb, 40, 10, -2).message(),
              "dst: 8294400 bytes, needs 120 (bytes -120 to -61)");
    EXPECT_EQ(checked::tntvt_rgba32_rgb24_invert(checked::Buffer(rgb).at(119), 30, yuv, 40, 10, -2).message(),
              "dst: 8294400 bytes from -119, needs 120 (bytes -120 to -61)");
    EXPECT_TRUE(checked::tntvt_rgba32_rgb24_invert(checked::Buffer(rgb).at(120), 30, yuv, 40, 10, -2).ok());
}

TEST(CheckedBuffers, messages_are_cut_to_their_room)
{
    uint8_t byte = 0;
    const checked::Status error = checked::tntvt_2vuy_scale({&byte, 1}, 4, 0);
    char text[9];
    EXPECT_EQ(error.message(text, sizeof text), error.message().size());
    EXPECT_STREQ(text, "buffer: ");
    EXPECT_EQ(error.message(nullptr, 0), error.message().size());
}

}  // namespace
}  // namespace tintvert::test
