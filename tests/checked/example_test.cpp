// The examples of docs/checked.md compile, and print what they say.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace tintvert::test {
namespace {

std::vector<std::string> examples()
{
    std::ifstream file(TINTVERT_PROJECT "/docs/checked.md");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::string open = "```cpp\n";
    std::vector<std::string> found;
    for (size_t at = text.find(open); at != std::string::npos; at = text.find(open, at)) {
        at += open.size();
        found.push_back(text.substr(at, text.find("```", at) - at));
    }
    return found;
}

std::string output_of(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen((command + " 2>&1").c_str(), "r"), pclose);
    std::string text;
    for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get())) text += static_cast<char>(c);
    return text;
}

// What `source` prints, or what the compiler has to say.
std::string run(const std::string& source)
{
    const std::string folder = testing::TempDir() + "checked_example";
    std::ofstream(folder + ".cpp") << source;
    return output_of(TINTVERT_CXX_COMPILER " -std=c++20 -Wall -Wextra -Werror " TINTVERT_SANITIZE_FLAG " " + folder +
                     ".cpp -o " + folder +
                     " -I" TINTVERT_INCLUDE " -I" TINTVERT_CHECKED_INCLUDE "/.. " TINTVERT_CHECKED_LIBRARY
                     " " TINTVERT_LIBRARY " " TINTVERT_ZKUTIL " -Wl,-rpath," TINTVERT_LIBRARIES
                     " -Wl,-rpath-link," TINTVERT_LIBRARIES " && " +
                     folder);
}

TEST(CheckedExamples, compile_and_print_what_they_say)
{
    const std::vector<std::string> found = examples();
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(run(found[0]), "dst: 4143360 bytes, needs 4147200 (bytes 0-4147199)\n");
    EXPECT_EQ(run("#include <tintvert/checked.h>\n#include <cstdio>\nnamespace checked = tintvert::checked;\n"
                  "int main() {\n" +
                  found[1] + "}\n"),
              "dst: 2488288\nsrc: 0\n");
}

}  // namespace
}  // namespace tintvert::test
