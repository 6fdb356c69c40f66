#include "io/replacement.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace tintvert::core {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(int error) { throw std::system_error(error, std::generic_category()); }

// Where a chain of symbolic links ends, whether there is a file or not.
fs::path end_of_links(fs::path path)
{
    std::error_code none;
    for (int links = 0; fs::is_symlink(path, none); ++links) {
        if (links == 40) fail(ELOOP);
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

// Root may write read-only files; here it has to make them writable first, like everybody else.
void need_replaceable(const fs::path& path, const struct stat& old)
{
    if (S_ISDIR(old.st_mode)) fail(EISDIR);
    if ((old.st_mode & 0222) == 0 || faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) fail(EACCES);
}

// If the new file cannot have the group of the old one, its own group gets no access.
void pass_on_owner_and_mode(const struct stat& old, int descriptor)
{
    mode_t mode = old.st_mode & 0777;
    if (fchown(descriptor, old.st_uid, old.st_gid) != 0 && fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0)
        mode &= ~static_cast<mode_t>(S_IRWXG);
    fchmod(descriptor, mode);
}

// A temporary file is locked as long as its process lives, so one that can be locked is nobody's.
void remove_abandoned(const fs::path& folder)
{
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder.empty() ? "." : folder, none)) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with(".tintvert-") || !name.ends_with(".part") || !entry.is_regular_file(none)) continue;
        const int descriptor = open(entry.path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (descriptor < 0) continue;
        if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) unlink(entry.path().c_str());
        close(descriptor);
    }
}

}  // namespace

Replacement::Replacement(const fs::path& target) : place_(end_of_links(target))
{
    struct stat old = {};
    const bool replaces = stat(place_.c_str(), &old) == 0;
    if (replaces) need_replaceable(place_, old);
    remove_abandoned(place_.parent_path());
    open_temporary(replaces ? 0600 : 0666);
    if (replaces) pass_on_owner_and_mode(old, descriptor_);
}

// The name does not grow out of the target's, which may already be as long as a name can be.
void Replacement::open_temporary(unsigned mode)
{
    for (int attempt = 0;; ++attempt) {
        temporary_ = place_.parent_path() / fmt::format(".tintvert-{}-{}.part", getpid(), attempt);
        unfinished_.emplace(temporary_.c_str());
        descriptor_ = open(temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        const int error = errno;
        if (descriptor_ >= 0 && is_own()) return;
        unfinished_.reset();
        if (descriptor_ >= 0)
            close(descriptor_);
        else if (error != EEXIST || attempt == 99)
            fail(error);
    }
}

// Not if another process took the file for an abandoned one, before it was locked.
bool Replacement::is_own() const
{
    struct stat about = {};
    flock(descriptor_, LOCK_EX);
    return fstat(descriptor_, &about) == 0 && about.st_nlink == 1;
}

Replacement::~Replacement()
{
    if (!temporary_.empty()) unlink(temporary_.c_str());
    close(descriptor_);
}

// Some file systems report a full disk only when a descriptor is closed; this one stays open, for its lock.
void Replacement::store() const
{
    if (close(dup(descriptor_)) != 0) fail(errno);
}

void Replacement::put_in_place()
{
    if (std::rename(temporary_.c_str(), place_.c_str()) != 0) fail(errno);
    unfinished_.reset();
    temporary_.clear();
}

}  // namespace tintvert::core
