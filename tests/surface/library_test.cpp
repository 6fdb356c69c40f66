// The rest of what the built library shows: its strings, its soname and the libraries it needs.
#include <gtest/gtest.h>

#include <sstream>
#include <utility>

#include "catalog.h"
#include "surface.h"

namespace tintvert::test {
namespace {

// The format of the one line that the library says, and the text of each routine that says it.
Names texts()
{
    Names texts = {"ERROR(Tintvert): %s\n\r"};
    for (const auto& [routine, text] :
         {std::pair{"tntvt_change_field_rgb", "exception-tntvt_change_field_rgb(FieldFLip) "},
          std::pair{"tntvt_flip_vert", "exception-tntvt_flip_vert() "},
          std::pair{"tntvt_flip_vert_flags", "exception-tntvt_flip_vert_flags() "}})
        if (catalog::find(routine) != nullptr) texts.insert(text);
    return texts;
}

TEST(Library, has_no_strings_but_those_of_its_failures)
{
#ifdef TINTVERT_SANITIZED
    GTEST_SKIP() << "the sanitizers add strings of their own";
#endif
#ifndef __OPTIMIZE__
    GTEST_SKIP() << "without optimization the compiler does not keep the strings apart";
#endif
    Names literals;
    std::istringstream objects(contents(TINTVERT_OBJECTS));
    for (std::string object; std::getline(objects, object);) literals.merge(string_literals(object));
    EXPECT_EQ(difference(literals, texts()), "");
    const std::string library = contents(TINTVERT_LIBRARY);
    for (const std::string& text : texts()) EXPECT_NE(library.find(text + '\0'), std::string::npos) << text;
}

TEST(Library, has_its_strings_found)
{
    const std::string object = testing::TempDir() + "tintvert_strings.o";
    const Ran ran = run(TINTVERT_C_COMPILER " -O1 -x c -c - -o " + object,
                        "const char* f(int i) { return i ? \"one text\" : \"other\\n\\r\"; }\n");
    ASSERT_EQ(ran.status, 0) << ran.output;
    EXPECT_EQ(string_literals(object), (Names{"one text", "other\n\r"}));
    EXPECT_EQ(difference(string_literals(object), {"one text"}), "too many: other\n\r\n");
    std::filesystem::remove(object);
}

// What is in brackets in the lines of `readelf -d` that carry `tag`.
Names entries(const std::string& section, const std::string& tag)
{
    Names names;
    for (size_t found = 0; (found = section.find('(' + tag + ')', found)) != std::string::npos; ++found) {
        const size_t open = section.find('[', found);
        names.insert(section.substr(open + 1, section.find(']', open) - open - 1));
    }
    return names;
}

class Dynamic : public testing::Test {
protected:
    const std::string section = run(TINTVERT_READELF " -dW " TINTVERT_LIBRARY).output;
};

TEST_F(Dynamic, has_its_major_version_in_the_soname)
{
    EXPECT_EQ(entries(section, "SONAME"), Names{"libtintvert.so.1"});
}

TEST_F(Dynamic, needs_the_language_and_the_companions_and_nothing_else)
{
#ifdef TINTVERT_SANITIZED
    GTEST_SKIP() << "the sanitizers add libraries of their own";
#endif
    const Names known = {"libstdc++.so.6", "libm.so.6",       "libgcc_s.so.1", "libc.so.6",
                         "libzkutil.so.1", "libkmrutil.so.1", "libycbcr.so.1"};
    const Names needed = entries(section, "NEEDED");
    EXPECT_TRUE(needed.contains("libzkutil.so.1"));
    for (const std::string& name : needed) EXPECT_TRUE(known.contains(name)) << name;
}

// Bound symbolically, it would never look outside for a name that it had itself.
TEST_F(Dynamic, is_not_bound_symbolically)
{
    EXPECT_EQ(section.find("SYMBOLIC"), std::string::npos);
    EXPECT_NE(section.find("(SONAME)"), std::string::npos) << section;
}

}  // namespace
}  // namespace tintvert::test
