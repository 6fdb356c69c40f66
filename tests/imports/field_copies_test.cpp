// Every copy of the field routines by name, size and order; and what becomes of a call whose copy, scratch
// line or predicate throws.
#include <sys/mman.h>
#include <tintvert/field.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>

#include "recorder.h"

namespace tintvert::test {
namespace {

std::string copy(const std::string& to, const std::string& from, int bytes)
{
    return "CopyMemoryFast(" + to + ", " + from + ", " + std::to_string(bytes) + ')';
}

std::string report(const std::string& text)
{
    return "ErrFmtOut(3221225472, 0, 0, ERROR(Tintvert): %s\n\r, " + text + ')';
}

class FieldCopies : public Imports {
protected:
    std::array<unsigned char, 128> dst{}, src{};

    void SetUp() override
    {
        Imports::SetUp();
        calls().name("dst", dst.data(), dst.size());
        calls().name("src", src.data(), src.size());
        for (size_t i = 0; i < dst.size(); ++i)
            dst[i] = static_cast<unsigned char>(i + 1), src[i] = static_cast<unsigned char>(i + 129);
    }

    // What a call of mode `mode` on 5 lines of 10 bytes asks for, with source lines of 7.
    Log change(unsigned int mode, bool from_src, unsigned int height = 5, unsigned int src_stride = 7)
    {
        SetUp();
        EXPECT_EQ(tntvt_change_field_rgb(dst.data(), mode, 2, height, 10, from_src ? src.data() : nullptr, src_stride),
                  0);
        return calls().log;
    }
};

// Offsets that pass 2^32 go on at 0. Two lines of 0xFFFFFFF8 bytes, eight of which are margin. Nothing is copied.
TEST_F(FieldCopies, of_lines_beside_a_margin_wrap)
{
    constexpr size_t most = size_t{9} << 30;
    auto* const frame = static_cast<unsigned char*>(
        mmap(nullptr, most, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    ASSERT_NE(frame, MAP_FAILED);
    calls().name("frame", frame, most);
    calls().copies = false;
    const auto set = [&] { frame[0] = frame[0xFFFFFFF0] = frame[0xFFFFFFE8] = frame[0xFFFFFFF8] = 0xEE; };
    const auto flip = [&](unsigned int flags) {
        set();
        calls().log.clear();
        tntvt_flip_vert_flags(frame, src.data(), 0, 0, 2, 0xFFFFFFF8, 0xFFFFFFF0, flags, 0);
    };
    flip(0x1000000);
    ASSERT_EQ(calls().log.size(), 2u);
    EXPECT_EQ(calls().log[0].substr(0, 24), "CopyMemoryFast(frame+8, ");
    EXPECT_EQ(calls().log[1].substr(0, 22), "CopyMemoryFast(frame, ");
    EXPECT_EQ(frame[0], 0);
    EXPECT_EQ(frame[0xFFFFFFF8], 0);
    EXPECT_EQ(frame[0xFFFFFFF0], 0xEE);
    flip(0x2000000);
    EXPECT_EQ(calls().log[1].substr(0, 33), "CopyMemoryFast(frame+4294967288, ");
    EXPECT_EQ(frame[0xFFFFFFF0], 0);
    EXPECT_EQ(frame[0xFFFFFFE8], 0);
    EXPECT_EQ(frame[0xFFFFFFF8], 0xEE);
    munmap(frame, most);
}

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

TEST_F(FieldCopies, flips)
{
    tntvt_flip_vert(dst.data(), src.data(), 0, 3, 9);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src+18", 9), copy("dst+9", "src+9", 9), copy("dst+18", "src", 9)}));
    SetUp();
    tntvt_flip_vert(dst.data(), dst.data(), 0, 5, 9);
    EXPECT_EQ(calls().log, (Log{"ZKAlloc(10)", copy("block1", "dst", 9), copy("dst", "dst+36", 9),
                                copy("dst+36", "block1", 9), copy("block1", "dst+9", 9), copy("dst+9", "dst+27", 9),
                                copy("dst+27", "block1", 9), "ZKFree(block1)"}));
    SetUp();
    tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 2, 10, 7, 0x4000000, 0);
    EXPECT_EQ(calls().log, (Log{copy("dst+2", "src+7", 7), copy("dst+12", "src", 7)}));
    SetUp();
    tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 2, 10, 7, 0x8000000, 1);
    EXPECT_EQ(calls().log, (Log{copy("dst+1", "src+7", 7), copy("dst+11", "src", 7)}));
    SetUp();
    tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 2, 7, 10, 0x1000000, 0);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src+10", 10), copy("dst+7", "src", 10)}));
    SetUp();
    tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, 5, 10, 7, 0x1000000, 0);
    EXPECT_EQ(calls().log, (Log{"ZKAlloc(11)", copy("block1", "dst", 10), copy("dst", "dst+40", 7),
                                copy("dst+40", "block1", 10), copy("block1", "dst+10", 10), copy("dst+10", "dst+30", 7),
                                copy("dst+30", "block1", 10), "ZKFree(block1)"}));
    SetUp();
    tntvt_flip_horz(dst.data(), src.data(), 3, 3, 12);
    tntvt_flip_horz(dst.data(), dst.data(), 3, 3, 12);
    EXPECT_EQ(calls().log, Log{});
}

// The request is a 32-bit count: a byte more than 0xFFFFFFFF is 0.
TEST_F(FieldCopies, keeps_spare_byte)
{
    for (const int height : {0, 1}) {
        tntvt_flip_vert(dst.data(), dst.data(), 0, height, 0xFFFFFFFF);
        tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, height, 0xFFFFFFFF, 7, 0x1000000, 0);
    }
    EXPECT_EQ(calls().log, (Log{"ZKAlloc(0)", "ZKFree(block1)", "ZKAlloc(0)", "ZKFree(block2)", "ZKAlloc(0)",
                                "ZKFree(block3)", "ZKAlloc(0)", "ZKFree(block4)"}));
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

// The three routines that catch: for each copy, the calls up to it, the report, and then the release.
TEST_F(FieldCopies, keeps_success_after_failure)
{
    struct Handler {
        const char* text;
        std::function<int()> call;
        size_t first, second;  // where the lines of the first round stand
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
        // The allocator stands outside the handler, and so does the release.
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
