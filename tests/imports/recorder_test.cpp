// The recorder itself: what it logs, and that it is what the library calls.
#include "recorder.h"

#include <dlfcn.h>
#include <kmrutil.h>
#include <ycbcr.h>
#include <zkutil.h>

#include <array>

namespace tintvert::test {
namespace {

class RecorderTest : public Imports {};

// The library's calls are bound to the first of a name in the order of the program's libraries.
TEST_F(RecorderTest, comes_before_the_companions)
{
    Dl_info where = {}, here = {};
    for (const char* name : {"CPUFeatureFlags", "CopyMemoryFast", "ZKAlloc", "ZKFree", "ErrFmtOut", "fccIsYCbCr8",
                             "fccIsYCbCr10", "fccIsDPX", "fccIsRGB", "GetMatrixBySize", "cycbcr_uyvy_to_rgb32",
                             "cycbcr_012v_to_rgb32", "cycbcr_i420_to_rgb32", "cycbcr_yv12_to_rgb32"}) {
        void* const first = dlsym(RTLD_DEFAULT, name);
        ASSERT_NE(first, nullptr) << name;
        ASSERT_NE(dladdr(first, &where), 0) << name;
        ASSERT_NE(dladdr(reinterpret_cast<void*>(&calls), &here), 0);
        EXPECT_EQ(where.dli_fbase, here.dli_fbase) << name << " is that of " << where.dli_fname;
    }
}

TEST_F(RecorderTest, logs_numbers_texts_and_places)
{
    std::array<uint8_t, 8> bytes{};
    calls().name("src", bytes.data(), bytes.size());
    void* const block = ZKAlloc(4);
    CopyMemoryFast(block, &bytes[3], 4);
    ErrFmtOut(0xC0000000, 0, 1, "<%s>", "text");
    ZKFree(block);
    ZKFree(nullptr);
    uint8_t unnamed;
    CopyMemoryFast(&unnamed, bytes.data(), 0);
    EXPECT_EQ(calls().log,
              (Log{"ZKAlloc(4)", "CopyMemoryFast(block1, src+3, 4)", "ErrFmtOut(3221225472, 0, 1, <%s>, text)",
                   "ZKFree(block1)", "ZKFree(null)", "CopyMemoryFast(elsewhere, src, 0)"}));
    EXPECT_EQ(calls().count("CopyMemoryFast"), 2);
    EXPECT_EQ(calls().count("ZK"), 0);
}

TEST_F(RecorderTest, throws_at_the_given_call_before_the_copy)
{
    uint8_t from = 1, to = 0;
    calls().throw_at("CopyMemoryFast", 2);
    CopyMemoryFast(&to, &from, 0);
    EXPECT_THROW(CopyMemoryFast(&to, &from, 1), Thrown);
    EXPECT_EQ(to, 0);
    CopyMemoryFast(&to, &from, 1);
    EXPECT_EQ(to, 1);
}

TEST_F(RecorderTest, answers_for_one_class_of_codes)
{
    calls().fourcc_class = "fccIsDPX";
    EXPECT_EQ(fccIsYCbCr8(7) + fccIsYCbCr10(7) + fccIsRGB(7), 0);
    EXPECT_EQ(fccIsDPX(7), 1);
    EXPECT_EQ(calls().log, (Log{"fccIsYCbCr8(7)", "fccIsYCbCr10(7)", "fccIsRGB(7)", "fccIsDPX(7)"}));
}

TEST_F(RecorderTest, answers_with_the_matrix_and_logs_the_decoders)
{
    std::array<uint8_t, 8> bytes{};
    calls().name("frame", bytes.data(), bytes.size());
    calls().matrix = 0xFFFFFFFF;
    EXPECT_EQ(GetMatrixBySize(1, -2, 3), 0xFFFFFFFFu);
    cycbcr_uyvy_to_rgb32(bytes.data(), &bytes[1], 1, 2, 3, 4, 5, 6);
    cycbcr_012v_to_rgb32(bytes.data(), &bytes[2], 1, -2, 3, 4, 5, 6);
    cycbcr_i420_to_rgb32(bytes.data(), &bytes[3], 1, 2, -3, 4, 5, 6);
    cycbcr_yv12_to_rgb32(bytes.data(), &bytes[4], 1, 2, 3, -4, 0xFFFFFFFF, 0x8000);
    EXPECT_EQ(calls().log, (Log{"GetMatrixBySize(1, -2, 3)", "cycbcr_uyvy_to_rgb32(frame, frame+1, 1, 2, 3, 4, 5, 6)",
                                "cycbcr_012v_to_rgb32(frame, frame+2, 1, -2, 3, 4, 5, 6)",
                                "cycbcr_i420_to_rgb32(frame, frame+3, 1, 2, -3, 4, 5, 6)",
                                "cycbcr_yv12_to_rgb32(frame, frame+4, 1, 2, 3, -4, 4294967295, 32768)"}));
}

}  // namespace
}  // namespace tintvert::test
