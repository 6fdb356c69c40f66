// What another thread can see while the range-scaling tables are filled again. The pages of the tables are
// closed to stores; each store faults, is let through by itself, and the tables are looked at before the next.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <tintvert/ycbcr8.h>
#include <ucontext.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "support/sanitized.h"
#include "ycbcr8/scale_tables.h"

// The thread sanitizer delays signals.
#if defined(__x86_64__) && !defined(TINTVERT_TEST_TSAN)

namespace tintvert::test {
namespace {

constexpr uintptr_t page = 4096;
constexpr greg_t trap_flag = 0x100;

struct Seen {
    uint8_t chroma_255, flag;
    bool others_stand;  // every entry but that one has the value it had at first
};

struct Tables {
    uint8_t entries[4][256];

    static Tables now()
    {
        Tables tables;
        const uint8_t* const all[4] = {gsbScaleLumaDown, gsbScaleChromaDown, gsbScaleLumaUp, gsbScaleChromaUp};
        for (int i = 0; i < 4; ++i) std::memcpy(tables.entries[i], all[i], 256);
        return tables;
    }
};

struct Watch {
    uint8_t* pages;
    size_t bytes;
    Tables first;
    size_t count = 0;
    Seen seen[8192];
};

Watch* watch;

void let_one_store_through(int, siginfo_t* info, void* context)
{
    const auto* const at = static_cast<uint8_t*>(info->si_addr);
    if (at < watch->pages || at >= watch->pages + watch->bytes) {
        signal(SIGSEGV, SIG_DFL);
        return;
    }
    mprotect(watch->pages, watch->bytes, PROT_READ | PROT_WRITE);
    static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_EFL] |= trap_flag;
}

void look(int, siginfo_t*, void* context)
{
    static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_EFL] &= ~trap_flag;
    Tables now = Tables::now();
    const uint8_t chroma_255 = now.entries[1][255];
    now.entries[1][255] = watch->first.entries[1][255];
    if (watch->count < std::size(watch->seen)) {
        watch->seen[watch->count++] = {chroma_255, gsfScaleTablesReady,
                                       std::memcmp(&now, &watch->first, sizeof now) == 0};
    }
    mprotect(watch->pages, watch->bytes, PROT_READ);
}

// The tables after each store of a call that fills them.
std::vector<Seen> fill_again()
{
    gsfScaleTablesReady = 0;
    const auto mine = std::make_unique<Watch>();
    mine->first = Tables::now();
    uintptr_t low = UINTPTR_MAX, high = 0;
    const auto cover = [&](const uint8_t* begin, size_t bytes) {
        low = std::min(low, reinterpret_cast<uintptr_t>(begin));
        high = std::max(high, reinterpret_cast<uintptr_t>(begin) + bytes);
    };
    for (const uint8_t* const table : {gsbScaleLumaDown, gsbScaleChromaDown, gsbScaleLumaUp, gsbScaleChromaUp})
        cover(table, 256);
    cover(&gsfScaleTablesReady, 1);
    low = low / page * page;
    mine->pages = reinterpret_cast<uint8_t*>(low);
    mine->bytes = (high - low + page - 1) / page * page;
    watch = mine.get();

    struct sigaction fault = {}, trap = {}, old_fault, old_trap;
    fault.sa_sigaction = let_one_store_through;
    trap.sa_sigaction = look;
    fault.sa_flags = trap.sa_flags = SA_SIGINFO;
    sigaction(SIGSEGV, &fault, &old_fault);
    sigaction(SIGTRAP, &trap, &old_trap);
    mprotect(mine->pages, mine->bytes, PROT_READ);
    tntvt_2vuy_scale(nullptr, 0, 0);
    mprotect(mine->pages, mine->bytes, PROT_READ | PROT_WRITE);
    sigaction(SIGSEGV, &old_fault, nullptr);
    sigaction(SIGTRAP, &old_trap, nullptr);
    return {mine->seen, mine->seen + mine->count};
}

// One after another, each value once.
std::vector<int> values(const std::vector<Seen>& seen, uint8_t Seen::*what)
{
    std::vector<int> result;
    for (const Seen& one : seen)
        if (result.empty() || result.back() != one.*what) result.push_back(one.*what);
    return result;
}

TEST(ScaleBuildOrder, a_late_builder_passes_one_entry_through_240)
{
    tntvt_2vuy_scale(nullptr, 0, 0);
    const std::vector<Seen> seen = fill_again();
    ASSERT_FALSE(seen.empty());
    EXPECT_EQ(values(seen, &Seen::chroma_255), (std::vector<int>{241, 240, 241}));
    EXPECT_TRUE(std::all_of(seen.begin(), seen.end(), [](const Seen& one) { return one.others_stand; }));
}

TEST(ScaleBuildOrder, the_flag_is_the_last_store)
{
    const std::vector<Seen> seen = fill_again();
    ASSERT_GE(seen.size(), 3u);
    EXPECT_EQ(values(seen, &Seen::flag), (std::vector<int>{0, 1}));
    EXPECT_EQ(seen.back().flag, 1);
    EXPECT_EQ(seen[seen.size() - 2].flag, 0);
    EXPECT_EQ(seen[seen.size() - 2].chroma_255, 241);
}

}  // namespace
}  // namespace tintvert::test

#endif
