#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Kernel = void(unsigned char*, unsigned char*, unsigned int);

Bytes of(Kernel* kernel, Bytes src)
{
    Bytes dst(src.size(), 0xEE);
    kernel(dst.data(), src.data(), static_cast<unsigned>(src.size() / 4));
    return dst;
}

TEST(WordKernels, four_orders_under_eleven_names)
{
    const Bytes src{0, 1, 2, 3, 4, 5, 6, 7};
    for (Kernel* kernel : {rgba2argb, bgra2abgr, bgra2abgrMMX, abgr2bgraMMX})
        EXPECT_EQ(of(kernel, src), (Bytes{1, 2, 3, 0, 5, 6, 7, 4}));
    for (Kernel* kernel : {argb2rgba, abgr2bgra}) EXPECT_EQ(of(kernel, src), (Bytes{3, 0, 1, 2, 7, 4, 5, 6}));
    for (Kernel* kernel : {bgra2argb, argb2bgra}) EXPECT_EQ(of(kernel, src), (Bytes{3, 2, 1, 0, 7, 6, 5, 4}));
    for (Kernel* kernel : {abgr2argb, argb2abgr, bgra2rgba})
        EXPECT_EQ(of(kernel, src), (Bytes{2, 1, 0, 3, 6, 5, 4, 7}));
}

TEST(WordKernels, keeps_kernels_that_rotate_apart)
{
    const Bytes src{0, 1, 2, 3};
    EXPECT_EQ(of(abgr2bgra, of(bgra2abgr, src)), src);
    EXPECT_EQ(of(abgr2bgraMMX, of(abgr2bgra, src)), src);
    EXPECT_EQ(of(abgr2bgraMMX, of(bgra2abgrMMX, src)), (Bytes{2, 3, 0, 1}));
}

TEST(WordKernels, no_pixels)
{
    Bytes run{9, 8, 7, 6};
    rgba2argb(run.data(), run.data(), 0);
    EXPECT_EQ(run, (Bytes{9, 8, 7, 6}));
}

// One byte further on each pixel takes in what the one before it has just left.
TEST(WordKernels, overlapping_runs_are_walked_forward)
{
    Bytes run(24);
    for (size_t i = 0; i < run.size(); ++i) run[i] = static_cast<unsigned char>(i);
    argb2rgba(run.data() + 1, run.data(), 5);
    EXPECT_EQ(run, (Bytes{0, 3, 0, 1, 2, 7, 2, 5, 6, 11, 6, 9, 10, 15, 10, 13, 14, 19, 14, 17, 18, 21, 22, 23}));
}

}  // namespace
