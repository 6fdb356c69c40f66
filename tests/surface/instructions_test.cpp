// Which instructions are where. A SIMD version says its level in its name, or in the name of the form that it serves,
// or the width of its registers in its namespace, and nothing else has an instruction that the base level does not
// have; and nothing fuses a multiplication with an addition, which would round once where the matrices round twice.
#include <gtest/gtest.h>

#include <sstream>

#include "surface.h"

namespace tintvert::test {
namespace {

struct Instructions {
    Names simd, fused;  // functions that contain one
};

Instructions instructions_of(const std::string& file)
{
    const Ran ran = run(TINTVERT_OBJDUMP " -d -C --no-show-raw-insn " + file);
    EXPECT_EQ(ran.status, 0) << ran.output;
    Instructions result;
    std::istringstream lines(ran.output);
    std::string function;
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with(">:")) function = line.substr(line.find('<') + 1);
        const size_t tab = line.find('\t');
        if (tab == std::string::npos || line[0] != ' ') continue;
        const std::string mnemonic = line.substr(tab + 1, line.find_first_of(" \n", tab + 1) - tab - 1);
        // Whatever is encoded for AVX and later begins with a v.
        if (mnemonic.starts_with('v')) result.simd.insert(function);
        for (const char* const fused : {"vfmadd", "vfmsub", "vfnmadd", "vfnmsub"})
            if (mnemonic.starts_with(fused)) result.fused.insert(function);
    }
    return result;
}

Names without_level(const Names& functions)
{
    Names result;
    for (const std::string& function : functions) {
        const auto says = [&](const char* level) { return function.find(level) != std::string::npos; };
        if (!says("avx2") && !says("avx512") && !says("width_256::") && !says("width_512::")) result.insert(function);
    }
    return result;
}

class InstructionsOf : public testing::TestWithParam<const char*> {};

TEST_P(InstructionsOf, simd_ones_are_in_functions_that_say_so)
{
#if !defined(__x86_64__) || !defined(__OPTIMIZE__) || defined(TINTVERT_SANITIZED)
    GTEST_SKIP() << "asked of optimized builds for x86-64";
#endif
    EXPECT_EQ(difference(without_level(instructions_of(GetParam()).simd), {}), "");
}

TEST_P(InstructionsOf, none_is_fused) { EXPECT_EQ(difference(instructions_of(GetParam()).fused, {}), ""); }

INSTANTIATE_TEST_SUITE_P(Instructions, InstructionsOf,
                         testing::Values(TINTVERT_LIBRARY, TINTVERT_LIBRARIES "/libycbcr.so",
                                         TINTVERT_LIBRARIES "/libzkutil.so", TINTVERT_LIBRARIES "/libkmrutil.so"));

TEST(Instructions, finds_simd_and_fused_ones)
{
#ifndef __x86_64__
    GTEST_SKIP() << "asked of x86-64";
#endif
    const std::string object = testing::TempDir() + "tintvert_instructions.o";
    const Ran ran = run(TINTVERT_C_COMPILER " -O2 -mfma -x c -c - -o " + object,
                        "double add(double x, double y) { return __builtin_fma(x, x, y); }\n"
                        "double add_avx2(double x, double y) { return __builtin_fma(x, x, y); }\n"
                        "int plain(int x) { return x + 1; }\n");
    ASSERT_EQ(ran.status, 0) << ran.output;
    const Instructions found = instructions_of(object);
    EXPECT_EQ(found.fused.size(), 2u);
    EXPECT_EQ(without_level(found.simd), Names{"add>:"});
    std::filesystem::remove(object);
}

}  // namespace
}  // namespace tintvert::test
