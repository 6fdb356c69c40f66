#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

TEST(YuvsTo2vuy, black_grey_and_white)
{
    Bytes src{0, 0, 255, 255, 128, 128}, dst(6);
    yuvs_to_2vuy(src.data(), dst.data(), 3);
    EXPECT_EQ(dst, (Bytes{16, 16, 240, 235, 128, 125}));
}

TEST(YuvsTo2vuy, keeps_zero_chroma_like_one)
{
    Bytes src{0, 0, 0, 1, 0, 2, 0, 3}, dst(8);
    yuvs_to_2vuy(src.data(), dst.data(), 4);
    EXPECT_EQ(dst, (Bytes{16, 16, 16, 16, 16, 16, 17, 16}));
}

TEST(Yuv2To2vuy, signed_chroma)
{
    Bytes src{0, 0x80, 0, 0x81, 0, 0, 0, 0x7F}, dst(8);
    yuv2_to_2vuy(src.data(), dst.data(), 4);
    EXPECT_EQ(dst, (Bytes{16, 16, 16, 16, 128, 16, 240, 16}));
}

TEST(Yuv2To2vuy, in_place_and_empty)
{
    Bytes run{255, 0x7F, 0, 0x80};
    yuv2_to_2vuy(run.data(), run.data(), 0);
    yuv2_to_2vuy(run.data(), run.data(), -1);
    EXPECT_EQ(run, (Bytes{255, 0x7F, 0, 0x80}));
    yuv2_to_2vuy(run.data(), run.data(), 2);
    EXPECT_EQ(run, (Bytes{240, 235, 16, 16}));
}

TEST(ByteOrderFrames, run_over_the_product)
{
    const Bytes src{255, 0x7F, 0, 0x80, 128, 0, 7, 7};
    Bytes source = src, dst(8, 0xEE);
    tntvt_yuv2_2vuy(dst.data(), source.data(), 3, 1);
    EXPECT_EQ(dst, (Bytes{240, 235, 16, 16, 128, 125, 0xEE, 0xEE}));
    dst.assign(8, 0xEE);
    tntvt_yuvu_2vuy(dst.data(), source.data(), 1, 3);
    EXPECT_EQ(dst, (Bytes{240, 235, 16, 16, 128, 125, 0xEE, 0xEE}));
    dst.assign(8, 0xEE);
    tntvt_yuvs_2vuy(dst.data(), source.data(), 1, 1);
    EXPECT_EQ(dst, (Bytes{127, 235, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
    dst.assign(8, 0xEE);
    tntvt_yuvs_2vuy(dst.data(), source.data(), 0x10000, 0x10000);
    EXPECT_EQ(dst, Bytes(8, 0xEE));
}

// An odd count takes its last group whole.
TEST(Yuv444, keeps_frames_of_444_unbroken)
{
    Bytes src{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, dst(12, 0xEE);
    tntvt_yuv444_yuv422_8(dst.data(), src.data(), 1, 3, 1000);
    EXPECT_EQ(dst, (Bytes{2, 1, 3, 4, 8, 7, 9, 10, 0xEE, 0xEE, 0xEE, 0xEE}));
    dst.assign(14, 0xEE);
    tntvt_yuv422_yuv444_8(dst.data(), src.data(), 3, 1, 1000);
    EXPECT_EQ(dst, (Bytes{2, 1, 3, 4, 1, 3, 6, 5, 7, 8, 5, 7, 0xEE, 0xEE}));
}

TEST(Yuv444, keeps_store_before_load_of_444)
{
    Bytes run{1, 2, 3, 4, 5, 6};
    tntvt_yuv444_yuv422_8(run.data(), run.data(), 2, 1, 0);
    EXPECT_EQ(run, (Bytes{2, 2, 3, 4, 5, 6}));
    run = {1, 2, 3, 4, 5, 6};
    tntvt_yuv422_yuv444_8(run.data(), run.data(), 2, 1, 0);
    EXPECT_EQ(run, (Bytes{2, 2, 3, 4, 2, 3}));
}

// 0x5555'5556 x 3 is 2 in 32 bits: one group.
TEST(Yuv444, size_is_kept_to_32_bits)
{
    Bytes src{1, 2, 3, 4, 5, 6}, dst(10, 0xEE);
    tntvt_yuv444_yuv422_8(dst.data(), src.data(), 0x55555556, 1, 0);
    EXPECT_EQ(dst, (Bytes{2, 1, 3, 4, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST(Subsampled, keeps_empty_subsampled_entries)
{
    for (const auto entry : {tntvt_yuv411_yuv422_8, tntvt_yuv422_yuv411_8, tntvt_yuv420_yuv422_8, tntvt_yuv422_yuv420_8,
                             tntvt_yuv420_yuv411_8, tntvt_yuv411_yuv420_8}) {
        Bytes dst(64, 0xEE), src(64, 0x11);
        entry(dst.data(), src.data(), 4, 4, 8);
        EXPECT_EQ(dst, Bytes(64, 0xEE));
        EXPECT_EQ(src, Bytes(64, 0x11));
    }
}

}  // namespace
