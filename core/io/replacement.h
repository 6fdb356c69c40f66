// A temporary file that takes the place of another.
#pragma once

#include <filesystem>
#include <optional>

#include "io/interrupt.h"

namespace tintvert::core {

// The temporary file is in the folder of the file to be replaced, or that of the file that a symbolic link leads to. It
// has the mode and, where that is allowed, the owner and group of the old file; an old file that is read-only or a
// folder is refused. It is removed unless it is put in place; what a killed process left in the folder is removed too.
// Errors are thrown as std::system_error.
class Replacement {
public:
    explicit Replacement(const std::filesystem::path& target);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    int descriptor() const { return descriptor_; }
    void store() const;  // reports a disk that turns out to be full
    void put_in_place();

private:
    void open_temporary(unsigned mode);
    bool is_own() const;

    std::filesystem::path place_, temporary_;
    std::optional<Unfinished> unfinished_;
    int descriptor_ = -1;
};

}  // namespace tintvert::core
