// A file that appears whole or not at all.
#pragma once

#include <cstddef>
#include <filesystem>

namespace tintvert::core {

// Bytes go to a temporary file in the target's folder, which takes the target's name at commit() and is
// removed if there is none. One at a time. Standard output (`-`), devices and pipes are written as they are.
// Throws Failure.
class OutputFile {
public:
    explicit OutputFile(std::filesystem::path target);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(const void* bytes, size_t count);
    void commit();
    const std::filesystem::path& target() const { return target_; }

private:
    [[noreturn]] void fail(int error) const;
    void open_unfinished();

    std::filesystem::path target_, unfinished_;  // none for what is written as it is
    int descriptor_ = -1;
};

void write_file(const std::filesystem::path& target, const void* bytes, size_t count);

// Makes the folder and those above it, unless they are there.
void make_folder(const std::filesystem::path& folder);

}  // namespace tintvert::core
