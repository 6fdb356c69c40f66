#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Line = void (*)(unsigned char*, unsigned char*, int);
using Frame = void (*)(unsigned char*, unsigned char*, int, int);

// The 2vuy bytes, chroma first, of one pixel.
Bytes one(Line line, unsigned char luma, unsigned char chroma)
{
    Bytes src{luma, chroma}, dst(2, 0xEE);
    line(src.data(), dst.data(), 1);
    return dst;
}

TEST(ByteOrdersEdges, unsigned_chroma)
{
    EXPECT_EQ(one(yuvs_to_2vuy, 0, 0), (Bytes{16, 16}));
    EXPECT_EQ(one(yuvs_to_2vuy, 255, 255), (Bytes{240, 235}));
    EXPECT_EQ(one(yuvs_to_2vuy, 128, 128), (Bytes{128, 125}));
    EXPECT_EQ(one(yuvs_to_2vuy, 0, 1)[0], 16);
    EXPECT_EQ(one(yuvs_to_2vuy, 0, 2)[0], 16);
    EXPECT_EQ(one(yuvs_to_2vuy, 0, 3)[0], 17);
    EXPECT_EQ(one(yuvs_to_2vuy, 1, 254), (Bytes{239, 16}));     // 253 x 224 / 254 is 223.1
    EXPECT_EQ(one(yuvs_to_2vuy, 254, 127), (Bytes{127, 234}));  // 126 x 224 / 254 is 111.1, 254 x 219 / 255 is 218.1
}

TEST(ByteOrdersEdges, signed_chroma)
{
    EXPECT_EQ(one(yuv2_to_2vuy, 0, 0), (Bytes{128, 16}));
    EXPECT_EQ(one(yuv2_to_2vuy, 0, 0x80), (Bytes{16, 16}));
    EXPECT_EQ(one(yuv2_to_2vuy, 0, 0x81), (Bytes{16, 16}));
    EXPECT_EQ(one(yuv2_to_2vuy, 255, 0x7F), (Bytes{240, 235}));
    EXPECT_EQ(one(yuv2_to_2vuy, 0, 0x83)[0], 17);
}

TEST(ByteOrdersEdges, keeps_zero_chroma_like_one)
{
    EXPECT_EQ(one(yuvs_to_2vuy, 9, 0), one(yuvs_to_2vuy, 9, 1));
    EXPECT_EQ(one(yuv2_to_2vuy, 9, 0x80), one(yuv2_to_2vuy, 9, 0x81));
    Bytes src{0, 0x80, 0, 0x81}, dst(4);
    for (const Frame frame : {tntvt_yuv2_2vuy, tntvt_yuvu_2vuy}) {
        frame(dst.data(), src.data(), 2, 1);
        EXPECT_EQ(dst, (Bytes{16, 16, 16, 16}));
    }
    src = {0, 0, 0, 1};
    tntvt_yuvs_2vuy(dst.data(), src.data(), 2, 1);
    EXPECT_EQ(dst, (Bytes{16, 16, 16, 16}));
}

// Black and white with Cb on even and Cr on odd pixels: neighbours do not mix.
TEST(ByteOrdersEdges, chroma_stays_with_its_pixel)
{
    Bytes src{0, 1, 255, 255, 0, 1, 255, 255}, dst(8);
    yuvs_to_2vuy(src.data(), dst.data(), 4);
    EXPECT_EQ(dst, (Bytes{16, 16, 240, 235, 16, 16, 240, 235}));
}

TEST(ByteOrdersEdges, empty_runs_write_nothing)
{
    for (const Line line : {yuv2_to_2vuy, yuvs_to_2vuy}) {
        for (const int pixels : {0, -1, -0x7FFFFFFF - 1}) {
            Bytes src(8, 1), dst(8, 0xEE);
            line(src.data(), dst.data(), pixels);
            EXPECT_EQ(dst, Bytes(8, 0xEE)) << pixels;
        }
    }
}

TEST(ByteOrdersEdges, both_bytes_are_read_before_one_is_written)
{
    for (const Line line : {yuv2_to_2vuy, yuvs_to_2vuy}) {
        Bytes run{200, 10, 30, 250, 77, 128};
        Bytes apart(run.size());
        line(run.data(), apart.data(), 3);
        line(run.data(), run.data(), 3);
        EXPECT_EQ(run, apart);
    }
}

// Two lines of one pixel in lines of four bytes: the second pixel is taken from the gap.
TEST(ByteOrdersEdges, a_gap_between_lines_is_pixels)
{
    Bytes src{255, 255, 0, 1, 128, 128, 0, 1}, dst(8, 0xEE);
    tntvt_yuvs_2vuy(dst.data(), src.data(), 1, 2);
    EXPECT_EQ(dst, (Bytes{240, 235, 16, 16, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST(ByteOrdersEdges, frames_count_in_32_bits)
{
    for (const Frame frame : {tntvt_yuv2_2vuy, tntvt_yuvu_2vuy, tntvt_yuvs_2vuy}) {
        const auto written = [&](int width, int height) {
            Bytes src(64, 128), dst(64, 0xEE);
            frame(dst.data(), src.data(), width, height);
            size_t bytes = 0;
            while (bytes < dst.size() && dst[bytes] != 0xEE) ++bytes;
            return bytes;
        };
        EXPECT_EQ(written(3, 2), 12u);
        EXPECT_EQ(written(-3, -2), 12u);
        EXPECT_EQ(written(-3, 2), 0u);
        EXPECT_EQ(written(0x10000, 0x10000), 0u);
        EXPECT_EQ(written(0x8000, 0x10000), 0u);           // 2^31 is negative
        EXPECT_EQ(written(0x40000001, 4), 8u);             // 2^32 + 4
        EXPECT_EQ(written(-0x7FFFFFFF - 1, 2), 0u);        // -2^32
        EXPECT_EQ(written(-0x7FFFFFFF - 1, -3), 0u);       // 3 x 2^31
        EXPECT_EQ(written(-0x7FFFFFFF, -0x7FFFFFFF), 2u);  // (2^31 - 1)^2
    }
}

TEST(ByteOrdersEdges, an_odd_product_reads_the_fourth_byte_and_no_further)
{
    Bytes src{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, dst(10, 0xEE);
    tntvt_yuv444_yuv422_8(dst.data(), src.data(), 3, 1, 0);
    EXPECT_EQ(dst, (Bytes{2, 1, 3, 4, 8, 7, 9, 10, 0xEE, 0xEE}));
    tntvt_yuv444_yuv422_8(dst.data(), src.data(), 1, 1, 0);
    EXPECT_EQ(dst, (Bytes{2, 1, 3, 4, 8, 7, 9, 10, 0xEE, 0xEE}));
}

TEST(ByteOrdersEdges, an_odd_product_writes_six_bytes)
{
    Bytes src{1, 2, 3, 4}, dst(8, 0xEE);
    tntvt_yuv422_yuv444_8(dst.data(), src.data(), 1, 1, 0);
    EXPECT_EQ(dst, (Bytes{2, 1, 3, 4, 1, 3, 0xEE, 0xEE}));
}

TEST(ByteOrdersEdges, sizes_of_444_are_kept_to_32_bits)
{
    const auto written = [](auto* routine, unsigned int width, unsigned int height) {
        Bytes src(64, 1), dst(64, 0xEE);
        routine(dst.data(), src.data(), width, height, 0);
        size_t bytes = 0;
        while (bytes < dst.size() && dst[bytes] != 0xEE) ++bytes;
        return bytes;
    };
    EXPECT_EQ(written(tntvt_yuv444_yuv422_8, 0x10000, 0x10000), 0u);
    EXPECT_EQ(written(tntvt_yuv422_yuv444_8, 0x10000, 0x10000), 0u);
    EXPECT_EQ(written(tntvt_yuv444_yuv422_8, 0, 5), 0u);
    EXPECT_EQ(written(tntvt_yuv422_yuv444_8, 5, 0), 0u);
    EXPECT_EQ(written(tntvt_yuv444_yuv422_8, 0x55555556, 1), 4u);  // 2
    EXPECT_EQ(written(tntvt_yuv422_yuv444_8, 0x55555556, 1), 6u);
    EXPECT_EQ(written(tntvt_yuv444_yuv422_8, 0x55555558, 1), 8u);  // 8
    EXPECT_EQ(written(tntvt_yuv422_yuv444_8, 0x55555558, 1), 12u);
}

TEST(ByteOrdersEdges, there_and_back_keeps_luma_and_even_chroma)
{
    Bytes src{10, 1, 2, 20, 3, 4, 30, 5, 6, 40, 7, 8}, middle(8), back(12);
    tntvt_yuv444_yuv422_8(middle.data(), src.data(), 2, 2, 0);
    tntvt_yuv422_yuv444_8(back.data(), middle.data(), 2, 2, 0);
    EXPECT_EQ(middle, (Bytes{1, 10, 2, 20, 5, 30, 6, 40}));
    EXPECT_EQ(back, (Bytes{10, 1, 2, 20, 1, 2, 30, 5, 6, 40, 5, 6}));
}

TEST(ByteOrdersEdges, keeps_empty_subsampled_entries)
{
    for (const auto entry : {tntvt_yuv411_yuv422_8, tntvt_yuv422_yuv411_8, tntvt_yuv420_yuv422_8, tntvt_yuv422_yuv420_8,
                             tntvt_yuv420_yuv411_8, tntvt_yuv411_yuv420_8})
        entry(nullptr, nullptr, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF);
}

}  // namespace
