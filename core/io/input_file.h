// A file, or standard input as `-`, that is read from its head to its end.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tintvert::core {

class InputFile {
public:
    explicit InputFile(const std::filesystem::path& path);  // throws Failure

    const std::string& name() const { return name_; }
    int64_t size() const { return size_; }  // -1 for what may have none: standard input, a pipe, a device

    // The next bytes, which stay to be read; fewer than `count` only at the end.
    std::span<const uint8_t> peek(size_t count);

    // How many came: fewer than `count` only at the end.
    size_t read_some(uint8_t* to, size_t count);
    void read(uint8_t* to, size_t count);  // throws Failure if the file ends before
    bool skip(int64_t count);              // whether there was as much
    bool is_short_of(int64_t count) const { return size_ >= 0 && count > size_ - at_; }  // as far as it can tell
    std::vector<uint8_t> read_rest();

private:
    std::string name_;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
    int64_t size_ = -1, at_ = 0;
    std::vector<uint8_t> peeked_;
};

}  // namespace tintvert::core
