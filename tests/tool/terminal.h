// Runs the tool with a terminal in place of a pipe.
#pragma once

#include <fcntl.h>
#include <sys/ioctl.h>

#include "tool/run.h"

namespace tintvert::test {

// What it shows on a terminal of 80 x 24 characters, each 3 x 6 pixels. It has to be short: nobody reads before the
// end.
inline std::string shown_on_a_terminal(const std::vector<std::string>& words, int descriptor,
                                       const std::function<void()>& in_child = {})
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    EXPECT_EQ(grantpt(terminal), 0);
    EXPECT_EQ(unlockpt(terminal), 0);
    const int side = open(ptsname(terminal), O_RDWR | O_NOCTTY);
    const winsize size{24, 80, 240, 144};
    EXPECT_EQ(ioctl(side, TIOCSWINSZ, &size), 0);
    const Result result = run(words, [&] {
        dup2(side, descriptor);
        if (in_child) in_child();
    });
    EXPECT_EQ(result.code, 0) << result.err;
    constexpr char end = '\x01';
    EXPECT_EQ(write(side, &end, 1), 1);
    char text[4096];
    std::string all;
    while (!all.ends_with(end)) {
        const ssize_t got = read(terminal, text, sizeof text);
        if (got < 1) break;
        all.append(text, static_cast<size_t>(got));
    }
    close(side);
    close(terminal);
    return all.substr(0, all.find(end));
}

}  // namespace tintvert::test
