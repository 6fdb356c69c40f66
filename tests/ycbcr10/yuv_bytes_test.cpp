#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

TEST(YuvsToV210, keeps_8_bit_bytes_under_a_v210_name)
{
    Bytes src{0, 128, 255, 128, 128, 128}, dst(8, 0xEE);
    yuvs_to_v210(src.data(), dst.data(), 3);
    EXPECT_EQ(dst, (Bytes{128, 16, 128, 235, 128, 125, 0xEE, 0xEE}));
    yuv2_to_v210(src.data(), dst.data(), 0);
    yuv2_to_v210(src.data(), dst.data(), -1);
    EXPECT_EQ(dst[0], 128);
}

TEST(YuvsToV210, keeps_divisors_255_and_254)
{
    Bytes src{1, 0, 2, 1, 3, 2, 4, 3, 5, 254, 6, 255}, dst(12);
    yuvs_to_v210(src.data(), dst.data(), 6);
    EXPECT_EQ(dst, (Bytes{16, 16, 16, 17, 16, 18, 17, 19, 239, 20, 240, 21}));
}

TEST(Yuv2ToV210, inverts_the_top_bit_of_chroma)
{
    Bytes frame{0, 0x00, 255, 0x7F, 0, 0x81, 0, 0x80};
    yuv2_to_v210(frame.data(), frame.data(), 4);
    EXPECT_EQ(frame, (Bytes{128, 16, 240, 235, 16, 16, 16, 16}));
}

}  // namespace
