// The dynamic symbols: the library exports the catalogue's routines, the companions what their headers
// declare, and nobody anything else.
#include <gtest/gtest.h>

#include <map>

#include "catalog.h"
#include "surface.h"

namespace tintvert::test {
namespace {

namespace fs = std::filesystem;

Names catalogue(const std::string& after_the_name = "")
{
    Names names;
    for (const catalog::Routine& routine : catalog::routines())
        names.insert(std::string{routine.name} + after_the_name);
    return names;
}

// The functions of all companions, by their headers.
Names companions()
{
    Names names;
    for (const auto& folder : fs::directory_iterator(TINTVERT_COMPANIONS))
        if (folder.is_directory())
            names.merge(declared_functions(contents(folder.path() / folder.path().filename() += ".h")));
    return names;
}

TEST(Symbols, are_those_of_the_catalogue)
{
    Names expected = catalogue("@@TINTVERT_1");
    expected.insert("TINTVERT_1");
    EXPECT_EQ(difference(defined_symbols(TINTVERT_LIBRARY), expected), "");
}

TEST(Symbols, of_a_wrong_list_are_rejected)
{
    const Names defined = defined_symbols(TINTVERT_LIBRARY);
    Names one_less = defined;
    one_less.erase("tnvtt_open@@TINTVERT_1");
    EXPECT_EQ(difference(defined, one_less), "too many: tnvtt_open@@TINTVERT_1\n");
    Names one_renamed = one_less;
    one_renamed.insert("tntvt_open@@TINTVERT_1");
    EXPECT_EQ(difference(defined, one_renamed), "too many: tnvtt_open@@TINTVERT_1\nmissing: tntvt_open@@TINTVERT_1\n");
}

TEST(Symbols, leave_the_companions_to_the_dynamic_linker)
{
    const Names names = companions();
    for (const std::string& defined : defined_symbols(TINTVERT_LIBRARY))
        EXPECT_FALSE(names.contains(defined.substr(0, defined.find('@')))) << defined;
    const Names undefined = undefined_symbols(TINTVERT_LIBRARY);
    for (const char* name : {"CPUFeatureFlags", "ZKAlloc", "ZKFree", "ErrFmtOut"})
        EXPECT_TRUE(undefined.contains(name));
#ifdef TINTVERT_SANITIZED
    GTEST_SKIP() << "the sanitizers add undefined names of their own";
#endif
    for (const std::string& name : undefined)
        EXPECT_TRUE(names.contains(name) || name.find('@') != std::string::npos) << name;
}

TEST(Symbols, of_a_companion_are_those_of_its_header)
{
    int seen = 0;
    for (const auto& folder : fs::directory_iterator(TINTVERT_COMPANIONS)) {
        if (!folder.is_directory()) continue;
        ++seen;
        const std::string name = folder.path().filename();
        const fs::path library = fs::path(TINTVERT_LIBRARIES) / ("lib" + name + ".so.1");
        const Names declared = declared_functions(contents(folder.path() / (name + ".h")));
        EXPECT_EQ(difference(defined_symbols(library), declared), "") << name;
    }
    EXPECT_GE(seen, 1);
}

// The chapter is the first word of a header's name: rgb.h and rgb_8bit.h are of the chapter rgb.
TEST(Symbols, are_declared_in_the_header_of_their_chapter)
{
    std::map<std::string, Names> declared;
    for (const auto& header : fs::directory_iterator(fs::path(TINTVERT_INCLUDE) / "tintvert")) {
        const std::string name = header.path().stem();
        declared[name.substr(0, name.find('_'))].merge(declared_functions(contents(header.path())));
    }
    for (const auto& [chapter, names] : declared) {
        Names expected;
        for (const catalog::Routine& routine : catalog::routines())
            if (routine.chapter == chapter) expected.insert(std::string{routine.name});
        EXPECT_EQ(difference(names, expected), "") << chapter;
    }
    for (const catalog::Routine& routine : catalog::routines())
        EXPECT_TRUE(declared.contains(std::string{routine.chapter})) << routine.name;
}

TEST(Symbols, are_read_from_declarations_alone)
{
    EXPECT_EQ(declared_functions("#define X_API __attribute__((visibility(\"default\")))\n"
                                 "/* X_API void commented(void); */ // X_API int too(int);\n"
                                 "X_API const void* one(int (*callback)(int),\n    int two);\nX_API int three (void);\n"
                                 "int unmarked(void);\n"),
              (Names{"one", "three"}));
}

}  // namespace
}  // namespace tintvert::test
