#include "io/input_file.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "failure.h"

namespace tintvert::core {
namespace {

int keep_open(std::FILE*) { return 0; }

std::unique_ptr<std::FILE, int (*)(std::FILE*)> opened(const std::filesystem::path& path)
{
    if (path == "-") return {stdin, keep_open};
    return {std::fopen(path.c_str(), "rb"), std::fclose};
}

}  // namespace

InputFile::InputFile(const std::filesystem::path& path)
    : name_(path == "-" ? "standard input" : path.string()), file_(opened(path))
{
    struct stat about = {};
    if (!file_ || fstat(fileno(file_.get()), &about) != 0)
        throw Failure(Exit::no_file, "cannot read {}: {}", name_, std::strerror(errno));
    if (S_ISDIR(about.st_mode)) throw Failure(Exit::no_file, "{} is a folder", name_);
    if (path != "-" && S_ISREG(about.st_mode)) size_ = about.st_size;
}

std::span<const uint8_t> InputFile::peek(size_t count)
{
    const size_t had = peeked_.size();
    if (had < count) {
        peeked_.resize(count);
        peeked_.resize(had + std::fread(peeked_.data() + had, 1, count - had, file_.get()));
    }
    return std::span(peeked_).first(std::min(count, peeked_.size()));
}

size_t InputFile::read_some(uint8_t* to, size_t count)
{
    const size_t early = std::min(count, peeked_.size());
    std::copy_n(peeked_.begin(), early, to);
    peeked_.erase(peeked_.begin(), peeked_.begin() + static_cast<long>(early));
    const size_t got = early + std::fread(to + early, 1, count - early, file_.get());
    if (got < count && std::ferror(file_.get()) != 0)
        throw Failure(Exit::no_file, "cannot read {}: {}", name_, std::strerror(errno));
    at_ += static_cast<int64_t>(got);
    return got;
}

void InputFile::read(uint8_t* to, size_t count)
{
    if (read_some(to, count) != count) throw Failure(Exit::no_file, "{} ends too early", name_);
}

bool InputFile::skip(int64_t count)
{
    if (size_ >= 0) {
        if (is_short_of(count)) return false;
        at_ += count;
        peeked_.clear();
        return std::fseek(file_.get(), at_, SEEK_SET) == 0;
    }
    std::vector<uint8_t> unread(static_cast<size_t>(std::min<int64_t>(count, 1 << 16)));
    while (count > 0) {
        const size_t got = read_some(unread.data(), std::min(unread.size(), static_cast<size_t>(count)));
        if (got == 0) return false;
        count -= static_cast<int64_t>(got);
    }
    return true;
}

std::vector<uint8_t> InputFile::read_rest()
{
    std::vector<uint8_t> bytes;
    size_t got = 0, step = 0;
    do {
        const size_t had = bytes.size();
        step = std::max<size_t>(had, 1 << 16);
        bytes.resize(had + step);
        got = read_some(bytes.data() + had, step);
        bytes.resize(had + got);
    } while (got == step);
    return bytes;
}

}  // namespace tintvert::core
