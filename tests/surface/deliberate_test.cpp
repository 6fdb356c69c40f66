// Every oddity has its three places: the row in docs/deliberate.md, the comment in the source, the test.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;

std::string text_of(const fs::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

std::set<std::string> names(const std::string& text, const char* pattern)
{
    const std::regex name(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), name), none; match != none; ++match)
        found.insert((*match)[1]);
    return found;
}

std::set<std::string> names_under(const fs::path& folder, const char* pattern)
{
    std::set<std::string> found;
    for (const auto& file : fs::recursive_directory_iterator(folder))
        if (file.path().extension() == ".cpp" || file.path().extension() == ".h")
            found.merge(names(text_of(file), pattern));
    return found;
}

TEST(Deliberate, has_a_row_a_comment_and_a_test_each)
{
    const fs::path project = TINTVERT_PROJECT;
    const std::set<std::string> rows = names(text_of(project / "docs/deliberate.md"), R"(\| (keeps_\w+) \|)");
    EXPECT_GT(rows.size(), 50u);
    EXPECT_EQ(rows, names_under(project / "src", R"(DELIBERATE \((keeps_\w+)\))"));
    const std::set<std::string> tests = names_under(project / "tests", R"(TEST(?:_F)?\(\w+,\s*(keeps_\w+)\))");
    for (const std::string& row : rows) EXPECT_TRUE(tests.contains(row)) << row << " has no test";
}

TEST(Deliberate, tells_names_apart)
{
    EXPECT_EQ(names("| keeps_one | x\n| keeps_two |", R"(\| (keeps_\w+) \|)"),
              (std::set<std::string>{"keeps_one", "keeps_two"}));
    EXPECT_TRUE(names("keeps_one", R"(DELIBERATE \((keeps_\w+)\))").empty());
}

}  // namespace
