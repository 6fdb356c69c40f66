#include "support/store_watch.h"

#include "support/sanitized.h"

#if defined(__x86_64__) && !defined(TINTVERT_TEST_TSAN)

#include <signal.h>
#include <sys/mman.h>
#include <ucontext.h>

#include <cstdint>

namespace tintvert::test {
namespace {

constexpr uintptr_t page = 4096;
constexpr greg_t trap_flag = 0x100;

struct Pages {
    uintptr_t begin, end;
};

struct Watch {
    std::vector<Pages> pages;
    const std::function<void()>* look;
};

const Watch* watch;

void protect(int protection)
{
    for (const Pages& pages : watch->pages)
        mprotect(reinterpret_cast<void*>(pages.begin), pages.end - pages.begin, protection);
}

void let_one_store_through(int, siginfo_t* info, void* context)
{
    const auto at = reinterpret_cast<uintptr_t>(info->si_addr);
    for (const Pages& pages : watch->pages) {
        if (at < pages.begin || at >= pages.end) continue;
        protect(PROT_READ | PROT_WRITE);
        static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_EFL] |= trap_flag;
        return;
    }
    signal(SIGSEGV, SIG_DFL);
}

void look_and_close(int, siginfo_t*, void* context)
{
    static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_EFL] &= ~trap_flag;
    (*watch->look)();
    protect(PROT_READ);
}

}  // namespace

bool can_watch_stores() { return true; }

void watch_stores(const std::vector<Watched>& what, const std::function<void()>& work,
                  const std::function<void()>& look)
{
    Watch mine{{}, &look};
    for (const auto& [begin, bytes] : what) {
        const auto first = reinterpret_cast<uintptr_t>(begin);
        mine.pages.push_back({first / page * page, (first + bytes + page - 1) / page * page});
    }
    watch = &mine;

    struct sigaction fault = {}, trap = {}, old_fault, old_trap;
    fault.sa_sigaction = let_one_store_through;
    trap.sa_sigaction = look_and_close;
    fault.sa_flags = trap.sa_flags = SA_SIGINFO;
    sigaction(SIGSEGV, &fault, &old_fault);
    sigaction(SIGTRAP, &trap, &old_trap);
    protect(PROT_READ);
    work();
    protect(PROT_READ | PROT_WRITE);
    sigaction(SIGSEGV, &old_fault, nullptr);
    sigaction(SIGTRAP, &old_trap, nullptr);
}

}  // namespace tintvert::test

#else

namespace tintvert::test {

bool can_watch_stores() { return false; }
void watch_stores(const std::vector<Watched>&, const std::function<void()>&, const std::function<void()>&) {}

}  // namespace tintvert::test

#endif
