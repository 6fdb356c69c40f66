// The variables of the library: what a call can leave behind for the next one.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "surface.h"

namespace tintvert::test {
namespace {

// The variables of the object files in the list `objects` that are not constant, without their namespace.
Names variables_of(const std::string& objects)
{
    const Ran nm = run("xargs " TINTVERT_NM " -A -C <" + objects);
    EXPECT_EQ(nm.status, 0) << nm.output;
    Names variables;
    std::istringstream lines(nm.output);
    for (std::string line; std::getline(lines, line);) {
        // object:address kind name
        const size_t kind = line.find(' ', line.find(':')) + 1;
        if (line.find_first_of("bBdD", kind) != kind || line[kind + 1] != ' ') continue;
        const size_t space = line.rfind("::");
        variables.insert(line.substr(space == std::string::npos ? kind + 2 : space + 2));
    }
    return variables;
}

TEST(Variables, are_the_tables_of_first_use_and_two_bytes)
{
#if !defined(__OPTIMIZE__) || defined(TINTVERT_SANITIZED)
    GTEST_SKIP() << "without optimization, or with sanitizers, there are variables of the compiler's";
#endif
    const Names known = {"use_MMX",
                         "a",
                         "fTablesSet",
                         "Atab",
                         "BEtab",
                         "DCtab",
                         "clip10to8",
                         "gsfScaleTablesReady",
                         "gsbScaleLumaDown",
                         "gsbScaleChromaDown",
                         "gsbScaleLumaUp",
                         "gsbScaleChromaUp",
                         "_v210_to_rgb_initted",
                         "v210_Atab",
                         "v210_BEtab",
                         "v210_DCtab",
                         "v210_clip10to8",
                         "st2084_block"};  // the stored tables, which no routine writes
    const Names variables = variables_of(TINTVERT_OBJECTS);
    EXPECT_TRUE(variables.contains("use_MMX"));
    for (const std::string& variable : variables) EXPECT_TRUE(known.contains(variable)) << variable;
}

TEST(Variables, have_static_ones_found)
{
    const std::string object = testing::TempDir() + "tintvert_variables.o", list = object + ".txt";
    const Ran ran = run(TINTVERT_CXX_COMPILER " -O2 -x c++ -c - -o " + object,
                        "const int constant[] = {1, 2};\nnamespace n { int zero; int one = 1; }\n"
                        "int calls(int i) { static int count; return count += constant[i]; }\n");
    ASSERT_EQ(ran.status, 0) << ran.output;
    std::ofstream(list) << object << '\n';
    EXPECT_EQ(variables_of(list), (Names{"zero", "one", "count"}));
    std::filesystem::remove(object);
    std::filesystem::remove(list);
}

}  // namespace
}  // namespace tintvert::test
