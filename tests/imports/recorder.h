// The program's own functions in place of the companions': each writes a line into a log and answers what
// the test asks. The library leaves these names undefined, so the ones that the program exports
// serve it before any companion is asked.
//
//     calls().name("src", frame.data(), frame.size());
//     calls().throw_at("CopyMemoryFast", 2);
//     ... a call of the library ...
//     EXPECT_EQ(calls().log, (Log{"ZKAlloc(720)", "CopyMemoryFast(block1, src+720, 720)", ...}));
//
// A further import takes one line in recorder.cpp: note(its name, its arguments), and its answer.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

namespace tintvert::test {

using Log = std::vector<std::string>;

// What a double throws when asked to. It derives from nothing.
struct Thrown {};

class Recorder {
public:
    Log log;  // one line a call, in order. Numbers are decimal, pointers are places in named memory

    // Answers.
    unsigned int features = 0;                    // of CPUFeatureFlags
    std::function<void*(unsigned int)> allocate;  // of ZKAlloc; empty: memory named block1, block2, ...
    bool copies = true;                           // whether CopyMemoryFast does, or is only logged
    std::string fourcc_class;                     // the one predicate that says yes, as "fccIsRGB"
    int yes = 1;                                  // what it answers then
    unsigned int matrix = 709;                    // of GetMatrixBySize
    int decoded = -7;                             // of the four decoders

    // The `nth` call of `function` from now on, counted from 1, is logged and throws Thrown.
    void throw_at(const std::string& function, int nth) { throws_[function] = nth; }

    // Pointers into these bytes, one past the last included, are logged as "what" or "what+offset".
    void name(const std::string& what, const void* begin, size_t bytes);

    // How often `function` has been called.
    long count(const std::string& function) const;

    template <class... Values>
    void note(const std::string& function, Values... values)
    {
        std::string line;
        ((line += (line.empty() ? "" : ", ") + text(values)), ...);
        finish(function, line);
    }

    void* new_block(unsigned int bytes);
    void release(void* block);

private:
    struct Place {
        std::string name;
        uintptr_t begin;
        size_t bytes;
    };

    static std::string text(const char* words) { return words; }
    std::string text(const void* pointer) const;
    template <class Number, class = std::enable_if_t<std::is_integral_v<Number>>>
    static std::string text(Number number)
    {
        return std::to_string(number);
    }
    void finish(const std::string& function, const std::string& arguments);

    std::vector<Place> places_;
    std::map<std::string, int> throws_;
    std::vector<void*> blocks_;
};

Recorder& calls();

// A test that begins with an empty log and default answers.
class Imports : public testing::Test {
protected:
    void SetUp() override { calls() = {}; }
};

}  // namespace tintvert::test
