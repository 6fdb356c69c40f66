#include <gtest/gtest.h>
#include <kmrutil.h>

#include <climits>

namespace {

TEST(GetMatrixBySize, standard_definition_ends_at_1024_by_576)
{
    for (const auto& [width, height] : {std::pair{720, 486}, {720, 576}, {768, 576}, {1024, 576}, {1, 1}, {0, 0}})
        EXPECT_EQ(GetMatrixBySize(width, height, 0), 601u) << width << 'x' << height;
    EXPECT_EQ(GetMatrixBySize(1025, 576, 0), 709u);
    EXPECT_EQ(GetMatrixBySize(1024, 577, 0), 709u);
}

TEST(GetMatrixBySize, bt2020_begins_at_3840_by_2160)
{
    EXPECT_EQ(GetMatrixBySize(3839, 2160, 0), 709u);
    EXPECT_EQ(GetMatrixBySize(3840, 2159, 0), 709u);
    for (const auto& [width, height] : {std::pair{3840, 2160}, {4096, 2160}, {7680, 4320}})
        EXPECT_EQ(GetMatrixBySize(width, height, 0), 2020u) << width << 'x' << height;
}

TEST(GetMatrixBySize, high_definition_between)
{
    for (const auto& [width, height] : {std::pair{1280, 720}, {1920, 1080}, {2048, 1080}, {720, 1280}})
        EXPECT_EQ(GetMatrixBySize(width, height, 0), 709u) << width << 'x' << height;
}

TEST(GetMatrixBySize, the_sign_of_height_and_the_third_argument_say_nothing)
{
    EXPECT_EQ(GetMatrixBySize(720, -576, 0), 601u);
    EXPECT_EQ(GetMatrixBySize(720, -577, 0), 709u);
    EXPECT_EQ(GetMatrixBySize(3840, -2160, 7), 2020u);
    EXPECT_EQ(GetMatrixBySize(100, INT_MIN, 0), 709u);
}

}  // namespace
