// Each header compiles alone in both languages.
#include <gtest/gtest.h>

#include <vector>

#include "surface.h"

namespace tintvert::test {
namespace {

namespace fs = std::filesystem;

Ran compile(const std::string& compiler, const std::string& source)
{
    return run(compiler + " -Wall -Wextra -Wpedantic -Werror -fsyntax-only -I" TINTVERT_INCLUDE " -", source + '\n');
}

const std::string c11 = TINTVERT_C_COMPILER " -std=c11 -x c";
const std::string cxx20 = TINTVERT_CXX_COMPILER " -std=c++20 -x c++";

// Every header of the library, and of each companion the one that carries its name.
std::vector<fs::path> headers()
{
    std::vector<fs::path> found;
    for (const auto& file : fs::recursive_directory_iterator(TINTVERT_INCLUDE))
        if (file.path().extension() == ".h") found.push_back(file.path());
    for (const auto& companion : fs::directory_iterator(TINTVERT_COMPANIONS))
        if (companion.is_directory()) found.push_back(companion.path() / companion.path().filename() += ".h");
    return found;
}

TEST(Headers, compile_alone_in_both_languages)
{
    ASSERT_GE(headers().size(), 10u);
    for (const fs::path& header : headers()) {
        for (const std::string& compiler : {c11, cxx20}) {
            const Ran ran = compile(compiler, "#include \"" + header.string() + '"');
            EXPECT_EQ(ran.status, 0) << compiler << ' ' << header << '\n' << ran.output;
        }
    }
}

TEST(Headers, are_refused_when_they_do_not_compile)
{
    for (const std::string& compiler : {c11, cxx20}) {
        EXPECT_EQ(compile(compiler, "int f(uint8_t* line);").status, 1) << compiler;
        EXPECT_EQ(compile(compiler, "struct S { int none[0]; };").status, 1) << compiler;
        EXPECT_EQ(compile(compiler, "#include <tintvert/none.h>").status, 1) << compiler;
    }
    EXPECT_EQ(compile(c11, "#include <vector>").status, 1);
    EXPECT_EQ(compile(cxx20, "#include <vector>").status, 0);
}

}  // namespace
}  // namespace tintvert::test
