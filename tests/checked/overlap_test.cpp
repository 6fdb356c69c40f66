// Buffers that share bytes are refused unless the routine promises that or the caller allows it.
#include <gtest/gtest.h>

#include "checked_call.h"
#include "extents.h"
#include "in_place.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

// Two buffers of a call in one memory: the second begins `shared` bytes below the end of what the first writes.
struct Pair {
    Scene& scene;
    size_t one, other;
    int64_t shared;
    std::vector<uint8_t> memory;

    Pair(Scene& of, size_t i, size_t j, int64_t bytes) : scene(of), one(i), other(j), shared(bytes)
    {
        memory.resize(static_cast<size_t>(all().end - all().begin + length(other)));
    }

    catalog::Range all() const { return scene.places()[one].touched; }
    int64_t length(size_t place) const
    {
        const catalog::Range touched = scene.places()[place].touched;
        return touched.end - touched.begin;
    }
    // The same pointer is a frame in place, of which one buffer has to hold all.
    bool in_place()
    {
        const std::vector<Given> buffers = given();
        return buffers[one].buffer.pointer() == buffers[other].buffer.pointer();
    }
    std::vector<Given> given()
    {
        std::vector<Given> result = scene.given();
        uint8_t* const first = memory.data() - all().begin;
        const Scene::Place& second = scene.places()[other];
        uint8_t* const lies_at = first + scene.places()[one].written.end - shared;
        result[one].buffer = Scene::Place::exactly(first, all());
        result[other].buffer = Scene::Place::exactly(lies_at - second.touched.begin, second.touched);
        return result;
    }
};

TEST(CheckedOverlap, of_one_byte_is_refused_and_of_none_is_not)
{
    int pairs = 0;
    for (const catalog::Routine& routine : catalog::routines()) {
        if (routine.chapter == "frame") continue;
        Random random(21);
        for (int round = 0; round < rounds; ++round) {
            const catalog::Arguments numbers = random_call(random, routine);
            Scene scene(random, routine, numbers);
            for (size_t i = 0; i < scene.places().size(); ++i)
                for (size_t j = 0; j < scene.places().size(); ++j) {
                    const Scene::Place &one = scene.places()[i], &other = scene.places()[j];
                    if (i == j || one.written.empty() || other.touched.empty()) continue;
                    if (one.written.end != one.touched.end) continue;
                    if (takes(routine, Arg::palette) && other.argument == Arg::src) continue;
                    Pair touching(scene, i, j, 0), sharing(scene, i, j, 1);
                    if (sharing.in_place()) continue;
                    const std::vector<uint8_t> before = sharing.memory;
                    const checked::Status error = call_checked(routine, numbers, sharing.given()).error;
                    ASSERT_EQ(error.code, checked::Code::overlap) << text_of(routine, numbers);
                    ASSERT_EQ(sharing.memory, before);
                    ASSERT_EQ(error.where.to - error.where.from, 1) << error.message();
                    if (!touching.in_place()) {
                        EXPECT_TRUE(call_checked(routine, numbers, touching.given()).error.ok())
                            << text_of(routine, numbers);
                    }
                    EXPECT_TRUE(call_checked(routine, numbers, sharing.given(), {.allow_overlap = true}).error.ok());
                    ++pairs;
                }
        }
    }
    EXPECT_GT(pairs, 10000);
}

// Whether what is written is read too, both frames at one address.
bool shares_bytes(const catalog::Extents& extents)
{
    catalog::Range read, written;
    for (const catalog::Touch& touch : extents) {
        read = catalog::extents::join(read, touch.read);
        written = catalog::extents::join(written, touch.written);
    }
    return std::max(read.begin, written.begin) < std::min(read.end, written.end);
}

TEST(CheckedOverlap, in_place_is_refused_where_nothing_is_promised)
{
    int refused = 0;
    for (const catalog::Routine& routine : catalog::routines()) {
        if (!takes(routine, Arg::dst) || !takes(routine, Arg::src) || takes(routine, Arg::palette)) continue;
        Random random(22);
        for (int round = 0; round < rounds; ++round) {
            const catalog::Arguments numbers = random_call(random, routine);
            Scene scene(random, routine, numbers);
            if (scene.places().size() != 2 || promised_in_place(routine, numbers)) continue;
            std::vector<uint8_t> memory(100000), before = memory;
            const checked::Buffer both = checked::Buffer(memory).at(50000);
            const std::vector<Given> given = {{Arg::dst, both}, {Arg::src, both}};
            const checked::Status error = call_checked(routine, numbers, given).error;
            if (error.code == checked::Code::refused) continue;  // in place alone
            catalog::Arguments one_frame = numbers;
            one_frame[Arg::src] = one_frame[Arg::dst];
            const bool apart = !shares_bytes(routine.extents(one_frame));
            ASSERT_EQ(error.code, apart ? checked::Code::ok : checked::Code::overlap) << text_of(routine, numbers);
            if (apart) continue;
            ASSERT_EQ(memory, before);
            ++refused;
        }
    }
    EXPECT_GT(refused, 3000);
}

TEST(CheckedOverlap, message_names_both)
{
    uint8_t bytes[24] = {};
    EXPECT_EQ(checked::tntvt_rgb24_rgba32({bytes, 12}, 12, {bytes + 2, 9}, 9, 3, 1).message(),
              "dst: shares bytes with src (bytes 2-10), which tntvt_rgb24_rgba32 does not support");
    EXPECT_TRUE(checked::tntvt_rgb24_rgba32({bytes, 12}, 12, {bytes + 12, 9}, 9, 3, 1).ok());
    EXPECT_TRUE(checked::tntvt_rgb24_rgba32({bytes, 12}, 12, {bytes + 2, 9}, 9, 3, 1, {.allow_overlap = true}).ok());
}

}  // namespace
}  // namespace tintvert::test
