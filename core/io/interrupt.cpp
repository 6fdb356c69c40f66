#include "io/interrupt.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>

namespace tintvert::core {
namespace {

std::array<std::atomic<const char*>, 16> unfinished;

// `waiting` is set by SignalsWait, `leaving` by the handler: whoever is first.
enum { running, waiting, leaving };
std::atomic<int> state = running, last_signal = 0;

// The handler makes only calls that it may make.
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<const char*>::is_always_lock_free);

[[noreturn]] void leave()
{
    for (const std::atomic<const char*>& path : unfinished)
        if (const char* const name = path) unlink(name);
    _exit(128 + last_signal);
}

extern "C" void on_signal(int signal)
{
    last_signal = signal;
    int expected = running;
    if (state.compare_exchange_strong(expected, leaving)) leave();
}

}  // namespace

void catch_interrupts()
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action = {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_IGN) continue;
        action = {};
        action.sa_handler = on_signal;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

Unfinished::Unfinished(const char* path) : slot_(0)
{
    for (; slot_ < unfinished.size(); ++slot_) {
        const char* none = nullptr;
        if (unfinished[slot_].compare_exchange_strong(none, path)) return;
    }
}

Unfinished::~Unfinished()
{
    if (slot_ < unfinished.size()) unfinished[slot_] = nullptr;
}

SignalsWait::SignalsWait()
{
    for (int expected = running; !state.compare_exchange_strong(expected, waiting); expected = running) pause();
}

SignalsWait::~SignalsWait()
{
    state = running;
    if (last_signal != 0) leave();
}

}  // namespace tintvert::core
