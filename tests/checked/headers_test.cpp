// The kept headers are what the generator makes of the catalogue today.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

namespace tintvert::test {
namespace {

// clang-format breaks lines, and nothing else differs.
std::string without_space(std::string text)
{
    std::erase_if(text, [](unsigned char c) { return std::isspace(c) != 0; });
    return text;
}

std::string generated(const std::string& what)
{
    const std::string command = TINTVERT_CHECKED_GENERATE " " + what;
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string text;
    for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get())) text += static_cast<char>(c);
    return text;
}

std::string kept(const std::string& name)
{
    std::ifstream file(TINTVERT_CHECKED_INCLUDE "/" + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(CheckedHeaders, are_current)
{
    ASSERT_GT(kept("checked_routines.h").size(), 10000u);
    const char* const hint = "build the target checked_headers";
    EXPECT_EQ(without_space(kept("checked_routines.h")), without_space(generated("header"))) << hint;
    EXPECT_EQ(without_space(kept("checked_c_routines.h")), without_space(generated("c_header"))) << hint;
}

}  // namespace
}  // namespace tintvert::test
