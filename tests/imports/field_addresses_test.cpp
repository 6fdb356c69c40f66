// Where the lines are whose pitches double beyond 2^32, and which copies are left out: the copies are logged only,
// so that lines may be longer than any memory.
#include <tintvert/field.h>

#include <climits>
#include <cstdint>

#include "recorder.h"

namespace tintvert::test {
namespace {

constexpr uint32_t to_pitch = 0x80000010, from_pitch = 0x80000004;
constexpr size_t span = size_t{1} << 34;

// Twice a pitch is 0x20 or 8. Rows 1 and 3 are a whole pitch after rows 0 and 2.
constexpr uint64_t to_row[] = {0, 0x80000010, 0x20, 0x80000030};
constexpr uint64_t from_row[] = {0, 0x80000004, 8, 0x8000000C};

// Frames at addresses that hold nothing.
class FieldAddresses : public Imports {
protected:
    unsigned char* const dst = reinterpret_cast<unsigned char*>(uintptr_t{1} << 40);
    unsigned char* const src = reinterpret_cast<unsigned char*>(uintptr_t{1} << 41);

    void SetUp() override
    {
        Imports::SetUp();
        calls().copies = false;
        calls().name("dst", dst, span);
        calls().name("src", src, span);
    }

    Log change(unsigned int mode, unsigned int height, bool from_src = true)
    {
        SetUp();
        EXPECT_EQ(tntvt_change_field_rgb(dst, mode, 0, height, to_pitch, from_src ? src : nullptr, from_pitch), 0);
        return calls().log;
    }

    static std::string place(const char* frame, uint64_t offset)
    {
        return offset == 0 ? std::string{frame} : frame + ('+' + std::to_string(offset));
    }
    static std::string copy(const std::string& to, const std::string& from, uint32_t bytes = from_pitch)
    {
        return "CopyMemoryFast(" + to + ", " + from + ", " + std::to_string(bytes) + ')';
    }
    static std::string to(int row) { return place("dst", to_row[row]); }
    static std::string own(int row) { return place("dst", from_row[row]); }  // `dst` at the source's pitch
    static std::string from(int row) { return place("src", from_row[row]); }
};

TEST_F(FieldAddresses, of_modes_in_place)
{
    EXPECT_EQ(change(1, 4), (Log{copy(to(1), own(0)), copy(to(3), own(2))}));
    EXPECT_EQ(change(2, 4), (Log{copy(to(0), own(1)), copy(to(2), own(3))}));
    calls().log.clear();
    calls().allocate = [](unsigned int) { return reinterpret_cast<void*>(uintptr_t{1} << 42); };
    EXPECT_EQ(tntvt_change_field_rgb(dst, 3, 0, 4, to_pitch, src, from_pitch), 0);
    const std::string scratch = "elsewhere";
    EXPECT_EQ(calls().log,
              (Log{"ZKAlloc(2147483664)", copy(scratch, own(1)), copy(own(1), to(0)), copy(to(0), scratch),
                   copy(scratch, own(3)), copy(own(3), to(2)), copy(to(2), scratch), "ZKFree(" + scratch + ')'}));
}

TEST_F(FieldAddresses, of_copied_and_repeated_fields)
{
    EXPECT_EQ(change(5, 4), (Log{copy(to(1), from(1)), copy(to(3), from(3))}));
    EXPECT_EQ(change(6, 4), (Log{copy(to(1), from(0)), copy(to(3), from(2))}));
    EXPECT_EQ(change(7, 4), (Log{copy(to(0), from(1)), copy(to(2), from(3))}));
    EXPECT_EQ(change(8, 4), (Log{copy(to(0), from(0)), copy(to(2), from(2))}));
    EXPECT_EQ(change(9, 4),
              (Log{copy(to(0), from(0)), copy(to(1), from(0)), copy(to(2), from(2)), copy(to(3), from(2))}));
    EXPECT_EQ(change(10, 4),
              (Log{copy(to(0), from(1)), copy(to(1), from(1)), copy(to(2), from(3)), copy(to(3), from(3))}));
}

// The bottom half of two lines begins at 2 x 0x80000010 = 0x20. Within a half lines are a whole pitch apart.
TEST_F(FieldAddresses, of_split_fields)
{
    const std::string top[] = {"dst", place("dst", to_pitch)};
    const std::string bottom[] = {place("dst", 0x20), place("dst", 0x20 + uint64_t{to_pitch})};
    EXPECT_EQ(change(13, 4), (Log{copy(top[0], from(0), to_pitch), copy(bottom[0], from(1), to_pitch),
                                  copy(top[1], from(2), to_pitch), copy(bottom[1], from(3), to_pitch)}));
    EXPECT_EQ(change(14, 4),
              (Log{copy(bottom[0], from(0)), copy(top[0], from(1)), copy(bottom[1], from(2)), copy(top[1], from(3))}));
    EXPECT_EQ(change(13, 4, false), (Log{copy(top[0], own(0)), copy(top[1], own(2))}));
    EXPECT_EQ(change(14, 4, false), (Log{copy(top[0], own(1)), copy(top[1], own(3))}));
    // Three lines to a half: 3 x 0x80000010 is 0x80000030, and line 2 is two unwrapped pitches on.
    const Log six = change(14, 6);
    ASSERT_EQ(six.size(), 6u);
    EXPECT_EQ(six[4], copy(place("dst", 0x80000030 + 2 * uint64_t{to_pitch}), place("src", 16)));
    EXPECT_EQ(six[5], copy(place("dst", 2 * uint64_t{to_pitch}), place("src", 0x80000014)));
}

// Lines of 0x80000010 bytes: 0, 0x80000010, 2 x that is 0x20, 3 x 0x80000030 and 4 x 0x40.
TEST_F(FieldAddresses, of_flipped_lines)
{
    tntvt_flip_vert(dst, src, 0, 3, to_pitch);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src+32", to_pitch), copy(to(1), "src+2147483664", to_pitch),
                                copy(to(2), "src", to_pitch)}));
    SetUp();
    tntvt_flip_vert_flags(dst, src, 0, 0, 3, to_pitch, from_pitch, 0, 1);
    EXPECT_EQ(calls().log, (Log{copy("dst", from(2)), copy(to(1), from(1)), copy(to(2), "src")}));
    SetUp();
    const auto scratch = [](unsigned int) { return reinterpret_cast<void*>(uintptr_t{1} << 42); };
    calls().allocate = scratch;
    tntvt_flip_vert(dst, dst, 0, 5, to_pitch);
    const Log turned = {"ZKAlloc(2147483665)",
                        copy("elsewhere", "dst", to_pitch),
                        copy("dst", "dst+64", to_pitch),
                        copy("dst+64", "elsewhere", to_pitch),
                        copy("elsewhere", to(1), to_pitch),
                        copy(to(1), to(3), to_pitch),
                        copy(to(3), "elsewhere", to_pitch),
                        "ZKFree(elsewhere)"};
    EXPECT_EQ(calls().log, turned);
    SetUp();
    calls().allocate = scratch;
    tntvt_flip_vert_flags(dst, dst, 0, 0, 5, to_pitch, to_pitch, 0x1000000, 0);
    EXPECT_EQ(calls().log, turned);
}

// A destination pitch of 2^31 and more is above a source pitch of 4: the margin is no number below 0.
TEST_F(FieldAddresses, of_lines_after_a_margin_of_2_to_the_31)
{
    const auto placed = [&](unsigned int pitch, unsigned int flags) {
        SetUp();
        tntvt_flip_vert_flags(dst, src, 0, 0, 1, pitch, 4, flags, 1);
        return calls().log;
    };
    EXPECT_EQ(placed(0x80000007, 0x1000000), Log{copy("dst+2147483651", "src", 4)});
    EXPECT_EQ(placed(0x80000007, 0x2000000), Log{copy("dst", "src", 4)});
    EXPECT_EQ(placed(0x80000007, 0x4000000), Log{copy("dst+1073741826", "src", 4)});
    EXPECT_EQ(placed(0x80000007, 0x8000000), Log{copy("dst+1073741825", "src", 4)});
    EXPECT_EQ(placed(0xFFFFFFFF, 0x1000000), Log{copy("dst+4294967291", "src", 4)});
    EXPECT_EQ(placed(0xFFFFFFFF, 0x4000000), Log{copy("dst+2147483646", "src", 4)});
}

// Sizes of 2^31 bytes and more are copied whole, and these two go on to the next line by a pointer or 64 bits.
TEST_F(FieldAddresses, of_long_lines_that_do_not_wrap)
{
    EXPECT_EQ(tntvt_deinterlace_rgb(dst, src, 0, 3, to_pitch, 0, 0, 0, 16), 0);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src", to_pitch), copy("dst+4294967328", "src+4294967328", to_pitch)}));
    SetUp();
    tntvt_fld_sep_to_mix32(dst, 0x80000004, src, src + 16, 0x80000008, 0x20000001, 4);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src", 0x80000004), copy("dst+2147483652", "src+16", 0x80000004),
                                copy("dst+4294967304", "src+2147483656", 0x80000004),
                                copy("dst+6442450956", "src+2147483672", 0x80000004)}));
}

// Each of the two copies of a repeated line is left out by itself where its two addresses are one.
TEST_F(FieldAddresses, a_repeated_line_is_copied_onto_neither_of_its_places)
{
    const auto repeat = [&](unsigned int mode, unsigned char* source) {
        SetUp();
        EXPECT_EQ(tntvt_change_field_rgb(dst, mode, 0, 4, 8, source, 0), 0);
        return calls().log;
    };
    EXPECT_EQ(repeat(9, dst), (Log{copy("dst+8", "dst", 8), copy("dst+24", "dst+16", 8)}));
    EXPECT_EQ(repeat(9, dst + 8), (Log{copy("dst", "dst+8", 8), copy("dst+16", "dst+24", 8)}));
    EXPECT_EQ(repeat(10, dst), (Log{copy("dst", "dst+8", 8), copy("dst+16", "dst+24", 8)}));
    EXPECT_EQ(repeat(10, dst - 8), (Log{copy("dst+8", "dst", 8), copy("dst+24", "dst+16", 8)}));
}

// Any answer but 0 is a yes.
TEST_F(FieldAddresses, a_predicate_says_yes_with_any_number)
{
    for (const char* predicate : {"fccIsYCbCr8", "fccIsYCbCr10", "fccIsDPX", "fccIsRGB"})
        for (const int yes : {-1, 2, 0x100, 0x10000, INT_MIN}) {
            SetUp();
            calls().fourcc_class = predicate;
            calls().yes = yes;
            EXPECT_EQ(tntvt_copy_dissolve(dst, src, 8, 2, 0, 7), 0) << predicate << ' ' << yes;
            EXPECT_EQ(calls().log.back(), std::string{predicate} + "(7)") << yes;
        }
}

// The strides are one in 32 bits: the product of the one copy is not asked for.
TEST_F(FieldAddresses, interleaved_strides_are_compared_whole)
{
    tntvt_copy_interleaved(dst, 0x100000008, src, 8, 0, 2);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src", 8), copy("dst+4294967304", "src+8", 8)}));
}

}  // namespace
}  // namespace tintvert::test
