#include "progress.h"

#include <fmt/format.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <string>

namespace tintvert::tool {
namespace {

double now() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

}  // namespace

Progress::Progress(int64_t frames) : frames_(frames), shown_(frames > 1 && isatty(STDERR_FILENO) != 0), begun_(now()) {}

Progress::~Progress()
{
    if (shown_) fmt::print(stderr, "\n");
}

void Progress::done(int64_t frames)
{
    if (!shown_) return;
    constexpr int64_t width = 40;
    const double seconds = now() - begun_, rate = seconds > 0 ? static_cast<double>(frames) / seconds : 0;
    const std::string bar(static_cast<size_t>(width * frames / frames_), '#');
    fmt::print(stderr, "\r[{:<40}] {}/{} frames  {:.0f} fps  {:.0f} s left ", bar, frames, frames_, rate,
               rate > 0 ? static_cast<double>(frames_ - frames) / rate : 0);
    std::fflush(stderr);
}

}  // namespace tintvert::tool
