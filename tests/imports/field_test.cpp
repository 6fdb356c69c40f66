// What the field routines ask of the companions: scratch lines, the order of their copies, and what they do
// when a copy throws. Pitches of 0 let a walk run on without leaving its frame.
#include <tintvert/field.h>

#include <array>

#include "recorder.h"

namespace tintvert::test {
namespace {

class FieldImports : public Imports {
protected:
    std::array<unsigned char, 64> dst{}, src{};

    void SetUp() override
    {
        Imports::SetUp();
        calls().name("dst", dst.data(), dst.size());
        calls().name("src", src.data(), src.size());
    }

    int change(unsigned int mode, unsigned int height, unsigned int dst_stride, unsigned int src_stride, bool from_src)
    {
        return tntvt_change_field_rgb(dst.data(), mode, 0, height, dst_stride, from_src ? src.data() : nullptr,
                                      src_stride);
    }
};

TEST_F(FieldImports, keeps_scratch_of_destination_pitch)
{
    EXPECT_EQ(change(3, 4, 10, 6, false), 0);
    EXPECT_EQ(calls().log,
              (Log{"ZKAlloc(10)", "CopyMemoryFast(block1, dst+6, 6)", "CopyMemoryFast(dst+6, dst, 6)",
                   "CopyMemoryFast(dst, block1, 6)", "CopyMemoryFast(block1, dst+18, 6)",
                   "CopyMemoryFast(dst+18, dst+20, 6)", "CopyMemoryFast(dst+20, block1, 6)", "ZKFree(block1)"}));
}

TEST_F(FieldImports, keeps_flip_without_guard)
{
    for (const unsigned int height : {0u, 1u}) {
        calls() = {};
        calls().throw_at("CopyMemoryFast", 3000);
        EXPECT_EQ(change(3, height, 0, 0, false), 0);
        EXPECT_EQ(calls().count("CopyMemoryFast"), 3000);
        EXPECT_EQ(calls().count("ErrFmtOut"), 1);
    }
}

TEST_F(FieldImports, keeps_even_heights_only)
{
    for (const unsigned int mode : {5u, 6u, 7u, 8u}) {
        calls() = {};
        calls().throw_at("CopyMemoryFast", 3000);
        EXPECT_THROW(change(mode, 7, 0, 0, true), Thrown);
        EXPECT_EQ(calls().count("CopyMemoryFast"), 3000);
    }
}

TEST_F(FieldImports, keeps_success_after_failure)
{
    const auto report = [](const char* text) {
        return std::string{"ErrFmtOut(3221225472, 0, 0, ERROR(Tintvert): %s\n\r, "} + text + ')';
    };
    calls().throw_at("CopyMemoryFast", 2);
    EXPECT_EQ(change(3, 4, 8, 8, false), 0);
    EXPECT_EQ(calls().log, (Log{"ZKAlloc(8)", "CopyMemoryFast(block1, dst+8, 8)", "CopyMemoryFast(dst+8, dst, 8)",
                                report("exception-tntvt_change_field_rgb(FieldFLip) "), "ZKFree(block1)"}));
    SetUp();
    calls().throw_at("CopyMemoryFast", 3);
    tntvt_flip_vert(dst.data(), dst.data(), 0, 4, 8);
    EXPECT_EQ(calls().log,
              (Log{"ZKAlloc(9)", "CopyMemoryFast(block1, dst, 8)", "CopyMemoryFast(dst, dst+24, 8)",
                   "CopyMemoryFast(dst+24, block1, 8)", report("exception-tntvt_flip_vert() "), "ZKFree(block1)"}));
    SetUp();
    calls().throw_at("CopyMemoryFast", 1);
    tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, 4, 8, 6, 0, 0);
    EXPECT_EQ(calls().log, (Log{"ZKAlloc(9)", "CopyMemoryFast(block1, dst, 8)",
                                report("exception-tntvt_flip_vert_flags() "), "ZKFree(block1)"}));
}

TEST_F(FieldImports, keeps_entry_copy)
{
    for (const unsigned int mode : {11u, 12u}) {
        SetUp();
        calls().throw_at("CopyMemoryFast", 1);
        EXPECT_THROW(change(mode, 4, 8, 8, false), Thrown);
        EXPECT_EQ(calls().log, (Log{"CopyMemoryFast(dst, elsewhere, 8)"}));
        EXPECT_EQ(tntvt_change_field_rgb(nullptr, mode, 0, 4, 8, nullptr, 8), -2);
    }
    EXPECT_EQ(calls().count("CopyMemoryFast"), 1);
}

TEST_F(FieldImports, copies_no_line_onto_itself)
{
    for (const unsigned int mode : {9u, 10u, 11u, 12u}) {
        SetUp();
        EXPECT_EQ(tntvt_change_field_rgb(dst.data(), mode, 0, 4, 8, dst.data(), 8), 0);
        EXPECT_EQ(calls().count("CopyMemoryFast"), mode < 11 ? 2 : 0);
    }
}

TEST_F(FieldImports, keeps_one_field_in_place)
{
    EXPECT_EQ(change(13, 4, 8, 0, false), 0);
    EXPECT_EQ(change(14, 4, 8, 6, false), 0);
    EXPECT_EQ(calls().log, (Log{"CopyMemoryFast(dst, dst, 8)", "CopyMemoryFast(dst+8, dst+16, 8)",
                                "CopyMemoryFast(dst, dst+6, 6)", "CopyMemoryFast(dst+8, dst+18, 6)"}));
}

TEST_F(FieldImports, keeps_spare_byte)
{
    tntvt_flip_vert(dst.data(), dst.data(), 0, 1, 8);
    tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, 3, 8, 6, 0x1000000, 1);
    EXPECT_EQ(calls().log,
              (Log{"ZKAlloc(9)", "ZKFree(block1)", "ZKAlloc(9)", "CopyMemoryFast(block2, dst, 8)",
                   "CopyMemoryFast(dst, dst+16, 6)", "CopyMemoryFast(dst+16, block2, 8)", "ZKFree(block2)"}));
}

TEST_F(FieldImports, keeps_unsigned_half_of_height)
{
    calls().throw_at("CopyMemoryFast", 3000);
    tntvt_flip_vert(dst.data(), dst.data(), 0, -3, 0);
    EXPECT_EQ(calls().count("CopyMemoryFast"), 3000);
    SetUp();
    calls().throw_at("CopyMemoryFast", 3000);
    tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, -3, 0, 0, 0, 0);
    EXPECT_EQ(calls().count("CopyMemoryFast"), 3000);
    tntvt_flip_vert(dst.data(), src.data(), 0, -3, 8);
    tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, -3, 8, 8, 0, 0);
    EXPECT_EQ(calls().count("CopyMemoryFast"), 3000);
}

TEST_F(FieldImports, keeps_whole_copy_without_guard)
{
    tntvt_copy_interleaved(dst.data(), 8, src.data(), 8, 0, 3);
    tntvt_copy_interleaved(dst.data(), 8, src.data(), 8, 0, 0);
    tntvt_copy_interleaved(dst.data(), 8, dst.data(), 8, 0, 3);
    EXPECT_EQ(calls().log, (Log{"CopyMemoryFast(dst, src, 24)", "CopyMemoryFast(dst, src, 0)"}));
    calls().throw_at("CopyMemoryFast", 1);
    EXPECT_THROW(tntvt_copy_interleaved(dst.data(), 8, src.data(), 8, 0, -1), Thrown);
    EXPECT_EQ(calls().log.back(), "CopyMemoryFast(dst, src, 4294967288)");
    tntvt_copy_interleaved(dst.data(), 8, src.data(), 6, 0, -1);
    EXPECT_EQ(calls().count("CopyMemoryFast"), 3);
}

TEST_F(FieldImports, asks_the_predicates_in_order_and_takes_the_first)
{
    EXPECT_EQ(tntvt_copy_dissolve(dst.data(), src.data(), 8, 1, 0, 7), -1);
    EXPECT_EQ(calls().log, (Log{"fccIsYCbCr8(7)", "fccIsYCbCr10(7)", "fccIsDPX(7)", "fccIsRGB(7)"}));
    calls().log.clear();
    calls().fourcc_class = "fccIsYCbCr10";
    EXPECT_EQ(tntvt_copy_dissolve(dst.data(), src.data(), 8, 1, 0, 7), 0);
    EXPECT_EQ(calls().log, (Log{"fccIsYCbCr8(7)", "fccIsYCbCr10(7)"}));
}

}  // namespace
}  // namespace tintvert::test
