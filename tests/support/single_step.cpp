#include "support/single_step.h"

#include <csetjmp>
#include <csignal>

#if defined(__x86_64__) && defined(__linux__)
#include <ucontext.h>
#endif

namespace tintvert::test {

#if defined(__x86_64__) && defined(__linux__)
namespace {

constexpr long long trap_flag = 0x100;

const std::function<bool()>* after_each_instruction;
volatile long instructions;
volatile bool stepping;
sigjmp_buf left_out;

// The processor traps after each instruction while the flag is set in what the handler returns to.
void on_trap(int, siginfo_t*, void* context)
{
    auto& flags = static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_EFL];
    if (!stepping) {
        flags &= ~trap_flag;
        return;
    }
    if ((flags & trap_flag) != 0) {
        instructions = instructions + 1;
        if (!(*after_each_instruction)()) siglongjmp(left_out, 1);
    }
    flags |= trap_flag;
}

}  // namespace

long single_step(const std::function<void()>& work, const std::function<bool()>& after_each)
{
    struct sigaction mine = {}, old;
    mine.sa_sigaction = on_trap;
    mine.sa_flags = SA_SIGINFO;
    sigaction(SIGTRAP, &mine, &old);
    after_each_instruction = &after_each;
    instructions = 0;
    if (sigsetjmp(left_out, 1) == 0) {
        stepping = true;
        raise(SIGTRAP);
        work();
    }
    stepping = false;
    raise(SIGTRAP);
    sigaction(SIGTRAP, &old, nullptr);
    return instructions;
}

#else

long single_step(const std::function<void()>& work, const std::function<bool()>&) { return work(), 0; }

#endif

bool can_single_step()
{
    volatile int sum = 0;
    return single_step([&] { sum = sum + 1; }, [] { return true; }) > 0;
}

}  // namespace tintvert::test
