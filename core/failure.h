// Why the tool stops, and with which exit code.
#pragma once

#include <fmt/format.h>

#include <stdexcept>
#include <string>
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

}  // namespace tintvert::core
