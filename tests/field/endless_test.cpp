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

}  // namespace
}  // namespace tintvert::test
