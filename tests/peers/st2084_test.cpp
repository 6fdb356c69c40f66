// The ST 2084 tables against zimg's curve. They truncate, so that a curve of single precision may miss an entry by 1.
#include <gtest/gtest.h>
#include <tintvert.h>

#ifndef TINTVERT_PEER_ZIMG
TEST(ZimgSt2084, all) { GTEST_SKIP() << "skipped: zimg is not installed"; }
#else

#include "peers/compare.h"
#include "peers/zimg.h"

namespace tintvert::test {
namespace {

// zimg's curve at i / `entries`, times `entries`, truncated, for every i.
std::vector<unsigned int> curve(unsigned int entries, bool to_signal)
{
    std::vector<float> line;
    for (unsigned int i = 0; i < entries; ++i) line.push_back(static_cast<float>(i) / static_cast<float>(entries));
    ZimgForm linear = rgb_full, signal = rgb_full;
    linear.transfer = ZIMG_TRANSFER_LINEAR;
    signal.transfer = ZIMG_TRANSFER_ST2084;
    const Size size{static_cast<long>(entries), 1};
    const Planes<float> planes = to_signal ? zimg<float, float>({line, line, line}, linear, signal, size)
                                           : zimg<float, float>({line, line, line}, signal, linear, size);
    std::vector<unsigned int> codes;
    for (const float value : planes[0]) codes.push_back(static_cast<unsigned int>(value * static_cast<float>(entries)));
    return codes;
}

std::vector<unsigned int> table(const unsigned int* first, unsigned int entries) { return {first, first + entries}; }

// The means are counts of entries off by 1.
TEST(ZimgSt2084, forward_tables)
{
    EXPECT_TRUE(same(table(get_ardwRGB_to_SMPTE2048_8Bit(), 256), curve(256, true)));
    EXPECT_TRUE(within(1, 1.0 / 1024, table(get_ardwRGB_to_SMPTE2048_10Bit(), 1024), curve(1024, true)));
    EXPECT_TRUE(within(1, 24.0 / 4096, table(get_ardwRGB_to_SMPTE2048_12Bit(), 4096), curve(4096, true)));
}

TEST(ZimgSt2084, reverse_table)
{
    EXPECT_TRUE(within(1, 35.0 / 4096, table(get_ardwSMPTE2048_to_RGB_12Bit(), 4096), curve(4096, false)));
}

}  // namespace
}  // namespace tintvert::test

#endif
