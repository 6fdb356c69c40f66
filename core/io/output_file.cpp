#include "io/output_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

#include "failure.h"

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
    if (target_ == "-") {
        descriptor_ = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    } else if (is_written_as_it_is(target_)) {
        descriptor_ = open(target_.c_str(), O_WRONLY | O_CLOEXEC);
    } else {
        or_fail([&] { replacement_ = std::make_unique<Replacement>(target_); });
        descriptor_ = replacement_->descriptor();
    }
    if (descriptor_ < 0) fail(errno);
}

OutputFile::~OutputFile()
{
    if (!replacement_ && descriptor_ >= 0) close(descriptor_);
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

void OutputFile::commit()
{
    store();
    put_in_place();
}

void OutputFile::commit_together(std::span<const std::unique_ptr<OutputFile>> files)
{
    for (const auto& file : files) file->store();
    const SignalsWait until_all_are_there;
    for (const auto& file : files) file->put_in_place();
}

void OutputFile::store()
{
    if (replacement_)
        or_fail([&] { replacement_->store(); });
    else if (close(std::exchange(descriptor_, -1)) != 0)
        fail(errno);
}

void OutputFile::put_in_place()
{
    if (replacement_) or_fail([&] { replacement_->put_in_place(); });
}

template <class Work>
void OutputFile::or_fail(Work work) const
{
    try {
        work();
    } catch (const std::system_error& error) {
        fail(error.code().value());
    }
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
