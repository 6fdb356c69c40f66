#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

Bytes scaled(Bytes group, unsigned int up)
{
    tntvt_2vuy_scale(group.data(), static_cast<unsigned int>(group.size()), up);
    return group;
}

TEST(Scale, keeps_241_for_chroma_255)
{
    EXPECT_EQ(scaled({0, 0, 0, 0, 255, 255, 255, 255}, 0), (Bytes{16, 16, 16, 16, 241, 235, 241, 235}));
    EXPECT_EQ(scaled({17, 17, 128, 128, 240, 240, 241, 241}, 0), (Bytes{30, 30, 128, 125, 227, 222, 228, 222}));
}

TEST(Scale, keeps_exchanged_tables_going_up)
{
    EXPECT_EQ(scaled({16, 16, 16, 16, 128, 128, 128, 128}, 1), (Bytes{0, 0, 0, 0, 130, 127, 130, 127}));
    EXPECT_EQ(scaled({235, 235, 236, 236, 240, 240, 241, 241}, 2), (Bytes{255, 249, 255, 250, 255, 255, 255, 255}));
}

TEST(Scale, keeps_divisors_one_above_the_span)
{
    EXPECT_EQ(scaled(scaled({128, 128, 128, 128}, 0), 1), (Bytes{130, 124, 130, 124}));
}

TEST(Scale, last_group_is_whole)
{
    Bytes buffer(12, 0);
    tntvt_2vuy_scale(buffer.data(), 0, 0);
    EXPECT_EQ(buffer, Bytes(12, 0));
    tntvt_2vuy_scale(buffer.data(), 5, 0);
    EXPECT_EQ(buffer, (Bytes{16, 16, 16, 16, 16, 16, 16, 16, 0, 0, 0, 0}));
}

}  // namespace
