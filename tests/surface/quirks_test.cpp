// Every quirk has its three places: the row in docs/quirks.md, the comment in the source, the test.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string_view>

namespace {

namespace fs = std::filesystem;

std::string text_of(const fs::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

// The names that stand between `before` and `after`, on lines that hold `on_lines_with`.
struct Place {
    std::string_view on_lines_with, before, after;
};
constexpr Place row{"| keeps_", "| ", " |"}, comment{"QUIRK (", "QUIRK (", ")"}, test{"TEST", "keeps_", ")"};

std::set<std::string> names(const std::string& text, const Place& place)
{
    std::set<std::string> found;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const size_t at = line.find("keeps_");
        if (at == std::string::npos || line.find(place.on_lines_with) == std::string::npos) continue;
        const size_t end = line.find(place.after, at);
        if (end == std::string::npos) continue;
        const bool stands_there = place.before == "keeps_" || line.substr(0, at).ends_with(place.before);
        if (stands_there) found.insert(line.substr(at, end - at));
    }
    return found;
}

std::set<std::string> names_under(const fs::path& folder, const Place& place)
{
    std::set<std::string> found;
    for (const auto& file : fs::recursive_directory_iterator(folder))
        if (file.path().extension() == ".cpp" || file.path().extension() == ".h")
            found.merge(names(text_of(file), place));
    return found;
}

TEST(Quirks, has_a_row_a_comment_and_a_test_each)
{
    const fs::path project = TINTVERT_PROJECT;
    const std::set<std::string> rows = names(text_of(project / "docs/quirks.md"), row);
    EXPECT_GT(rows.size(), 50u);
    EXPECT_EQ(rows, names_under(project / "src", comment));
    const std::set<std::string> tests = names_under(project / "tests", test);
    for (const std::string& name : rows) EXPECT_TRUE(tests.contains(name)) << name << " has no test";
}

TEST(Quirks, tells_names_apart)
{
    EXPECT_EQ(names("| keeps_one | x\n| keeps_two |", row), (std::set<std::string>{"keeps_one", "keeps_two"}));
    EXPECT_EQ(names("// QUIRK (keeps_one): x", comment), std::set<std::string>{"keeps_one"});
    EXPECT_EQ(names("TEST_F(A, keeps_one)", test), std::set<std::string>{"keeps_one"});
    EXPECT_TRUE(names("keeps_one)", test).empty());
    EXPECT_TRUE(names("// keeps_one", comment).empty());
}

}  // namespace
