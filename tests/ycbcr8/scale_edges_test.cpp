#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

Bytes scaled(int value, unsigned int up)
{
    Bytes group(4, static_cast<unsigned char>(value));
    tntvt_2vuy_scale(group.data(), 4, up);
    return group;
}

// Value, luma down, chroma down, luma rule up, chroma rule up.
constexpr unsigned char rows[][5] = {
    {0, 16, 16, 0, 0},         {16, 29, 30, 0, 0},        {17, 30, 30, 1, 1},
    {128, 125, 128, 130, 127}, {235, 217, 223, 255, 249}, {236, 218, 224, 255, 250},
    {240, 222, 227, 255, 255}, {241, 222, 228, 255, 255}, {255, 235, 241, 255, 255},
};

TEST(ScaleEdges, expected_rows_down)
{
    for (const auto& [value, luma, chroma, luma_up, chroma_up] : rows)
        EXPECT_EQ(scaled(value, 0), (Bytes{chroma, luma, chroma, luma})) << +value;
}

TEST(ScaleEdges, keeps_exchanged_tables_going_up)
{
    for (const auto& [value, luma, chroma, luma_up, chroma_up] : rows)
        EXPECT_EQ(scaled(value, 1), (Bytes{luma_up, chroma_up, luma_up, chroma_up})) << +value;
}

TEST(ScaleEdges, any_other_value_than_zero_is_up)
{
    for (const unsigned int up : {1u, 2u, 0x100u, 0x80000000u, 0xFFFFFFFFu})
        EXPECT_EQ(scaled(128, up), (Bytes{130, 127, 130, 127})) << up;
}

// Of n bytes all groups that have begun are scaled whole.
TEST(ScaleEdges, a_group_begun_is_finished)
{
    for (const unsigned int up : {0u, 1u}) {
        for (unsigned int bytes = 0; bytes <= 13; ++bytes) {
            Bytes buffer(20, 100);
            tntvt_2vuy_scale(buffer.data(), bytes, up);
            const unsigned int changed = (bytes + 3) / 4 * 4;
            for (unsigned int i = 0; i < 20; ++i) EXPECT_EQ(buffer[i] != 100, i < changed) << bytes << ' ' << i;
        }
    }
}

TEST(ScaleEdges, nothing_is_no_access)
{
    tntvt_2vuy_scale(nullptr, 0, 0);
    tntvt_2vuy_scale(nullptr, 0, 1);
}

TEST(ScaleEdges, keeps_divisors_one_above_the_span)
{
    Bytes group{128, 0, 1, 255};
    tntvt_2vuy_scale(group.data(), 4, 0);
    EXPECT_EQ(group, (Bytes{128, 16, 16, 235}));
    tntvt_2vuy_scale(group.data(), 4, 1);
    EXPECT_EQ(group, (Bytes{130, 0, 0, 249}));
}

}  // namespace
