// Counts that run past every frame: a child makes the call with pitches of 0, so that its walk leaves no
// memory, and a timer ends it when it has worked for a while and not come back.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <tintvert/field.h>
#include <unistd.h>

#include <functional>

namespace tintvert::test {
namespace {

// The timer counts the child's own time, so that a busy machine changes nothing.
bool ends(const std::function<void()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        const itimerval after_50_ms{{0, 0}, {0, 50000}};
        setitimer(ITIMER_VIRTUAL, &after_50_ms, nullptr);
        work();
        _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return true;
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGVTALRM) << "the child died";
    return false;
}

bool runs_on(const std::function<void()>& work) { return !ends(work); }

unsigned char dst[64], src[64];

std::function<void()> change(unsigned int mode, unsigned int height)
{
    return [=] { tntvt_change_field_rgb(dst, mode, 4, height, 0, src, 0); };
}

TEST(Endless, a_call_that_ends_comes_back)
{
    for (const unsigned int mode : {3u, 5u, 6u, 7u, 8u}) EXPECT_TRUE(ends(change(mode, 4))) << mode;
    for (const unsigned int mode : {5u, 6u, 7u, 8u}) EXPECT_TRUE(ends(change(mode, 0))) << mode;
    EXPECT_TRUE(ends([] { tntvt_flip_vert(dst, dst, 0, 5, 0); }));
}

TEST(Endless, keeps_flip_without_guard)
{
    EXPECT_TRUE(runs_on(change(3, 0)));
    EXPECT_TRUE(runs_on(change(3, 1)));
}

TEST(Endless, keeps_even_heights_only)
{
    for (const unsigned int mode : {5u, 6u, 7u, 8u}) {
        EXPECT_TRUE(runs_on(change(mode, 1))) << mode;
        EXPECT_TRUE(runs_on(change(mode, 7))) << mode;
    }
}

// A height below 0 is a very large one, and half of it in place.
TEST(Endless, keeps_unsigned_half_of_height)
{
    for (const int height : {-1, -4, -2147483647 - 1}) {
        EXPECT_TRUE(runs_on([=] { tntvt_flip_vert(dst, dst, 0, height, 0); })) << height;
        EXPECT_TRUE(runs_on([=] { tntvt_flip_vert_flags(dst, dst, 0, 0, height, 0, 0, 0, 0); })) << height;
        EXPECT_TRUE(ends([=] { tntvt_flip_vert(dst, src, 0, height, 0); })) << height;
        EXPECT_TRUE(ends([=] { tntvt_flip_vert_flags(dst, src, 0, 0, height, 0, 0, 0, 0); })) << height;
    }
}

TEST(Endless, field_change_reads_no_sign)
{
    for (const unsigned int mode : {1u, 2u, 3u, 4u, 5u, 8u, 9u, 10u, 13u, 14u})
        EXPECT_TRUE(runs_on(change(mode, 0xFFFFFFFC))) << mode;
}

}  // namespace
}  // namespace tintvert::test
