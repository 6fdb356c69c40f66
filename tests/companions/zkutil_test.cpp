#include <gtest/gtest.h>
#include <zkutil.h>

#include <map>
#include <string>
#include <vector>

#include "support/random.h"

namespace tintvert::test {
namespace {

TEST(ZkUtil, names_mmx_as_bit_0x20)
{
    EXPECT_EQ((CPUFeatureFlags() & 0x20) != 0, __builtin_cpu_supports("mmx") != 0);
    EXPECT_EQ(CPUFeatureFlags() & ~(ZKUTIL_CPU_MMX | ZKUTIL_CPU_SSE2 | ZKUTIL_CPU_SSSE3 | ZKUTIL_CPU_AVX2), 0u);
    EXPECT_EQ(CPUFeatureFlags(), CPUFeatureFlags());
}

// Every overlap of two blocks within 64 bytes of each other, at lengths around the sizes of registers.
TEST(ZkUtil, copies_overlapping_blocks)
{
    Random random(1);
    const std::vector<uint8_t> before = random.bytes(512);
    for (const unsigned int bytes : {0u, 1u, 2u, 7u, 8u, 15u, 16u, 31u, 32u, 33u, 63u, 64u, 65u, 127u, 128u, 300u}) {
        for (int offset = -64; offset <= 64; ++offset) {
            const size_t from = 96, to = static_cast<size_t>(96 + offset);
            std::vector<uint8_t> expected = before;
            for (size_t i = 0; i < bytes; ++i) expected[to + i] = before[from + i];
            std::vector<uint8_t> got = before;
            CopyMemoryFast(&got[to], &got[from], bytes);
            ASSERT_EQ(got, expected) << bytes << " bytes, " << offset << " apart";
        }
    }
    CopyMemoryFast(nullptr, nullptr, 0);
}

TEST(ZkUtil, gives_and_takes_blocks)
{
    for (const unsigned int bytes : {1u, 31u, 4096u, 1u << 20}) {
        auto* const block = static_cast<uint8_t*>(ZKAlloc(bytes));
        ASSERT_NE(block, nullptr);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % alignof(std::max_align_t), 0u);
        block[0] = 1;
        block[bytes - 1] = 2;
        ZKFree(block);
    }
    ZKFree(nullptr);
}

TEST(ZkUtil, writes_what_the_format_says_and_nothing_else)
{
    testing::internal::CaptureStderr();
    ErrFmtOut(0xC0000000, 0, 0, "%s: %d of %5.2f%%\n\r", "frame", -3, 2.5);
    ErrFmtOut(0, 1, 2, "no end");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "frame: -3 of  2.50%\n\rno end");
}

const std::map<std::string, std::vector<std::string>> classes = {
    {"YCbCr8",
     {"2vuy", "2Vuy", "UYVY", "UYNV", "HDYC", "Y422", "yuv2", "yuvs", "yuvu", "YUY2", "YUYV", "YUNV", "V422", "VYUY",
      "YVYU"}},
    {"YCbCr10", {"v210", "V210"}},
    {"DPX", {"r210", "R10k", "R10g", "R10b", "R10l", "AVrp"}},
    {"RGB", {"BGRA", "ARGB", "RGBA", "ABGR", "BGRX", "XRGB", "RGBX", "XBGR", "rgba", "abgr", "RGB4", "BGR4"}},
};

unsigned int number_of(const std::string& letters)
{
    unsigned int number = 0;
    for (size_t i = 0; i < 4; ++i) number |= static_cast<unsigned int>(letters[i]) << (8 * i);
    return number;
}

// The names of all classes to which `code` belongs.
std::string classes_of(unsigned int code)
{
    std::string names;
    for (const auto& [name, answer] : {std::pair{"YCbCr8", fccIsYCbCr8(code)}, std::pair{"YCbCr10", fccIsYCbCr10(code)},
                                       std::pair{"DPX", fccIsDPX(code)}, std::pair{"RGB", fccIsRGB(code)}}) {
        EXPECT_TRUE(answer == 0 || answer == 1) << name << ' ' << std::hex << code;
        if (answer != 0) names += name;
    }
    return names;
}

std::map<unsigned int, std::string> all_codes()
{
    std::map<unsigned int, std::string> all;
    for (const auto& [name, codes] : classes) {
        for (const std::string& letters : codes) {
            all[number_of(letters)] = name;
            all[number_of({letters.rbegin(), letters.rend()})] = name;
        }
    }
    return all;
}

TEST(FourCc, gives_the_class_of_each_code_and_of_its_mirror_image)
{
    EXPECT_EQ(number_of("v210"), 0x30313276u);
    EXPECT_EQ(fccIsYCbCr10(0x30313276), 1);
    EXPECT_EQ(fccIsYCbCr10(0x76323130), 1);
    for (const auto& [code, name] : all_codes()) EXPECT_EQ(classes_of(code), name) << std::hex << code;
}

TEST(FourCc, knows_no_other_code)
{
    const std::map<unsigned int, std::string> all = all_codes();
    for (const auto& [code, name] : all) {
        for (int bit = 0; bit < 32; ++bit) {
            const unsigned int near = code ^ 1u << bit;
            EXPECT_EQ(classes_of(near), all.contains(near) ? all.at(near) : "") << std::hex << near;
        }
    }
    for (const char* letters : {"raw ", "v410", "v216", "i420", "NV12", "b64a", "2yuv", "    "})
        EXPECT_EQ(classes_of(number_of(letters)), "") << letters;
    for (const unsigned int code : {0u, 3u, 24u, 32u, 0xFFFFFFFFu}) EXPECT_EQ(classes_of(code), "") << code;
}

}  // namespace
}  // namespace tintvert::test
