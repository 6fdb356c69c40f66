// A folder of the test's own for the files that it reads and writes.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace tintvert::test {

class FolderTest : public testing::Test {
protected:
    ~FolderTest() override { std::filesystem::remove_all(folder_); }

    std::string path(const std::string& name) const { return (folder_ / name).string(); }

    void save(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(path(name), std::ios::binary) << bytes;
    }

    std::string load(const std::string& name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // Hidden ones too; nothing for a folder that is not there.
    std::set<std::string> files_in(const std::string& name) const
    {
        std::set<std::string> names;
        std::error_code none;
        for (const auto& entry : std::filesystem::directory_iterator(path(name), none))
            names.insert(entry.path().filename().string());
        return names;
    }

private:
    static std::string fresh_folder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "tintvert-XXXXXX").string();
        return mkdtemp(name.data());
    }

    std::filesystem::path folder_ = fresh_folder();
};

}  // namespace tintvert::test
