#include "io/interrupt.h"

#include <unistd.h>

#include <climits>
#include <csignal>
#include <cstring>
#include <initializer_list>

namespace tintvert::core {
namespace {

char unfinished[PATH_MAX];
volatile sig_atomic_t has_unfinished = 0;

// Only calls that a handler may make.
extern "C" void leave(int signal)
{
    if (has_unfinished != 0) unlink(unfinished);
    _exit(128 + signal);
}

}  // namespace

void catch_interrupts()
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action = {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_IGN) continue;
        action = {};
        action.sa_handler = leave;
        sigaction(signal, &action, nullptr);
    }
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

void set_unfinished(const char* path)
{
    has_unfinished = 0;
    if (path == nullptr || std::strlen(path) >= sizeof unfinished) return;
    std::strcpy(unfinished, path);
    has_unfinished = 1;
}

}  // namespace tintvert::core
