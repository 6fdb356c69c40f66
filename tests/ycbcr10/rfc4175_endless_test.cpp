// An RTP packet of an odd width, which is formed for ever.
#include <sched.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>

#include "rfc4175_former.h"

namespace tintvert::test {
namespace {

// Whether a process of its own is still running after so many instructions, one at a time.
bool runs_for(int instructions, pid_t child)
{
    int status = 0;
    if (ptrace(PTRACE_SEIZE, child, nullptr, nullptr) != 0 || ptrace(PTRACE_INTERRUPT, child, nullptr, nullptr) != 0)
        return false;
    if (waitpid(child, &status, 0) != child || !WIFSTOPPED(status)) return false;
    for (; instructions > 0; --instructions)
        if (ptrace(PTRACE_SINGLESTEP, child, nullptr, nullptr) != 0 || waitpid(child, &status, 0) != child ||
            !WIFSTOPPED(status) || WSTOPSIG(status) != SIGTRAP)
            return false;
    return true;
}

// The child works in shared memory. It stamps one header, fills the payload and goes on for ever: it is still
// at it a while after the payload is complete, and has written nothing else.
TEST(Rfc4175Packet, keeps_endless_odd_width)
{
    struct Shared {
        uint8_t frame[16384];
        unsigned short seq;
        unsigned outA, outB;
    };
    for (const unsigned width : {1u, 5u, 549u, 551u, 1919u}) {
        void* const map = mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        ASSERT_NE(map, MAP_FAILED);
        auto* const shared = static_cast<Shared*>(map);
        // No bit of the last payload byte, 0xAA, is there before it is written.
        std::memset(shared->frame, 0x55, sizeof shared->frame);
        shared->frame[16] = shared->frame[18] = 0;
        shared->seq = 0x1234;
        shared->outA = shared->outB = 7;
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            tntvt_v210_frame_to_rtp_4175(shared->frame, 1395, &shared->seq, timestamp, ssrc, ext_seq, nullptr, width, 2,
                                         &shared->outA, &shared->outB);
            _exit(0);
        }
        Bytes expected(sizeof shared->frame, 0x55);
        const uint8_t high = width > 550 ? 0x05 : 0x00, low = width > 550 ? 0x5F : 0xE0;
        const Bytes packet = joined({{0x90, 0x60, 0x12, 0x34, 0xAA, 0xBB, 0xCC, 0xDD, 0x01, 0x02,
                                      0x03, 0x04, 0x55, 0x66, high, low,  0x00, 0x01, 0x00, 0x00},
                                     repeated({0x24, 0x09, 0x8D, 0x07, 0xAA}, 275)});
        std::memcpy(expected.data(), packet.data(), packet.size());
        // The packet is complete; a call that returns does so within a few hundred instructions.
        int status = 0;
        while (std::memcmp(shared->frame, packet.data(), packet.size()) != 0 && waitpid(child, &status, WNOHANG) == 0)
            sched_yield();
        EXPECT_TRUE(runs_for(3000, child)) << "returned at width " << width;
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        EXPECT_EQ(Bytes(shared->frame, shared->frame + sizeof shared->frame), expected) << width;
        EXPECT_EQ(shared->seq, 0x1234);
        EXPECT_EQ(shared->outA, 7u);
        EXPECT_EQ(shared->outB, 7u);
        munmap(map, sizeof(Shared));
    }
}

}  // namespace
}  // namespace tintvert::test
