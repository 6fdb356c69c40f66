#include "input_file.h"

#include <cerrno>
#include <cstring>

#include "failure.h"

namespace tintvert::tool {

InputFile::InputFile(std::filesystem::path path) : path_(std::move(path))
{
    errno = 0;
    std::error_code ignored;
    if (std::filesystem::is_directory(path_, ignored)) throw Failure(Exit::no_file, "{} is a folder", path_.string());
    stream_.open(path_, std::ios::binary | std::ios::ate);
    if (!stream_) throw Failure(Exit::no_file, "cannot read {}: {}", path_.string(), std::strerror(errno));
    size_ = stream_.tellg();
    if (size_ < 0) throw Failure(Exit::no_file, "cannot read {}: it has no length", path_.string());
}

void InputFile::read(int64_t offset, uint8_t* to, int64_t count)
{
    stream_.seekg(offset);
    stream_.read(reinterpret_cast<char*>(to), count);
    if (stream_.gcount() != count) throw Failure(Exit::no_file, "cannot read {} to its end", path_.string());
}

std::vector<uint8_t> InputFile::read_all()
{
    std::vector<uint8_t> bytes(static_cast<size_t>(size_));
    read(0, bytes.data(), size_);
    return bytes;
}

}  // namespace tintvert::tool
