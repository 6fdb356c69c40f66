#include "capture/packets/input.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "failure.h"

namespace tintvert::core::capture {
namespace {

std::FILE* opened(const std::string& path)
{
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) throw Failure(Exit::no_file, "cannot read {}: {}", path, std::strerror(errno));
    return file;
}

}  // namespace

Input::Input(const std::string& path) : Input(opened(path), path) {}

Input::Input(std::FILE* file, std::string name) : file_(file), name_(std::move(name))
{
    head_size_ = read_file(head_.data(), head_.size());
}

size_t Input::read(uint8_t* to, size_t count)
{
    const size_t from_head = std::min(count, head_size_ - head_used_);
    std::copy_n(head_.data() + head_used_, from_head, to);
    head_used_ += from_head;
    return from_head + read_file(to + from_head, count - from_head);
}

size_t Input::read_file(uint8_t* to, size_t count)
{
    if (count == 0) return 0;
    const size_t got = std::fread(to, 1, count, file_.get());
    if (got < count && std::ferror(file_.get()) != 0)
        throw Failure(Exit::no_file, "cannot read {}: {}", name_, std::strerror(errno));
    return got;
}

}  // namespace tintvert::core::capture
