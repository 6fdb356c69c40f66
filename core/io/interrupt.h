// Signals that end the program: unfinished files are removed, and the exit code is 128 + the signal.
#pragma once

#include <cstddef>

namespace tintvert::core {

// SIGINT, SIGTERM and SIGHUP, unless they came in ignored. A file that grows past the limit of the process
// (SIGXFSZ) and a pipe that nobody reads (SIGPIPE) are no signals here but failed writes.
void catch_interrupts();

// As long as it lives, a signal removes the file at `path`, which has to live as long. Up to 16 at a time.
class Unfinished {
public:
    explicit Unfinished(const char* path);
    ~Unfinished();
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

private:
    size_t slot_;
};

// As long as it lives, signals wait.
class SignalsWait {
public:
    SignalsWait();
    ~SignalsWait();
    SignalsWait(const SignalsWait&) = delete;
    SignalsWait& operator=(const SignalsWait&) = delete;
};

}  // namespace tintvert::core
