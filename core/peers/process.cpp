#include "peers/process.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sstream>

#include "failure.h"

namespace tintvert::core {
namespace {

// A file without a name: it is gone when it is closed, however the tool ends.
class NamelessFile {
public:
    NamelessFile() : descriptor_(memfd_create("tintvert", MFD_CLOEXEC))
    {
        if (descriptor_ < 0) throw Failure(Exit::no_file, "cannot make a file in memory: {}", std::strerror(errno));
    }
    ~NamelessFile() { close(descriptor_); }
    NamelessFile(const NamelessFile&) = delete;
    NamelessFile& operator=(const NamelessFile&) = delete;

    int descriptor() const { return descriptor_; }

    void write(const std::vector<uint8_t>& bytes)
    {
        for (size_t done = 0; done < bytes.size();) {
            const ssize_t count = ::write(descriptor_, bytes.data() + done, bytes.size() - done);
            if (count < 0) throw Failure(Exit::no_file, "cannot write to memory: {}", std::strerror(errno));
            done += static_cast<size_t>(count);
        }
        lseek(descriptor_, 0, SEEK_SET);
    }

    std::vector<uint8_t> read() const
    {
        std::vector<uint8_t> bytes(static_cast<size_t>(lseek(descriptor_, 0, SEEK_END)));
        for (size_t done = 0; done < bytes.size();) {
            const ssize_t count =
                pread(descriptor_, bytes.data() + done, bytes.size() - done, static_cast<off_t>(done));
            if (count <= 0) throw Failure(Exit::no_file, "cannot read from memory: {}", std::strerror(errno));
            done += static_cast<size_t>(count);
        }
        return bytes;
    }

private:
    int descriptor_;
};

bool is_installed(const std::string& program)
{
    const char* const path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');)
        if (access((std::filesystem::path(folder) / program).c_str(), X_OK) == 0) return true;
    return false;
}

struct PeerOutput {
    int code;  // the exit code, or minus the signal that ended it
    std::vector<uint8_t> bytes;
    std::string words;  // what it said on stderr
};

PeerOutput run(const std::vector<std::string>& command, const std::vector<uint8_t>& input)
{
    NamelessFile in, out, words;
    in.write(input);
    std::vector<char*> arguments;
    for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const pid_t pid = fork();
    if (pid < 0) throw Failure(Exit::no_file, "cannot run {}: {}", command[0], std::strerror(errno));
    if (pid == 0) {
        dup2(in.descriptor(), STDIN_FILENO);
        dup2(out.descriptor(), STDOUT_FILENO);
        dup2(words.descriptor(), STDERR_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    const std::vector<uint8_t> said = words.read();
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status), out.read(), {said.begin(), said.end()}};
}

}  // namespace

PeerAnswer answer_of(const std::vector<std::string>& command, const std::vector<uint8_t>& input)
{
    if (!is_installed(command[0])) return {.why_none = command[0] + " not found"};
    PeerOutput output = run(command, input);
    if (output.code == 0) return {.frame = std::move(output.bytes)};
    const std::string line = output.words.substr(0, output.words.find('\n'));
    return {.why_none = fmt::format("{} ended with {}: {}", command[0], output.code, line)};
}

}  // namespace tintvert::core
