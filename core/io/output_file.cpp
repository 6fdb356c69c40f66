#include "io/output_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include "failure.h"
#include "io/interrupt.h"

namespace tintvert::core {

namespace {

bool is_written_as_it_is(const std::filesystem::path& path)
{
    std::error_code ignored;
    const auto kind = std::filesystem::status(path, ignored).type();
    using enum std::filesystem::file_type;
    return kind == character || kind == block || kind == fifo || kind == socket;
}

}  // namespace

OutputFile::OutputFile(std::filesystem::path target) : target_(std::move(target))
{
    if (target_ == "-")
        descriptor_ = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    else if (is_written_as_it_is(target_))
        descriptor_ = open(target_.c_str(), O_WRONLY | O_CLOEXEC);
    else
        open_unfinished();
    if (descriptor_ < 0) fail(errno);
}

// The name does not grow out of the target's, which may already be as long as a name can be.
void OutputFile::open_unfinished()
{
    for (int attempt = 0;; ++attempt) {
        unfinished_ = target_.parent_path() / fmt::format(".tintvert-{}-{}.part", getpid(), attempt);
        set_unfinished(unfinished_.c_str());
        descriptor_ = open(unfinished_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor_ >= 0) return;
        const int error = errno;
        set_unfinished(nullptr);
        if (error != EEXIST || attempt == 99) fail(error);
    }
}

OutputFile::~OutputFile()
{
    if (descriptor_ >= 0) close(descriptor_);
    if (!unfinished_.empty()) unlink(unfinished_.c_str());
    set_unfinished(nullptr);
}

void OutputFile::write(const void* bytes, size_t count)
{
    const char* from = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t written = ::write(descriptor_, from, std::min<size_t>(count, 1 << 20));
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) fail(errno);
        from += written;
        count -= static_cast<size_t>(written);
    }
}

// Some file systems report a full disk only when the file is closed.
void OutputFile::commit()
{
    const int descriptor = descriptor_;
    descriptor_ = -1;
    if (close(descriptor) != 0) fail(errno);
    if (!unfinished_.empty() && std::rename(unfinished_.c_str(), target_.c_str()) != 0) fail(errno);
    unfinished_.clear();
}

void OutputFile::fail(int error) const
{
    throw Failure(Exit::no_file, "cannot write {}: {}", target_ == "-" ? "standard output" : target_.string(),
                  std::strerror(error));
}

void write_file(const std::filesystem::path& target, const void* bytes, size_t count)
{
    OutputFile file(target);
    file.write(bytes, count);
    file.commit();
}

void make_folder(const std::filesystem::path& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) throw Failure(Exit::no_file, "cannot make the folder {}: {}", folder.string(), error.message());
}

}  // namespace tintvert::core
