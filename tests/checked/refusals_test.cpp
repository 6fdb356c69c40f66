// Numbers that no routine is called with: every rule, every kind, and numbers without sense.
#include "refusals.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>
#include <sstream>

#include "checked_call.h"
#include "extents.h"
#include "routine_id.h"

namespace tintvert::test {
namespace {

using catalog::Arg;
using checked::Code;
using checked::Refusal;

struct Row {
    const char* routine;
    const char* numbers;  // by argument name; those that are left out are 0
    Refusal refusal;      // none: the call is not refused
};

constexpr Row rows[] = {
    {"malloc_own_cache_lines", "size=-1", Refusal::reads_as_unsigned},
    {"malloc_own_cache_lines", "size=0", Refusal::none},

    {"tntvt_rgb32_2vuy", "width=65536 height=32768", Refusal::wraps},
    {"tntvt_rgb32_2vuy", "width=65536 height=32767", Refusal::none},
    {"tntvt_yuv2_2vuy", "width=-65536 height=32768", Refusal::wraps},
    {"tntvt_yuvu_2vuy", "width=65536 height=65536", Refusal::wraps},
    {"tntvt_yuvs_2vuy", "width=46341 height=46341", Refusal::wraps},
    {"tntvt_yuv444_yuv422_8", "width=65536 height=21846", Refusal::wraps},
    {"tntvt_yuv444_yuv422_8", "width=65536 height=21845", Refusal::none},
    {"tntvt_yuv422_yuv444_8", "width=65536 height=21846", Refusal::wraps},
    {"tntvt_planarfields_2vuy", "total=8", Refusal::divides_by_zero},
    {"tntvt_planarfields_2vuy", "total=8 groups=1", Refusal::none},
    {"YUY2toYV12", "width=8 height=4 srcPitch=536870912 dstPitch=8", Refusal::wraps},
    {"YUY2toYV12", "width=8 height=4 srcPitch=536870911 dstPitch=8", Refusal::none},
    {"YUY2toYV12", "width=8 height=4 srcPitch=8 dstPitch=1073741824", Refusal::wraps},
    {"YUY2toYV12", "width=8 height=4 srcPitch=8 dstPitch=1073741823", Refusal::none},
    {"YUY2toYV12", "width=8 height=4 srcPitch=8 dstPitch=-2147483641", Refusal::wraps},
    {"tntvt_i420_2vuy", "width=65536 height=65536", Refusal::wraps},
    {"tntvt_i420_2vuy", "width=8 height=4 stride=1073741824", Refusal::wraps},
    {"tntvt_i420_2vuy", "width=8 height=4 stride=4294967295", Refusal::none},
    {"tntvt_i420_2vuy", "width=1048576 height=2048", Refusal::wraps},
    {"tntvt_yv12_2vuy", "width=8 height=4 stride=1073741824 interlaced=1", Refusal::wraps},
    {"tntvt_2vuy_i420", "width=8 height=4 stride=1073741824", Refusal::wraps},
    {"tntvt_2vuy_yv12", "width=8 height=4 stride=1073741824", Refusal::wraps},
    {"tntvt_rgba_addalpha", "width=-1 height=1", Refusal::reads_as_unsigned},

    {"tntvt_yuv422_rgb24", "width=8 height=8", Refusal::divides_by_zero},
    {"tntvt_yuv422_rgb16", "width=0 height=8", Refusal::none},
    {"tntvt_v210_rgb24", "width=8 height=8", Refusal::divides_by_zero},
    {"tntvt_yuv422_10_rgb24", "width=8 height=8", Refusal::divides_by_zero},
    {"tntvt_yuv422_10_rgb32", "width=8 height=8", Refusal::divides_by_zero},
    {"tntvt_yuv422_10_rgb32", "width=536870912 height=1 scale=1", Refusal::wraps},
    {"tntvt_yuv422_8_rgb24", "width=8 height=8", Refusal::divides_by_zero},
    {"tntvt_yuv422_8_rgb24", "width=8 height=1 scale=1 dstStride=2147483648", Refusal::wraps},
    {"tntvt_yuv422_8_rgb32", "width=8 height=8", Refusal::divides_by_zero},
    {"tntvt_yuv422_8_rgb32", "width=8 height=1 scale=1 srcStride=2147483648", Refusal::wraps},
    {"tntvt_i420_rgb32", "width=536870912 height=1", Refusal::wraps},
    {"tntvt_yv12_rgb32", "width=8 height=1 srcStride=2147483648", Refusal::wraps},
    {"_v210_to_rgb", "width=65536 height=32768", Refusal::wraps},
    {"_v210_to_rgb", "width=6 height=3 dstStride=1073741824", Refusal::wraps},

    {"tntvt_rgb32_v210", "width=65536 height=32768", Refusal::wraps},
    {"tntvt_2vuy_v210", "width=6", Refusal::walks_2_32_lines},
    {"tntvt_2vuy_v210", "width=0", Refusal::none},
    {"tntvt_2vuy_v210", "width=268435456 height=1", Refusal::wraps},
    {"tntvt_yuv422_8_yuv422_10", "width=6", Refusal::walks_2_32_lines},
    {"tntvt_v210_2vuy", "width=268435456 height=1", Refusal::wraps},
    {"tntvt_v210_2vuy", "width=6 height=5 srcStride=1073741824", Refusal::wraps},
    {"tntvt_yuv422_10_yuv422_8", "width=65536 height=65536 srcStride=1", Refusal::wraps},
    {"tntvt_4175_to_v210", "payloadSize=-1", Refusal::wraps},
    {"tntvt_YCbCr10Packed_to_v210", "width=214748365 height=1", Refusal::wraps},
    {"tntvt_YCbCr10Packed_to_v210", "width=65536 height=65536", Refusal::wraps},
    {"tntvt_v210_frame_to_rtp_4175", "width=7 height=1", Refusal::never_returns},
    {"tntvt_v210_frame_to_rtp_4175", "width=536870912 height=1", Refusal::wraps},
    {"tntvt_v210_frame_to_rtp_4175", "width=65536 height=65536", Refusal::wraps},

    {"tntvt_rgb48_12_rgb12", "width=8 height=1 dstStride=-1", Refusal::wraps},
    {"tntvt_rgb48_rgb12", "width=8 height=1 dstStride=-1", Refusal::wraps},
    {"tntvt_rgba_full", "height=1", Refusal::divides_by_zero},
    {"tntvt_rgba_full", "width=4 height=-1 dstStride=16 srcStride=16", Refusal::wraps},
    {"tntvt_rgba_full", "width=65536 height=16384 dstStride=262144 srcStride=262144", Refusal::wraps},
    {"tntvt_rle8_rgb24", "height=0", Refusal::walks_2_32_lines},
    {"tntvt_rle8_rgb24", "height=-1", Refusal::walks_2_32_lines},
    {"tntvt_rle8_rgb32", "height=-1 dstStride=4", Refusal::none},

    {"tntvt_change_field_rgb", "mode=3 height=1", Refusal::walks_2_32_lines},
    {"tntvt_change_field_rgb", "mode=3 height=2 dstStride=8 srcStride=9", Refusal::overruns_scratch},
    {"tntvt_change_field_rgb", "mode=3 height=2 dstStride=8", Refusal::none},
    {"tntvt_change_field_rgb", "mode=5 height=3", Refusal::walks_2_32_lines},
    {"tntvt_change_field_rgb", "mode=8 height=3", Refusal::walks_2_32_lines},
    {"tntvt_change_field_rgb", "mode=9 height=3", Refusal::none},
    {"tntvt_change_field_rgb", "mode=4 height=2 width=1073741824 dstStride=8", Refusal::wraps},
    {"tntvt_change_field_rgb", "mode=9 height=2 dstStride=2147483648", Refusal::wraps},
    {"tntvt_change_field_yuv", "mode=6 height=1", Refusal::walks_2_32_lines},
    {"tntvt_change_field_yuv", "mode=12 height=4 dstStride=8 srcStride=2147483648", Refusal::wraps},
    {"tntvt_change_field_yuv", "mode=0 height=1", Refusal::none},
    {"tntvt_flip_vert", "dst=64 src=64 height=-1 stride=8", Refusal::reads_as_unsigned},
    {"tntvt_flip_vert", "height=-1 stride=8", Refusal::none},
    {"tntvt_flip_vert", "height=1 stride=4294967295", Refusal::wraps},
    {"tntvt_flip_vert", "height=65536 stride=65536", Refusal::wraps},
    {"tntvt_flip_vert_flags", "dst=64 src=64 height=-1 dstStride=8 srcStride=8", Refusal::reads_as_unsigned},
    {"tntvt_flip_vert_flags", "height=65536 dstStride=65536 srcStride=8", Refusal::wraps},
    {"tntvt_flip_vert_flags", "height=1 dstStride=8 srcStride=4294967295", Refusal::wraps},
    {"tntvt_flip_horz", "dst=64 src=64 width=-1 height=1", Refusal::reads_as_unsigned},
    {"tntvt_flip_horz", "width=-1 height=1", Refusal::none},
    {"tntvt_flip_horz", "width=1 height=65536 stride=65536", Refusal::wraps},
    {"tntvt_fld_sep_to_mix32", "width=1073741824 height=1", Refusal::wraps},
    {"tntvt_fld_mix_to_sep32", "width=1073741824 height=1", Refusal::wraps},
    {"tntvt_copy_interleaved", "dstStride=8 srcStride=8 height=-1", Refusal::reads_as_unsigned},
    {"tntvt_copy_interleaved", "dst=64 src=64 dstStride=8 srcStride=8 height=-1", Refusal::none},
    {"tntvt_copy_interleaved", "dstStride=65536 srcStride=65536 height=65536", Refusal::wraps},
    {"tntvt_copy_interleaved", "dstStride=-8 srcStride=8 height=1", Refusal::reads_as_unsigned},
    {"tntvt_copy_interleaved", "dstStride=-8 srcStride=8 height=0", Refusal::none},

    {"tntvt_rgb_to_st2084", "height=-1", Refusal::walks_2_32_lines},
    {"tntvt_st2084_to_rgb", "height=-1", Refusal::walks_2_32_lines},
    {"tntvt_yuv2_to_st2084", "height=-1", Refusal::walks_2_32_lines},
    {"tntvt_st2084_to_yuv2", "height=65536 dstStride=65536", Refusal::wraps},
    {"tntvt_v210_to_st2084", "height=65536 srcStride=65536", Refusal::wraps},
    {"tntvt_st2084_to_v210", "height=-1", Refusal::walks_2_32_lines},

    {"tntvt_rgba32_rgb24", "width=1000000000 height=1000000", Refusal::too_large},
    {"tntvt_rgba32_rgb24", "width=1 height=4611686018427387904", Refusal::too_large},
    {"tntvt_rgba32_rgb24", "width=1 height=1 dstStride=-4294967296", Refusal::too_large},
    {"tntvt_2vuy_scale", "bytes=2147483648", Refusal::too_large},
    {"rgba2argb", "pixels=4294967295", Refusal::too_large},
    {"tntvt_4175_to_v210", "pgroupCount=2147483648", Refusal::too_large},
};

Arg argument_named(const catalog::Routine& routine, const std::string& name)
{
    for (const Arg argument : routine.arguments)
        if (describe(argument).name == name) return argument;
    throw std::runtime_error(std::string{routine.name} + " takes no " + name);
}

catalog::Arguments parse(const catalog::Routine& routine, const char* text)
{
    catalog::Arguments numbers;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const size_t equals = word.find('=');
        numbers[argument_named(routine, word.substr(0, equals))] = std::stoll(word.substr(equals + 1));
    }
    return numbers;
}

// Buffers by their addresses: none of them is memory.
std::vector<Given> buffers_of(const catalog::Routine& routine, const catalog::Arguments& numbers)
{
    std::vector<Given> given;
    for (const Arg argument : routine.arguments)
        if (describe(argument).kind == catalog::Argument::buffer)
            given.push_back({argument, checked::Buffer(numbers.as<void*>(argument), 0)});
    return given;
}

TEST(CheckedRefusals, are_reported_by_kind_and_sentence)
{
    for (const Row& row : rows) {
        const catalog::Routine* routine = catalog::find(row.routine);
        ASSERT_NE(routine, nullptr) << row.routine;
        const catalog::Arguments numbers = parse(*routine, row.numbers);
        checked::Extents extents;
        for (const auto call : {call_checked, call_checked_in_c}) {
            const checked::Status error =
                call(*routine, numbers, buffers_of(*routine, numbers), {.query = &extents}).error;
            EXPECT_EQ(error.refusal, row.refusal) << row.routine << ' ' << row.numbers << ": " << error.message();
            EXPECT_EQ(error.code, row.refusal == Refusal::none ? Code::ok : Code::refused) << row.routine;
            if (row.refusal == Refusal::none) continue;
            const checked::Status called = call(*routine, numbers, buffers_of(*routine, numbers), {}).error;
            EXPECT_EQ(called.code, Code::refused) << row.routine << ' ' << row.numbers;
            EXPECT_EQ(called.message(), std::string{row.routine} + ": " + called.why);
            EXPECT_GT(std::string_view{called.why}.size(), 20u) << row.routine;
        }
    }
}

// Every sentence of every rule has been seen.
TEST(CheckedRefusals, have_a_row_for_every_rule)
{
    std::set<std::string> refusing;
    std::set<Refusal> kinds;
    for (const Row& row : rows) {
        if (row.refusal == Refusal::none) continue;
        refusing.insert(row.routine);
        kinds.insert(row.refusal);
    }
    for (const catalog::Routine& routine : catalog::routines()) {
        if (routine.refuses == nullptr) continue;
        EXPECT_TRUE(refusing.contains(std::string{routine.name})) << routine.name;
    }
    EXPECT_EQ(kinds.size(), static_cast<size_t>(Refusal::overruns_scratch));
}

// Numbers without sense are refused, or their extents are sums that no 64 bits overflow; the undefined
// behaviour sanitizer looks at the sums.
TEST(CheckedRefusals, keep_extents_of_any_numbers_within_64_bits)
{
    constexpr int64_t large[] = {std::numeric_limits<int64_t>::min(),
                                 -(int64_t{1} << 62),
                                 -4294967296,
                                 -2147483648,
                                 -2147483647,
                                 -1,
                                 0,
                                 1,
                                 2,
                                 7,
                                 65536,
                                 1073741823,
                                 2147483647,
                                 2147483648,
                                 4294967295,
                                 int64_t{1} << 62,
                                 std::numeric_limits<int64_t>::max()};
    std::map<bool, int> counts;
    for (const catalog::Routine& routine : catalog::routines()) {
        Random random(31);
        for (int round = 0; round < 3000; ++round) {
            catalog::Arguments numbers;
            for (const Arg argument : routine.arguments)
                if (describe(argument).kind == catalog::Argument::number)
                    numbers[argument] = random.between(0, 3) == 0 ? random.between(0, 20)
                                                                  : large[random.between(0, std::size(large) - 1)];
            checked::Extents extents;
            const Answer answer = call_checked(routine, numbers, {}, {.query = &extents});
            ++counts[answer.error.code == Code::refused];
            for (const checked::Touch& touch : extents)
                for (const checked::Range& range : {touch.read, touch.written}) {
                    ASSERT_LT(std::abs(range.from), int64_t{1} << 54) << text_of(routine, numbers);
                    ASSERT_LT(std::abs(range.to), int64_t{1} << 54) << text_of(routine, numbers);
                }
        }
    }
    EXPECT_GT(counts[true], 100000);
    EXPECT_GT(counts[false], 50000);
}

// Empty entries take anything.
TEST(CheckedRefusals, are_none_where_nothing_is_done)
{
    EXPECT_TRUE(checked::tntvt_rgb8_rgb32({}, -1, {}, -1, -1, -1).ok());
    EXPECT_TRUE(checked::tntvt_yuv411_yuv422_8({}, {}, 4294967295, 4294967295, 4294967295).ok());
}

}  // namespace
}  // namespace tintvert::test
