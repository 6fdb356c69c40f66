// Runs the built tool.
#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "support/folder.h"

namespace tintvert::test {

struct Result {
    int code;  // the exit code, or minus the signal that killed it
    std::string out, err;

    bool has_one_line_of_error() const { return err.starts_with("tintvert: ") && err.find('\n') == err.size() - 1; }
};

class Process {
public:
    explicit Process(std::vector<std::string> arguments, const std::function<void()>& in_child = {})
    {
        arguments.insert(arguments.begin(), TINTVERT_TOOL);
        std::vector<char*> words;
        for (std::string& word : arguments) words.push_back(word.data());
        words.push_back(nullptr);
        pid_ = fork();
        if (pid_ != 0) return;
        dup2(fileno(out_), STDOUT_FILENO);
        dup2(fileno(err_), STDERR_FILENO);
        signal(SIGINT, SIG_DFL);  // background jobs of a shell have it ignored
        if (in_child) in_child();
        execv(words[0], words.data());
        _exit(127);
    }
    ~Process()
    {
        std::fclose(out_);
        std::fclose(err_);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    pid_t pid() const { return pid_; }
    bool is_running() const
    {
        siginfo_t state = {};
        return waitid(P_PID, static_cast<id_t>(pid_), &state, WEXITED | WNOHANG | WNOWAIT) == 0 && state.si_pid == 0;
    }
    Result wait()
    {
        int status = 0;
        waitpid(pid_, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status), text_of(out_), text_of(err_)};
    }

private:
    static std::string text_of(std::FILE* file)
    {
        std::string text;
        std::rewind(file);
        for (int c; (c = std::fgetc(file)) != EOF;) text += static_cast<char>(c);
        return text;
    }

    std::FILE* out_ = std::tmpfile();
    std::FILE* err_ = std::tmpfile();
    pid_t pid_;
};

inline Result run(std::vector<std::string> arguments, const std::function<void()>& in_child = {})
{
    return Process(std::move(arguments), in_child).wait();
}

using ToolTest = FolderTest;

}  // namespace tintvert::test
