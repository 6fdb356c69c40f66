#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

TEST(BgraTo2vuy, pure_blue)
{
    std::vector<unsigned char> src(24, 0);
    for (size_t i = 0; i < src.size(); i += 4) src[i] = 255;
    std::vector<unsigned char> dst(12, 0xEE);
    bgra_to_2vuy(src.data(), dst.data(), 6);
    EXPECT_EQ(dst, (std::vector<unsigned char>{211, 40, 114, 40, 239, 40, 109, 40, 239, 40, 109, 40}));
}

}  // namespace
