// A file that appears whole or not at all.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>

#include "io/replacement.h"

namespace tintvert::core {

// Bytes go to a temporary file, which replaces the target at commit() and is removed if there is none. Standard output
// (`-`), devices and pipes are written as they are. Throws Failure.
class OutputFile {
public:
    explicit OutputFile(std::filesystem::path target);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(const void* bytes, size_t count);
    void commit();
    const std::filesystem::path& target() const { return target_; }

    // All of them, or none if the bytes of one cannot be stored. A signal waits until all are there.
    static void commit_together(std::span<const std::unique_ptr<OutputFile>> files);

private:
    [[noreturn]] void fail(int error) const;
    template <class Work>
    void or_fail(Work work) const;
    void store();
    void put_in_place();

    std::filesystem::path target_;
    std::unique_ptr<Replacement> replacement_;  // null for what is written as it is
    int descriptor_ = -1;
};

void write_file(const std::filesystem::path& target, const void* bytes, size_t count);

// Makes the folder and those above it, unless they are there.
void make_folder(const std::filesystem::path& folder);

}  // namespace tintvert::core
