// A file read once from front to back, so that a pipe will do.
#pragma once

#include <array>
#include <cstdio>
#include <memory>
#include <string>

#include "capture/packets/bytes.h"

namespace tintvert::core::capture {

class Input {
public:
    explicit Input(const std::string& path);   // throws Failure
    Input(std::FILE* file, std::string name);  // closes `file`

    // The first bytes, up to four, which stay to be read.
    Bytes head() const { return Bytes(head_).first(head_size_); }

    // How many there were; fewer than `count` only at the end. Throws Failure.
    size_t read(uint8_t* to, size_t count);

    const std::string& name() const { return name_; }

private:
    size_t read_file(uint8_t* to, size_t count);

    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> file_;
    std::string name_;
    std::array<uint8_t, 4> head_{};
    size_t head_size_ = 0, head_used_ = 0;
};

}  // namespace tintvert::core::capture
