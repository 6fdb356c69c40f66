// A file that is read frame by frame.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <vector>

namespace tintvert::tool {

class InputFile {
public:
    explicit InputFile(std::filesystem::path path);  // throws Failure

    int64_t size() const { return size_; }
    const std::filesystem::path& path() const { return path_; }

    // Exactly `count` bytes from `offset` on. Throws Failure if the file has them not.
    void read(int64_t offset, uint8_t* to, int64_t count);
    std::vector<uint8_t> read_all();

private:
    std::filesystem::path path_;
    std::ifstream stream_;
    int64_t size_;
};

}  // namespace tintvert::tool
