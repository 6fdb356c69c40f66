// Line counts that run past every frame: 4 GiB of address space, of which one page in the walk's way is closed. A call
// over the few lines of `height` never comes to it; one that takes the count as huge reaches it after 2^18 lines.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert/field.h>

#include <functional>

#include "support/fence.h"
#include "support/sparse.h"

namespace tintvert::test {
namespace {

constexpr unsigned int pitch = 16;

class Endless : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(memory);
        ASSERT_EQ(mprotect(dst + (1L << 18) * pitch, 4096, PROT_NONE), 0);
    }

    std::function<void()> change(unsigned int mode, unsigned int height) const
    {
        return [=, this] { tntvt_change_field_rgb(dst, mode, 4, height, pitch, src, pitch); };
    }
    static bool ends(const std::function<void()>& work) { return !faults(work); }
    static bool runs_on(const std::function<void()>& work) { return faults(work); }

    const Sparse memory;
    uint8_t* const dst = memory.data();
    uint8_t* const src = dst + (1L << 31);
};

TEST_F(Endless, a_call_that_ends_comes_back)
{
    for (const unsigned int mode : {3u, 5u, 6u, 7u, 8u}) EXPECT_TRUE(ends(change(mode, 4))) << mode;
    for (const unsigned int mode : {5u, 6u, 7u, 8u}) EXPECT_TRUE(ends(change(mode, 0))) << mode;
    EXPECT_TRUE(ends([this] { tntvt_flip_vert(dst, dst, 0, 5, pitch); }));
}

TEST_F(Endless, keeps_flip_without_guard)
{
    EXPECT_TRUE(runs_on(change(3, 0)));
    EXPECT_TRUE(runs_on(change(3, 1)));
}

TEST_F(Endless, keeps_even_heights_only)
{
    for (const unsigned int mode : {5u, 6u, 7u, 8u}) {
        EXPECT_TRUE(runs_on(change(mode, 1))) << mode;
        EXPECT_TRUE(runs_on(change(mode, 7))) << mode;
    }
}

// A height below 0 is a very large one, and half of it in place.
TEST_F(Endless, keeps_unsigned_half_of_height)
{
    for (const int height : {-1, -4, -2147483647 - 1}) {
        EXPECT_TRUE(runs_on([=, this] { tntvt_flip_vert(dst, dst, 0, height, pitch); })) << height;
        EXPECT_TRUE(runs_on([=, this] { tntvt_flip_vert_flags(dst, dst, 0, 0, height, pitch, pitch, 0, 0); }))
            << height;
        EXPECT_TRUE(ends([=, this] { tntvt_flip_vert(dst, src, 0, height, pitch); })) << height;
        EXPECT_TRUE(ends([=, this] { tntvt_flip_vert_flags(dst, src, 0, 0, height, pitch, pitch, 0, 0); })) << height;
    }
}

TEST_F(Endless, field_change_reads_no_sign)
{
    for (const unsigned int mode : {1u, 2u, 3u, 4u, 5u, 8u, 9u, 10u, 13u, 14u})
        EXPECT_TRUE(runs_on(change(mode, 0xFFFFFFFC))) << mode;
}

TEST_F(Endless, no_mode_of_the_field_change_reads_a_sign)
{
    for (const unsigned int mode : {6u, 7u, 11u, 12u}) EXPECT_TRUE(runs_on(change(mode, 0xFFFFFFFC))) << mode;
}

TEST_F(Endless, heights_of_2_to_the_31_are_no_negative_numbers)
{
    for (const unsigned int height : {0x80000000u, 0xFFFFFFFFu}) {
        for (const int mode : {0, 2, 16, 17})
            EXPECT_TRUE(runs_on([=, this] { tntvt_deinterlace_rgb(dst, src, 1, height, pitch, pitch, 0, 0, mode); }))
                << mode;
        EXPECT_TRUE(runs_on([=, this] { tntvt_fld_sep_to_mix32(dst, pitch, src, src, pitch, 1, height); })) << height;
        EXPECT_TRUE(runs_on([=, this] { tntvt_fld_mix_to_sep32(dst, dst, pitch, src, pitch, 1, height); })) << height;
    }
}

constexpr unsigned int every_class[] = {0x79757632, 0x30313276, 0x30313272, 0x41524742};

// Of the two 64-bit heights the low halves say the opposite: none and one.
TEST_F(Endless, heights_of_64_bits)
{
    constexpr long whole = 1l << 32;
    EXPECT_TRUE(runs_on([this] { tntvt_copy_interleaved(dst, pitch, src, 4, 0, whole); }));
    EXPECT_TRUE(ends([] { tntvt_copy_interleaved(nullptr, 0, nullptr, 4, 0, 1 - whole); }));
    for (const unsigned int fourcc : every_class) {
        EXPECT_TRUE(runs_on([=, this] { tntvt_copy_dissolve(dst, src, pitch, 2, whole, fourcc); })) << fourcc;
        EXPECT_TRUE(ends([=] { tntvt_copy_dissolve(nullptr, nullptr, 0, 2, 1 - whole, fourcc); })) << fourcc;
        EXPECT_TRUE(ends([=] { tntvt_copy_dissolve(nullptr, nullptr, 0, 2 - whole, 2, fourcc); })) << fourcc;
    }
}

}  // namespace
}  // namespace tintvert::test
