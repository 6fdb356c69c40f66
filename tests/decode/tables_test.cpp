// The first-use tables, as they are in the library's memory. A process has one first use only, so each of
// these tests runs in one that is started for it.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <cstdlib>
#include <functional>

#include "reference/decode/decoding_tables.h"
#include "support/library_memory.h"
#include "support/v210.h"

namespace tintvert::test {
namespace {

using reference::Table;

void in_a_new_process(const std::function<void()>& work)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            work();
            std::_Exit(testing::Test::HasFailure() ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
}

// The 8-bit tables are once more inside the 10-bit ones, which have the same values around their zeroes.
void expect_use_of(bool shared, bool ten_bits)
{
    for (const Table& table : reference::tables_of_2vuy())
        EXPECT_EQ(places_in_library(table.bytes).size(), size_t{shared} + size_t{ten_bits}) << table.name;
    for (const Table& table : reference::tables_of_v210())
        EXPECT_EQ(places_in_library(table.bytes).size(), size_t{ten_bits}) << table.name;
}

void expect_filling(const std::function<void()>& call, bool shared, bool ten_bits)
{
    in_a_new_process([&] {
        expect_use_of(false, false);
        call();
        expect_use_of(shared, ten_bits);
    });
}

// No pixel is touched in any of these calls.
TEST(Tables, of_v210_rgb24_are_built_before_the_geometry_is_looked_at)
{
    expect_filling([] { tntvt_v210_rgb24(nullptr, 8, nullptr, 16, 0, 1, 1); }, true, false);
    expect_filling([] { tntvt_v210_rgb24(nullptr, 8, nullptr, 16, 2, 0, 1); }, true, false);
}

TEST(Tables, of_v210_rgb16_are_built_before_the_geometry_is_looked_at)
{
    expect_filling([] { tntvt_v210_rgb16(nullptr, 8, nullptr, 16, -2, 1, 0); }, true, false);
    expect_filling([] { tntvt_v210_rgb16(nullptr, 8, nullptr, 16, 2, 1, 2); }, true, false);
}

TEST(Tables, of_v210_to_rgb_are_built_for_an_empty_frame)
{
    expect_filling([] { _v210_to_rgb(nullptr, nullptr, 0, 1, 4, 1); }, false, true);
    expect_filling([] { _v210_to_rgb(nullptr, nullptr, 1, 0, 4, 1); }, false, true);
}

TEST(Tables, are_built_by_init_alone)
{
    expect_filling([] { init_v210_to_rgb(); }, false, true);
}

TEST(Tables, are_not_built_by_what_needs_none)
{
    Memory group = v210({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}), pixel(4);
    v210FourWords out;
    expect_filling(
        [&] {
            _v210_get_next_4words(reinterpret_cast<unsigned int*>(group.data()), &out);
            tntvt_yuvijg_rgb32(pixel.data(), 4, group.data(), 3, 1, 1);
        },
        false, false);
}

Memory white_pixel()
{
    Memory src = v210({512, 940, 512, 940, 512, 940, 512, 940, 512, 940, 512, 940}), dst(24);
    _v210_to_rgb(src.data(), dst.data(), 6, 1, 24, 1);
    return {dst[0], dst[1], dst[2], dst[3]};
}

// A table that is spoilt stays so for all that tests the guard.
TEST(Tables, keeps_filling_on_every_call)
{
    in_a_new_process([] {
        EXPECT_EQ(white_pixel(), (Memory{254, 254, 254, 255}));
        const Memory entries = reference::tables_of_v210().front().bytes;
        overwrite_in_library(places_in_library(entries).at(0), Memory(entries.size()));
        EXPECT_EQ(white_pixel(), (Memory{0, 0, 0, 255}));
        EXPECT_TRUE(places_in_library(entries).empty());
        init_v210_to_rgb();
        EXPECT_FALSE(places_in_library(entries).empty());
        EXPECT_EQ(white_pixel(), (Memory{254, 254, 254, 255}));
    });
}

TEST(Tables, are_built_once_by_v210_rgb24)
{
    in_a_new_process([] {
        Memory src = v210({512, 940, 512, 940, 512, 940}), dst(6);
        tntvt_v210_rgb24(dst.data(), 6, src.data(), 16, 2, 1, 1);
        EXPECT_EQ(dst, Memory(6, 254));
        const Memory entries = reference::tables_of_2vuy().front().bytes;
        overwrite_in_library(places_in_library(entries).at(0), Memory(entries.size()));
        tntvt_v210_rgb24(dst.data(), 6, src.data(), 16, 2, 1, 1);
        EXPECT_EQ(dst, Memory(6, 0));
    });
}

TEST(Tables, wrong_entry_is_not_found)
{
    in_a_new_process([] {
        init_v210_to_rgb();
        Table table = reference::tables_of_v210().front();
        EXPECT_EQ(places_in_library(table.bytes).size(), 1u);
        table.bytes.back() ^= 1;
        EXPECT_TRUE(places_in_library(table.bytes).empty());
    });
}

// The entries that show the rule, so that what is looked for is right.
TEST(Tables, expected_entries_of_ten_bits)
{
    using namespace reference;
    EXPECT_EQ(luma_term_10(0), -1192);
    EXPECT_EQ(luma_term_10(64), 0);
    EXPECT_EQ(luma_term_10(940), 16319);
    EXPECT_EQ(luma_term_10(1023), 17866);
    const int codes[] = {0, 512, 1023};
    const int green_of_cb[] = {3209, 0, -3203}, blue[] = {-16525, 0, 16492};
    const int red[] = {-13074, 0, 13049}, green_of_cr[] = {6659, 0, -6646};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(green_term_of_cb_10(codes[i]), green_of_cb[i]);
        EXPECT_EQ(blue_term_10(codes[i]), blue[i]);
        EXPECT_EQ(red_term_10(codes[i]), red[i]);
        EXPECT_EQ(green_term_of_cr_10(codes[i]), green_of_cr[i]);
    }
}

}  // namespace
}  // namespace tintvert::test
