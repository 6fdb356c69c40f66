// When the walkers run a form's kernel, and which direction of the walk they pass to it.
#include "frame/walk.h"

#include <gtest/gtest.h>

#include <vector>

namespace tintvert::test {
namespace {

// A kernel that makes the first two pixels of a line, as 9, and notes the direction of the walk.
struct CopySimd {
    static constexpr long src_bytes = 1, dst_bytes = 1;
    static void pixel(uint8_t* dst, const uint8_t* src) { *dst = *src; }
    struct Simd {
        static constexpr bool in_place = true;
        static inline std::vector<bool> down;
        static long avx2(uint8_t* dst, const uint8_t*, long, bool goes_down)
        {
            down.push_back(goes_down);
            dst[0] = dst[1] = 9;
            return 2;
        }
    };
};

class SimdWalks : public testing::Test {
protected:
    void SetUp() override
    {
        if (instruction_set() < InstructionSet::avx2) GTEST_SKIP() << "no AVX2 here";
        CopySimd::Simd::down.clear();
    }
    std::vector<uint8_t> bytes = {1, 2, 3, 4, 5, 6, 7, 8};
};

TEST_F(SimdWalks, take_the_left_pixels_of_lines_apart)
{
    walk_forward<CopySimd>({&bytes[4], 0, &bytes[0], 0}, 4, 1);
    EXPECT_EQ(bytes, (std::vector<uint8_t>{1, 2, 3, 4, 9, 9, 3, 4}));
    walk_backward<CopySimd>({&bytes[0], 4, &bytes[4], 4}, 3, 1);
    EXPECT_EQ(bytes, (std::vector<uint8_t>{1, 9, 9, 4, 9, 9, 3, 4}));
    EXPECT_EQ(CopySimd::Simd::down, (std::vector{false, true}));
}

TEST_F(SimdWalks, take_a_map_in_its_own_place)
{
    walk_forward<CopySimd>({&bytes[0], 0, &bytes[0], 0}, 4, 1);
    EXPECT_EQ(bytes, (std::vector<uint8_t>{9, 9, 3, 4, 5, 6, 7, 8}));
}

TEST_F(SimdWalks, do_not_run_where_lines_overlap)
{
    walk_forward<CopySimd>({&bytes[1], 0, &bytes[0], 0}, 4, 1);
    EXPECT_EQ(bytes, (std::vector<uint8_t>{1, 1, 1, 1, 1, 6, 7, 8}));
    EXPECT_EQ(CopySimd::Simd::down.size(), 0u);
}

}  // namespace
}  // namespace tintvert::test
