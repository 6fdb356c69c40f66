// What becomes of a call of a field routine whose copy, scratch line or predicate throws.
#include <functional>
#include <utility>
#include <vector>

#include "field_copies.h"

namespace tintvert::test {
namespace {

// The three routines that catch: for each copy, the calls up to it, the report, and then the release.
TEST_F(FieldCopies, keeps_success_after_failure)
{
    struct Handler {
        const char* text;
        std::function<int()> call;
        size_t first, second;  // where the lines of the first round are
        size_t moved_first, moved_second;
    };
    unsigned char* const frame = dst.data();
    const Handler handlers[] = {
        {"exception-tntvt_change_field_rgb(FieldFLip) ",
         [=] { return tntvt_change_field_rgb(frame, 3, 0, 6, 8, nullptr, 0); }, 0, 8, 8, 8},
        {"exception-tntvt_change_field_rgb(FieldFLip) ",
         [=] { return tntvt_change_field_yuv(frame, 3, 0, 6, 8, nullptr, 8); }, 0, 8, 8, 8},
        {"exception-tntvt_flip_vert() ", [=] { return tntvt_flip_vert(frame, frame, 0, 6, 8), 0; }, 0, 40, 8, 8},
        {"exception-tntvt_flip_vert_flags() ",
         [=] { return tntvt_flip_vert_flags(frame, frame, 0, 0, 6, 8, 5, 0, 0), 0; }, 0, 40, 5, 8}};
    for (const Handler& handler : handlers) {
        SetUp();
        EXPECT_EQ(handler.call(), 0);
        const Log clean = calls().log;
        const auto finished = dst;
        ASSERT_EQ(clean.size(), 11u);
        for (int nth = 1; nth <= 9; ++nth) {
            SetUp();
            const auto untouched = dst;
            calls().throw_at("CopyMemoryFast", nth);
            EXPECT_EQ(handler.call(), 0);
            Log expected(clean.begin(), clean.begin() + 1 + nth);
            expected.push_back(report(handler.text));
            expected.push_back("ZKFree(block1)");
            EXPECT_EQ(calls().log, expected);
            // After the first round its lines are as in the end; before the second copy nothing has moved.
            if (nth <= 2) {
                EXPECT_EQ(dst, untouched) << handler.text << nth;
            }
            for (size_t i = 0; i < handler.moved_first && nth > 3; ++i)
                EXPECT_EQ(dst[handler.first + i], finished[handler.first + i]) << handler.text << nth;
            for (size_t i = 0; i < handler.moved_second && nth > 3; ++i)
                EXPECT_EQ(dst[handler.second + i], finished[handler.second + i]) << handler.text << nth;
        }
    }
}

// Half a round: the first line has come to the second place and has not been replaced yet.
TEST_F(FieldCopies, round_in_progress_stays_half_done)
{
    calls().throw_at("CopyMemoryFast", 3);
    EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 3, 0, 4, 4, nullptr, 0), 0);
    EXPECT_EQ(std::vector(dst.begin(), dst.begin() + 8), (std::vector<unsigned char>{1, 2, 3, 4, 1, 2, 3, 4}));
    SetUp();
    calls().throw_at("CopyMemoryFast", 3);
    tntvt_flip_vert(dst.data(), dst.data(), 0, 2, 4);
    EXPECT_EQ(std::vector(dst.begin(), dst.begin() + 8), (std::vector<unsigned char>{5, 6, 7, 8, 5, 6, 7, 8}));
    // Margins are cleared before the copies that may fail: two rounds, of which the first fails at once.
    SetUp();
    calls().throw_at("CopyMemoryFast", 1);
    tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, 4, 4, 3, 0x2000000, 0);
    EXPECT_EQ(std::vector(dst.begin(), dst.begin() + 8), (std::vector<unsigned char>{1, 2, 3, 0, 5, 6, 7, 8}));
}

// A null scratch line is used as it is: the first copy goes to null, and null is released.
TEST_F(FieldCopies, scratch_is_not_tested)
{
    const std::pair<const char*, std::function<void()>> routines[] = {
        {"exception-tntvt_change_field_rgb(FieldFLip) ",
         [&] { EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 3, 0, 2, 8, nullptr, 0), 0); }},
        {"exception-tntvt_flip_vert() ", [&] { tntvt_flip_vert(dst.data(), dst.data(), 0, 2, 8); }},
        {"exception-tntvt_flip_vert_flags() ",
         [&] { tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, 2, 8, 8, 0, 0); }}};
    for (const auto& [text, routine] : routines) {
        SetUp();
        calls().allocate = [](unsigned int) -> void* { return nullptr; };
        calls().throw_at("CopyMemoryFast", 1);
        routine();
        ASSERT_EQ(calls().log.size(), 4u);
        EXPECT_TRUE(calls().log[1].starts_with("CopyMemoryFast(null, dst")) << calls().log[1];
        EXPECT_EQ(calls().log[2], report(text));
        EXPECT_EQ(calls().log[3], "ZKFree(null)");
        // The allocator is outside the handler, and so is the release.
        SetUp();
        calls().throw_at("ZKAlloc", 1);
        EXPECT_THROW(routine(), Thrown);
        EXPECT_EQ(calls().log.size(), 1u);
        SetUp();
        calls().allocate = [&](unsigned int) -> void* { return src.data(); };
        calls().throw_at("ZKFree", 1);
        EXPECT_THROW(routine(), Thrown);
        EXPECT_EQ(calls().log.size(), 5u);
        EXPECT_EQ(calls().count("ErrFmtOut"), 0);
    }
}

// Nothing else catches: what a companion throws comes out, and no report is made.
TEST_F(FieldCopies, other_exceptions_pass_through)
{
    const std::function<void()> copying[] = {
        [&] { tntvt_flip_vert(dst.data(), src.data(), 0, 4, 8); },
        [&] { tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 4, 8, 8, 0, 0); },
        [&] { tntvt_deinterlace_rgb(dst.data(), src.data(), 1, 6, 8, 0, 0, 0, 16); },
        [&] { tntvt_deinterlace_rgb(dst.data(), src.data(), 1, 6, 8, 0, 0, 0, 17); },
        [&] { tntvt_fld_sep_to_mix32(dst.data(), 8, src.data(), &src[64], 8, 2, 4); },
        [&] { tntvt_fld_mix_to_sep32(dst.data(), &dst[64], 8, src.data(), 8, 2, 4); },
        [&] { tntvt_copy_interleaved(dst.data(), 8, src.data(), 9, 0, 4); }};
    for (const auto& call : copying) {
        SetUp();
        calls().throw_at("CopyMemoryFast", 2);
        EXPECT_THROW(call(), Thrown);
        EXPECT_EQ(calls().log.size(), 2u);
    }
    for (const unsigned int mode : {1u, 2u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 12u, 13u, 14u}) {
        for (const auto change : {tntvt_change_field_rgb, tntvt_change_field_yuv}) {
            SetUp();
            calls().throw_at("CopyMemoryFast", 2);
            EXPECT_THROW(change(dst.data(), mode, 2, 4, 8, src.data(), 0), Thrown) << mode;
            EXPECT_EQ(calls().log.size(), 2u);
        }
    }
    for (const char* predicate : {"fccIsYCbCr8", "fccIsYCbCr10", "fccIsDPX", "fccIsRGB"}) {
        SetUp();
        calls().throw_at(predicate, 1);
        EXPECT_THROW(tntvt_copy_dissolve(dst.data(), src.data(), 8, 2, 4, 1), Thrown);
    }
}

}  // namespace
}  // namespace tintvert::test
