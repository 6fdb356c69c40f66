// What the library asks of the C and C++ libraries: memory for a few records, and the catching of exceptions. It has no
// threads, locks, files, settings or output of its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include "catalog.h"
#include "surface.h"

namespace tintvert::test {
namespace {

// Operators new and delete begin with _Zn and _Zd.
bool is_heap(const std::string& name)
{
    static const Names known = {"malloc", "calloc", "realloc", "free", "aligned_alloc", "posix_memalign", "mmap"};
    return known.contains(name) || name.starts_with("_Zn") || name.starts_with("_Zd");
}

// The routines of the object files in the list `objects` that use the heap. An object without routines is in the result
// by its own name.
Names users_of_heap(const std::string& objects)
{
    const Ran nm = run("xargs " TINTVERT_NM " -A <" + objects);
    EXPECT_EQ(nm.status, 0) << nm.output;
    std::map<std::string, Names> undefined, routines;
    std::istringstream lines(nm.output);
    for (std::string line; std::getline(lines, line);) {
        const std::string object = line.substr(0, line.find(':')), name = line.substr(line.rfind(' ') + 1);
        if (line.find(" U ") != std::string::npos)
            undefined[object].insert(name);
        else if (catalog::find(name) != nullptr)
            routines[object].insert(name);
    }
    Names users;
    for (const auto& [object, names] : undefined)
        if (std::ranges::any_of(names, is_heap))
            users.merge(routines.contains(object) ? routines[object] : Names{object});
    return users;
}

// tntvt_rgb48_12_rgba32 is in the file of the two packers.
TEST(Outside, only_the_routines_of_single_bits_use_the_heap)
{
#ifdef TINTVERT_SANITIZED
    GTEST_SKIP() << "the sanitizers add names of their own";
#endif
    EXPECT_EQ(difference(users_of_heap(TINTVERT_OBJECTS),
                         {"tntvt_rgb48_12_rgb12", "tntvt_rgb48_rgb12", "tntvt_rgb48_12_rgba32", "tntvt_4175_to_v210",
                          "tntvt_YCbCr10Packed_to_v210", "tntvt_v210_frame_to_rtp_4175"}),
              "");
}

TEST(Outside, names_are_memory_and_exceptions)
{
#ifdef TINTVERT_SANITIZED
    GTEST_SKIP() << "the sanitizers add names of their own";
#endif
    const Names known = {"malloc",           "free",           "memcpy",
                         "memmove",          "memset",         "__cxa_begin_catch",
                         "__cxa_end_catch",  "_Unwind_Resume", "__gxx_personality_v0",
                         "__stack_chk_fail",  // of -fstack-protector-strong
                         "_ZSt9terminatev"};  // of clang, where a handler throws
    for (const std::string& name : undefined_symbols(TINTVERT_LIBRARY)) {
        const size_t version = name.find('@');
        if (version == std::string::npos) continue;  // of a companion
        EXPECT_TRUE(known.contains(name.substr(0, version))) << name;
    }
}

// Lines of a disassembly with an atomic access: an exchange with memory is one without saying so.
Names atomic_lines(const std::string& file)
{
    const Ran ran = run(TINTVERT_OBJDUMP " -d --no-show-raw-insn " + file);
    EXPECT_EQ(ran.status, 0) << ran.output;
    Names found;
    std::istringstream lines(ran.output);
    for (std::string line; std::getline(lines, line);) {
        const size_t tab = line.find('\t');
        if (tab == std::string::npos) continue;
        const std::string instruction = line.substr(tab + 1);
        const bool exchange = instruction.starts_with("xchg") && instruction.find('(') != std::string::npos;
        if (exchange || instruction.starts_with("lock ")) found.insert(instruction);
    }
    return found;
}

TEST(Outside, no_instruction_is_atomic)
{
#if !defined(__x86_64__) || defined(TINTVERT_SANITIZED)
    GTEST_SKIP() << "asked of x86-64 without sanitizers";
#endif
    EXPECT_EQ(difference(atomic_lines(TINTVERT_LIBRARY), {}), "");
}

TEST(Outside, has_the_heap_and_atomics_found)
{
#ifndef __x86_64__
    GTEST_SKIP() << "asked of x86-64";
#endif
    const std::string object = testing::TempDir() + "tintvert_outside.o";
    const Ran ran = run(TINTVERT_CXX_COMPILER " -O2 -x c++ -c - -o " + object,
                        "#include <atomic>\nstd::atomic<int> count, flag;\n"
                        "void up() { ++count; flag = 1; }\nint* one() { return new int; }\n");
    ASSERT_EQ(ran.status, 0) << ran.output;
    const std::string list = testing::TempDir() + "tintvert_outside.txt";
    std::ofstream(list) << object << '\n';
    EXPECT_EQ(users_of_heap(list), Names{object});
    std::filesystem::remove(list);
    EXPECT_EQ(atomic_lines(object).size(), 2u);
    std::filesystem::remove(object);
}

}  // namespace
}  // namespace tintvert::test
