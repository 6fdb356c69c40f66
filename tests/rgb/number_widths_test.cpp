// Widths, heights and strides are 64-bit numbers: a count whose low half is 0 is still work, one below 0 whose low
// half is 1 is none, and a line lies where the whole stride says.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert/rgb.h>

#include <climits>
#include <functional>
#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Call = std::function<void(void*, long, void*, long, long, long)>;

// Where a line is in its stride, and which signs of `height` are work.
enum class Lines { forward, upside_down, backward, crossed };
enum class Heights { both_signs, positive, low_32_bits };

struct Routine {
    const char* name;
    Call call;
    Lines lines = Lines::forward;
    Heights heights = Heights::both_signs;
};

auto with_bits(void (*routine)(void*, long, void*, long, long, long, unsigned int))
{
    return [routine](void* dst, long ds, void* src, long ss, long w, long h) { routine(dst, ds, src, ss, w, h, 16); };
}
auto with_order(void (*routine)(void*, long, void*, long, long, long, unsigned int, unsigned int))
{
    return
        [routine](void* dst, long ds, void* src, long ss, long w, long h) { routine(dst, ds, src, ss, w, h, 16, 2); };
}
auto with_flags(void (*routine)(void*, long, void*, long, long, long, unsigned char, unsigned char))
{
    return [routine](void* dst, long ds, void* src, long ss, long w, long h) { routine(dst, ds, src, ss, w, h, 1, 0); };
}

#define ROUTINE(name, ...)       \
    {                            \
#name, name, __VA_ARGS__ \
    }
#define ROUTINE_WITH(what, name, ...)         \
    {                                         \
#name, with_##what(name), __VA_ARGS__ \
    }

const std::vector<Routine>& strided()
{
    static const std::vector<Routine> all = {
        ROUTINE(tntvt_rgba32_bgra32_inplace),
        ROUTINE(tntvt_rgb32_bgr32_inplace),
        ROUTINE(tntvt_rgba32_abgr32_inplace),
        ROUTINE(tntvt_rgba32_argb32),
        ROUTINE(tntvt_argb32_rgba32),
        ROUTINE(tntvt_rgba32_rgb24_inplace),
        ROUTINE(tntvt_rgba32_bgr24_inplace),
        ROUTINE(tntvt_rgba32_rgb24_invert, Lines::upside_down),
        ROUTINE(tntvt_rgb24_rgba32, Lines::backward),
        ROUTINE(tntvt_rgb24_bgra32_inplace, Lines::backward),
        ROUTINE(tntvt_rgb16_rgba32, Lines::backward),
        ROUTINE(tntvt_macbgr24_macargb32_inplace, Lines::backward, Heights::positive),
        {"tntvt_rgba24_rgb32_invert",
         [](void* dst, long ds, void* src, long ss, long w, long h) {
             tntvt_rgba24_rgb32_invert(src, ds, dst, ss, w, h);
         },
         Lines::crossed},
        ROUTINE_WITH(bits, tntvt_rgb48_rgba32, Lines::backward),
        ROUTINE_WITH(bits, tntvt_bgr48_rgba32, Lines::backward, Heights::low_32_bits),
        ROUTINE_WITH(bits, tntvt_rgba64_rgba32, Lines::backward, Heights::positive),
        ROUTINE_WITH(bits, tntvt_argb64_rgba32, Lines::backward, Heights::positive),
        ROUTINE_WITH(bits, tntvt_abgr64_rgba32, Lines::backward, Heights::positive),
        ROUTINE_WITH(bits, tntvt_bgra64_rgba32, Lines::backward, Heights::positive),
        ROUTINE_WITH(bits, tntvt_rgba32_rgb48, Lines::backward),
        ROUTINE_WITH(bits, tntvt_rgba32_bgr48, Lines::backward, Heights::low_32_bits),
        ROUTINE_WITH(bits, tntvt_rgba32_rgba64, Lines::backward, Heights::positive),
        ROUTINE_WITH(bits, tntvt_rgba32_argb64, Lines::backward, Heights::positive),
        ROUTINE(tntvt_bgra32_rgba64, Lines::backward, Heights::positive),
        ROUTINE_WITH(order, tntvt_argb64be_rgba64, Lines::backward, Heights::positive),
        ROUTINE_WITH(order, tntvt_argb64be_rgb48, Lines::backward, Heights::positive),
        ROUTINE_WITH(order, tntvt_argb64be_rgba32, Lines::backward, Heights::positive),
        ROUTINE_WITH(order, tntvt_argb64be_rgb24, Lines::backward),
        ROUTINE(tntvt_rgb12_bgr48),
        ROUTINE(tntvt_rgb12_rgb48),
        ROUTINE(tntvt_rgb12_rgba32),
        ROUTINE(tntvt_rgb48_12_rgb12),
        ROUTINE(tntvt_rgb48_rgb12),
        ROUTINE(tntvt_rgb48_12_rgba32),
        ROUTINE(tntvt_rgba_full, Lines::forward, Heights::positive),
    };
    return all;
}

// The strided routines and those that take no stride.
std::vector<Routine> counting()
{
    std::vector<Routine> all = strided();
    all.push_back(ROUTINE_WITH(flags, tntvt_rgb10_rgba64, Lines::forward, Heights::positive));
    all.push_back(ROUTINE_WITH(flags, tntvt_rgb10_rgb48, Lines::forward, Heights::positive));
    all.push_back(ROUTINE_WITH(flags, tntvt_rgb10_rgba32, Lines::forward, Heights::positive));
    return all;
}

constexpr long whole = 1l << 32;

// A page amid address space that is closed for more than 2^32 bytes on either side.
class ClosedAround {
public:
    ClosedAround() : map_(mmap(nullptr, 2 * around, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0))
    {
        if (map_ == MAP_FAILED) throw std::bad_alloc();
        mprotect(page(), 4096, PROT_READ | PROT_WRITE);
    }
    ~ClosedAround() { munmap(map_, 2 * around); }
    uint8_t* page() const { return static_cast<uint8_t*>(map_) + around; }

private:
    static constexpr size_t around = whole + 65536;
    void* map_;
};

// Strides of 1 and 0 keep 2^32 lines in that space. They differ, so that no frame is copied as one block.
TEST(RgbNumberWidths, counts_of_2_to_the_32_are_work)
{
    const ClosedAround memory;
    for (const Routine& routine : counting()) {
        uint8_t *dst = memory.page() + 1024, *src = memory.page() + 2048;
        EXPECT_TRUE(faults([&] { routine.call(dst, 1, src, 0, whole, 1); })) << routine.name << ", width";
        if (routine.heights == Heights::low_32_bits) continue;
        EXPECT_TRUE(faults([&] { routine.call(dst, 1, src, 0, 1, whole); })) << routine.name << ", height";
        if (routine.heights == Heights::positive) continue;
        EXPECT_TRUE(faults([&] { routine.call(dst, 1, src, 0, 1, -whole); })) << routine.name << ", height below 0";
    }
}

TEST(RgbNumberWidths, counts_around_minus_2_to_the_32_are_none)
{
    const ClosedAround memory;
    uint8_t* const closed = memory.page() + 8192;
    for (const Routine& routine : counting()) {
        EXPECT_FALSE(faults([&] { routine.call(closed, 1, closed, 0, 1 - whole, 1); })) << routine.name << ", width";
        EXPECT_FALSE(faults([&] { routine.call(closed, 1, closed, 0, 1, LONG_MIN); })) << routine.name << ", height";
        if (routine.heights != Heights::positive) continue;
        EXPECT_FALSE(faults([&] { routine.call(closed, 1, closed, 0, 1, 1 - whole); })) << routine.name << ", height";
    }
}

// A stride of 2^32 + 1 cuts no packed line after one byte.
TEST(RgbNumberWidths, packed_lines_end_at_the_whole_stride)
{
    for (auto* routine : {tntvt_rgb48_12_rgb12, tntvt_rgb48_rgb12}) {
        Bytes src(16, 0x11), dst(13, 0xEE);
        routine(dst.data(), whole + 1, src.data(), 16, 1, 1);
        for (size_t i = 0; i < 12; ++i) EXPECT_NE(dst[i], 0xEE) << i;
        EXPECT_EQ(dst[12], 0xEE);
    }
}

// Two frames of two lines, each further from the next than 2^32 bytes.
class FarLines : public testing::Test {
protected:
    static constexpr size_t size = 2 * whole + 65536;
    static constexpr long before = 4096;
    static constexpr long window = 256;  // more than a line of 8 pixels takes

    void SetUp() override
    {
        for (uint8_t** memory : {&dst, &src}) {
            void* const mapped =
                mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
            ASSERT_NE(mapped, MAP_FAILED);
            *memory = static_cast<uint8_t*>(mapped) + before;
        }
    }
    void TearDown() override
    {
        for (uint8_t* memory : {dst, src})
            if (memory != nullptr) munmap(memory - before, size);
    }

    // The bytes in which destination line `line` is, and the source line that goes there.
    static long dst_window(Lines lines, long line, long stride)
    {
        if (lines == Lines::crossed) return line * stride - window;
        return lines == Lines::backward ? (line + 1) * stride - window : line * stride;
    }
    static long src_window(Lines lines, long line, long stride)
    {
        if (lines == Lines::crossed || lines == Lines::upside_down) line = 1 - line;
        return dst_window(lines, line, stride);
    }

    uint8_t *dst = nullptr, *src = nullptr;
};

TEST_F(FarLines, are_found_at_the_whole_stride)
{
    constexpr long dst_stride = whole + 4096, src_stride = whole + 8192;
    for (const Routine& routine : strided()) {
        for (long line = 0; line < 2; ++line) {
            uint8_t* const from = src + src_window(routine.lines, line, src_stride);
            for (long i = 0; i < window; ++i) from[i] = static_cast<uint8_t>(i * 7 + line * 91 + 1);
            std::fill_n(dst + dst_window(routine.lines, line, dst_stride), window, uint8_t{0xEE});
        }
        routine.call(dst, dst_stride, src, src_stride, 8, 2);
        for (long line = 0; line < 2; ++line) {
            const uint8_t* const from = src + src_window(routine.lines, line, src_stride);
            const uint8_t* const to = dst + dst_window(routine.lines, line, dst_stride);
            // The same line alone, at the start of a near buffer. A stride of its own makes no block of a frame.
            Bytes near_src(from, from + window), near(window, 0xEE);
            const long start = routine.lines == Lines::crossed ? window : 0;
            routine.call(near.data() + start, window, near_src.data() + start,
                         routine.lines == Lines::forward ? window - 4 : window, 8, 1);
            EXPECT_NE(near, Bytes(window, 0xEE)) << routine.name;
            EXPECT_EQ(Bytes(to, to + window), near) << routine.name << ", line " << line;
        }
    }
}

}  // namespace
}  // namespace tintvert::test
