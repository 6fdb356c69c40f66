#include "support/fence.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <csetjmp>
#include <csignal>
#include <memory>
#include <string>
#include <vector>

#include "support/sanitized.h"

#ifdef TINTVERT_TEST_ASAN
#include <sanitizer/lsan_interface.h>
#endif

namespace tintvert::test {
namespace {

using namespace catalog;

constexpr int64_t page = 4096;

int64_t floor_to_page(int64_t offset)
{
    return offset >= 0 ? offset / page * page : -((-offset + page - 1) / page * page);
}
int64_t ceil_to_page(int64_t offset) { return -floor_to_page(-offset); }

sigjmp_buf after_fault;

void leave(int) { siglongjmp(after_fault, 1); }

std::string text_of(const Routine& routine, const Arguments& call)
{
    std::string text{routine.name};
    for (const Arg argument : routine.arguments) {
        if (describe(argument).kind == Argument::buffer) continue;
        text += ' ' + std::string{describe(argument).name} + '=' + std::to_string(call[argument]);
    }
    return text;
}

// One call with a fence in `fenced`; every other buffer is far from any.
bool faults_with_fence(const Routine& routine, Arguments call, const Extents& extents, const Touch& fenced,
                       int64_t fence, Side side, Closed closed, const Fill& fill)
{
    std::vector<std::unique_ptr<FencedBuffer>> buffers;
    for (const Touch& touch : extents) {
        const Range hull = touch.touched;
        const bool here = &touch == &fenced;
        const auto fill_this = [&](uint8_t* pointer) {
            if (fill) fill(touch.buffer, pointer, hull);
        };
        buffers.push_back(here
                              ? std::make_unique<FencedBuffer>(hull, fence, side, closed, fill_this)
                              : std::make_unique<FencedBuffer>(hull, hull.end, Side::above, Closed::wholly, fill_this));
        const int64_t name = call[touch.buffer], address = reinterpret_cast<int64_t>(buffers.back()->pointer());
        for (const Arg argument : routine.arguments)
            if (name != 0 && describe(argument).kind == Argument::buffer && call[argument] == name)
                call[argument] = address;
        call[touch.buffer] = address;
    }
    return faults([&] { routine.call(call); });
}

}  // namespace

FencedBuffer::FencedBuffer(Range hull, int64_t fence, Side side, Closed closed,
                           const std::function<void(uint8_t*)>& fill)
{
    const int64_t below = floor_to_page(std::min<int64_t>(hull.begin - fence, 0)) - page;
    const int64_t above = ceil_to_page(std::max<int64_t>(hull.end - fence, 0)) + page;
    mapped_ = static_cast<size_t>(above - below);
    map_ = static_cast<uint8_t*>(
        mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    if (map_ == MAP_FAILED) throw std::bad_alloc();
    uint8_t* const fence_at = map_ - below;
    pointer_ = fence_at - fence;
    if (fill) fill(pointer_);
    const int protection = closed == Closed::wholly ? PROT_NONE : PROT_READ;
    if (side == Side::above)
        mprotect(fence_at, static_cast<size_t>(above), protection);
    else
        mprotect(map_, static_cast<size_t>(-below), protection);
}

FencedBuffer::~FencedBuffer() { munmap(map_, mapped_); }

bool faults(const std::function<void()>& work)
{
    struct sigaction mine = {}, old_segv, old_bus;
    mine.sa_handler = leave;
    mine.sa_flags = SA_NODEFER;
    sigaction(SIGSEGV, &mine, &old_segv);
    sigaction(SIGBUS, &mine, &old_bus);
#ifdef TINTVERT_TEST_ASAN
    __lsan_disable();  // a call that is left in its middle keeps its scratch memory
#endif
    bool faulted = true;
    if (sigsetjmp(after_fault, 1) == 0) {
        work();
        faulted = false;
    }
#ifdef TINTVERT_TEST_ASAN
    __lsan_enable();
#endif
    sigaction(SIGSEGV, &old_segv, nullptr);
    sigaction(SIGBUS, &old_bus, nullptr);
    return faulted;
}

namespace {

enum class Claim { within, exact };

void expect_extents(Claim claim, const Routine& routine, Arguments call, const Fill& fill, int64_t idle)
{
    const Extents extents = routine.extents(call);
    for (const Touch& touch : extents) {
        const std::string where = text_of(routine, call) + ", buffer " + std::string{describe(touch.buffer).name};
        const auto check = [&](Range range, Closed closed, const char* what) {
            const auto fault = [&](int64_t fence, Side side) {
                return faults_with_fence(routine, call, extents, touch, fence, side, closed, fill);
            };
            EXPECT_FALSE(fault(range.end, Side::above)) << where << ' ' << what << " past " << range.end;
            EXPECT_FALSE(fault(range.begin, Side::below)) << where << ' ' << what << " below " << range.begin;
            if (claim == Claim::within) return;
            const int64_t depth = touch.written.empty() ? idle + 1 : 1;
            EXPECT_TRUE(fault(range.end - depth, Side::above))
                << where << ' ' << what << " not at " << range.end - depth;
            EXPECT_TRUE(fault(range.begin + depth, Side::below))
                << where << ' ' << what << " not at " << range.begin + depth - 1;
        };
        const Range hull = touch.touched;
        if (hull.empty()) continue;
        check(hull, Closed::wholly, "touches");
        if (!touch.written.empty() && touch.written != hull) check(touch.written, Closed::to_writes, "writes");
    }
}

}  // namespace

void expect_exact_extents(const Routine& routine, Arguments call, const Fill& fill, int64_t idle)
{
    expect_extents(Claim::exact, routine, call, fill, idle);
}

void fill_with_errors(uint8_t* line, Range hull)
{
    for (int64_t i = hull.begin; i < hull.end; ++i) line[i] = i % 4 == 3 ? 120 : 100;
}

void expect_within_extents(const Routine& routine, Arguments call)
{
    expect_extents(Claim::within, routine, call, {}, 0);
}

}  // namespace tintvert::test
