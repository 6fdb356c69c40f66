// Why the tool stops, and with which exit code.
#pragma once

#include <fmt/format.h>

#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "printable.h"

namespace tintvert::core {

enum class Exit {
    done = 0,
    differs = 1,  // the command ran, and what it compared is not alike, or what it read not complete
    usage = 2,    // the command line makes no sense
    no_file = 3,  // a file is missing, unreadable, broken, too short, or cannot be written
    unsafe = 4,   // refused, because it could not be done without harm
    interrupted = 130
};

// One line for stderr, of printable characters.
class Failure : public std::runtime_error {
public:
    template <class... Values>
    Failure(Exit code, fmt::format_string<Values...> text, Values&&... values)
        : std::runtime_error(printable(fmt::format(text, std::forward<Values>(values)...))), code_(code)
    {}

    Exit code() const { return code_; }

private:
    Exit code_;
};

// A refusal by code that does not know the file: `naming` adds its name.
class Refusal : public Failure {
public:
    template <class... Values>
    explicit Refusal(fmt::format_string<Values...> text, Values&&... values)
        : Failure(Exit::unsafe, text, std::forward<Values>(values)...)
    {}
};

// Runs `work`, whose refusals and lack of memory are about `file`, if that is not empty.
template <class Work>
auto naming(const std::string& file, Work&& work)
{
    const std::string_view name = file == "-" ? "standard input" : std::string_view(file);
    try {
        return work();
    } catch (const Refusal& refusal) {
        if (file.empty()) throw;
        throw Failure(refusal.code(), "{}: {}", name, refusal.what());
    } catch (const std::bad_alloc&) {
        if (file.empty()) throw;
        throw Failure(Exit::no_file, "{}: there is not enough memory", name);
    }
}

}  // namespace tintvert::core
