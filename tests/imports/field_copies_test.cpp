// Every copy of the field routines by name, size and order.
#include <algorithm>
#include <map>

#include "field_copies.h"

namespace tintvert::test {
namespace {

TEST_F(FieldCopies, each_mode)
{
    EXPECT_EQ(change(1, true), (Log{copy("dst+10", "dst", 7), copy("dst+30", "dst+14", 7)}));
    EXPECT_EQ(change(2, true), (Log{copy("dst", "dst+7", 7), copy("dst+20", "dst+21", 7)}));
    EXPECT_EQ(change(3, true), (Log{"ZKAlloc(10)", copy("block1", "dst+7", 7), copy("dst+7", "dst", 7),
                                    copy("dst", "block1", 7), copy("block1", "dst+21", 7), copy("dst+21", "dst+20", 7),
                                    copy("dst+20", "block1", 7), "ZKFree(block1)"}));
    EXPECT_EQ(change(4, true), Log{});
    EXPECT_EQ(change(5, true, 4), (Log{copy("dst+10", "src+7", 7), copy("dst+30", "src+21", 7)}));
    EXPECT_EQ(change(6, true, 4), (Log{copy("dst+10", "src", 7), copy("dst+30", "src+14", 7)}));
    EXPECT_EQ(change(7, true, 4), (Log{copy("dst", "src+7", 7), copy("dst+20", "src+21", 7)}));
    EXPECT_EQ(change(8, true, 4), (Log{copy("dst", "src", 7), copy("dst+20", "src+14", 7)}));
    EXPECT_EQ(change(9, true), (Log{copy("dst", "src", 7), copy("dst+10", "src", 7), copy("dst+20", "src+14", 7),
                                    copy("dst+30", "src+14", 7)}));
    EXPECT_EQ(change(10, true), (Log{copy("dst", "src+7", 7), copy("dst+10", "src+7", 7), copy("dst+20", "src+21", 7),
                                     copy("dst+30", "src+21", 7)}));
    EXPECT_EQ(change(11, true), (Log{copy("dst", "src", 7), copy("dst+20", "src+14", 7)}));
    EXPECT_EQ(change(12, true),
              (Log{copy("dst", "src+7", 7), copy("dst+10", "src+7", 7), copy("dst+30", "src+21", 7)}));
    EXPECT_EQ(change(13, true), (Log{copy("dst", "src", 10), copy("dst+20", "src+7", 10), copy("dst+10", "src+14", 10),
                                     copy("dst+30", "src+21", 10)}));
    EXPECT_EQ(change(13, false), (Log{copy("dst", "dst", 7), copy("dst+10", "dst+14", 7)}));
    EXPECT_EQ(change(14, true), (Log{copy("dst+20", "src", 7), copy("dst", "src+7", 7), copy("dst+30", "src+14", 7),
                                     copy("dst+10", "src+21", 7)}));
    EXPECT_EQ(change(14, false), (Log{copy("dst", "dst+7", 7), copy("dst+10", "dst+21", 7)}));
    for (const unsigned int mode : {0u, 15u, 0xFFFFFFFFu}) EXPECT_EQ(change(mode, true), Log{});
}

// A source pitch of 0 is the destination's, and counts as bytes to move.
TEST_F(FieldCopies, each_mode_with_one_pitch)
{
    const std::map<unsigned int, Log> expected{{1, {copy("dst+10", "dst", 10)}},
                                               {2, {copy("dst", "dst+10", 10)}},
                                               {3,
                                                {"ZKAlloc(10)", copy("block1", "dst+10", 10), copy("dst+10", "dst", 10),
                                                 copy("dst", "block1", 10), "ZKFree(block1)"}},
                                               {4, {}},
                                               {5, {copy("dst+10", "src+10", 10)}},
                                               {6, {copy("dst+10", "src", 10)}},
                                               {7, {copy("dst", "src+10", 10)}},
                                               {8, {copy("dst", "src", 10)}},
                                               {9, {copy("dst", "src", 10), copy("dst+10", "src", 10)}},
                                               {10, {copy("dst", "src+10", 10), copy("dst+10", "src+10", 10)}},
                                               {11, {copy("dst", "src", 10)}},
                                               {12, {copy("dst", "src+10", 10), copy("dst+10", "src+10", 10)}},
                                               {13, {copy("dst", "src", 10), copy("dst+10", "src+10", 10)}},
                                               {14, {copy("dst+10", "src", 10), copy("dst", "src+10", 10)}}};
    for (const auto& [mode, log] : expected) EXPECT_EQ(change(mode, true, 2, 0), log) << mode;
}

// The repeating modes have no test for a null source, and the YCbCr entry sends 11 and 12 to them.
TEST_F(FieldCopies, null_source_of_repeated_lines)
{
    for (const unsigned int mode : {9u, 11u}) {
        SetUp();
        calls().throw_at("CopyMemoryFast", 1);
        EXPECT_THROW(tntvt_change_field_yuv(dst.data(), mode, 2, 4, 10, nullptr, 7), Thrown);
        EXPECT_EQ(calls().log, Log{copy("dst", "null", 7)});
    }
    for (const unsigned int mode : {10u, 12u}) {
        SetUp();
        calls().name("page0", reinterpret_cast<void*>(1), 63);
        calls().throw_at("CopyMemoryFast", 1);
        EXPECT_THROW(tntvt_change_field_yuv(dst.data(), mode, 2, 4, 10, nullptr, 7), Thrown);
        EXPECT_EQ(calls().log, Log{copy("dst", "page0+6", 7)});
    }
}

// The entry copy of modes 11 and 12 from null: from the address `srcStride`, to line 0, before the answer -2.
TEST_F(FieldCopies, keeps_entry_copy)
{
    for (const unsigned int mode : {11u, 12u}) {
        for (const unsigned int height : {0u, 1u, 4u}) {
            SetUp();
            calls().name("page0", reinterpret_cast<void*>(1), 63);
            calls().throw_at("CopyMemoryFast", 1);
            EXPECT_THROW(tntvt_change_field_rgb(dst.data(), mode, 2, height, 10, nullptr, 7), Thrown);
            EXPECT_EQ(calls().log, Log{copy("dst", "page0+6", 7)});
        }
        // Line 1 of both at one address: no copy.
        SetUp();
        EXPECT_EQ(tntvt_change_field_rgb(nullptr, mode, 2, 4, 7, nullptr, 7), -2);
        EXPECT_EQ(calls().log, Log{});
    }
    // A null destination with a source: mode 11 copies to null before anything else.
    SetUp();
    calls().throw_at("CopyMemoryFast", 1);
    EXPECT_THROW(tntvt_change_field_rgb(nullptr, 11, 2, 0, 10, src.data(), 7), Thrown);
    EXPECT_EQ(calls().log, Log{copy("null", "src+7", 7)});
    // With both there, mode 11 has no entry copy, and an empty frame none at all.
    EXPECT_EQ(change(11, true, 1), Log{});
    EXPECT_EQ(change(12, true, 1), Log{copy("dst", "src+7", 7)});
}

TEST_F(FieldCopies, whole_lines_of_the_deinterlacer)
{
    const auto asked = [&](int mode, unsigned char* from) {
        SetUp();
        EXPECT_EQ(tntvt_deinterlace_rgb(dst.data(), from, 1, 5, 11, 5, 5, 0, mode), 0);
        return calls().log;
    };
    EXPECT_EQ(asked(16, src.data()),
              (Log{copy("dst", "src", 11), copy("dst+22", "src+22", 11), copy("dst+44", "src+44", 11)}));
    EXPECT_EQ(asked(17, src.data()), (Log{copy("dst+11", "src+11", 11), copy("dst+33", "src+33", 11)}));
    EXPECT_EQ(asked(17, dst.data()), (Log{copy("dst+11", "dst+11", 11), copy("dst+33", "dst+33", 11)}));
    EXPECT_EQ(asked(2, src.data()), Log{});
    EXPECT_EQ(asked(0, src.data()), Log{});
    EXPECT_EQ(tntvt_deinterlace_yuv(dst.data(), src.data(), 1, 5, 11, 5, 5, 0, 16), -1);
    EXPECT_EQ(calls().log, Log{});
}

TEST_F(FieldCopies, mixing)
{
    tntvt_fld_sep_to_mix32(dst.data(), 20, src.data(), &src[60], 15, 3, 5);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src", 12), copy("dst+20", "src+60", 12), copy("dst+40", "src+15", 12),
                                copy("dst+60", "src+75", 12), copy("dst+80", "src+30", 12)}));
    SetUp();
    tntvt_fld_mix_to_sep32(dst.data(), &dst[60], 15, src.data(), 20, 3, 5);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src", 12), copy("dst+60", "src+20", 12), copy("dst+15", "src+40", 12),
                                copy("dst+75", "src+60", 12), copy("dst+30", "src+80", 12)}));
    SetUp();
    tntvt_fld_sep_to_mix32(dst.data(), 20, src.data(), &src[60], 15, 0x40000000, 1);
    EXPECT_EQ(calls().log, Log{copy("dst", "src", 0)});
}

TEST_F(FieldCopies, interleaved)
{
    tntvt_copy_interleaved(dst.data(), 20, src.data(), 15, 0, 3);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src", 15), copy("dst+20", "src+15", 15), copy("dst+40", "src+30", 15)}));
    SetUp();
    tntvt_copy_interleaved(dst.data(), 15, dst.data(), 20, 0, 2);
    EXPECT_EQ(calls().log, (Log{copy("dst", "dst", 15), copy("dst+15", "dst+20", 15)}));
    SetUp();
    tntvt_copy_interleaved(dst.data(), 15, src.data(), 15, 0, 3);
    EXPECT_EQ(calls().log, Log{copy("dst", "src", 45)});
    // The smaller of 8 and -8 is -8, which is 0xFFFFFFF8 bytes.
    SetUp();
    calls().throw_at("CopyMemoryFast", 1);
    EXPECT_THROW(tntvt_copy_interleaved(dst.data(), 8, src.data(), -8, 0, 1), Thrown);
    EXPECT_EQ(calls().log, Log{"CopyMemoryFast(dst, src, 4294967288)"});
}

TEST_F(FieldCopies, dissolve_asks_for_the_class)
{
    const std::string order[] = {"fccIsYCbCr8", "fccIsYCbCr10", "fccIsDPX", "fccIsRGB"};
    Log asked;
    for (const std::string& predicate : order) {
        asked.push_back(predicate + "(2271560481)");
        for (const long height : {0L, 1L}) {
            SetUp();
            calls().fourcc_class = predicate;
            dst.fill(0), src.fill(0x7C);
            EXPECT_EQ(tntvt_copy_dissolve(dst.data(), src.data(), 8, 2, height, 0x87654321), 0);
            EXPECT_EQ(calls().log, asked);
        }
        // Two pixels of 2 bytes, one word of two thirds of two, and two pixels of 4 bytes.
        EXPECT_EQ(std::ranges::count(dst, 0), predicate == "fccIsRGB" ? 120 : 124);
    }
    SetUp();
    EXPECT_EQ(tntvt_copy_dissolve(dst.data(), src.data(), 8, 2, 1, 0x87654321), -1);
    EXPECT_EQ(calls().log, asked);
}

}  // namespace
}  // namespace tintvert::test
