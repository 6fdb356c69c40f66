#include "progress.h"

#include <fmt/format.h>
#include <unistd.h>

#include <chrono>
#include <string>

#include "diagnostics.h"

namespace tintvert::tool {
namespace {

double now() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

}  // namespace

Progress::Progress(int64_t frames, bool quiet)
    : frames_(frames), shown_(!quiet && frames != 1 && isatty(STDERR_FILENO) != 0), begun_(now())
{}

Progress::~Progress()
{
    if (shown_ && last_shown_ > 0) end_progress();
}

// Ten times a second, and at the end.
void Progress::done(int64_t frames)
{
    const double time = now();
    if (!shown_ || (time - last_shown_ < 0.1 && frames != frames_)) return;
    last_shown_ = time;
    constexpr int64_t width = 40;
    const double seconds = time - begun_, rate = seconds > 0 ? static_cast<double>(frames) / seconds : 0;
    if (frames_ < 0) {
        show_progress(fmt::format("{} frames  {:.0f} fps ", frames, rate));
    } else {
        const std::string bar(static_cast<size_t>(width * frames / frames_), '#');
        show_progress(fmt::format("[{:<40}] {}/{} frames  {:.0f} fps  {:.0f} s left ", bar, frames, frames_, rate,
                                  rate > 0 ? static_cast<double>(frames_ - frames) / rate : 0));
    }
}

}  // namespace tintvert::tool
