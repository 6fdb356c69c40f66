#include "diagnostics.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "printable.h"

namespace tintvert::tool {
namespace {

// stdio reports a failed write by its results alone, which nobody reads here.
void write_text(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stderr);
    std::fflush(stderr);
}

}  // namespace

void occupy_standard_descriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(descriptor, F_GETFD) < 0 && open("/dev/null", descriptor == STDOUT_FILENO ? O_RDONLY : O_WRONLY) < 0)
            return;
}

void print_error_line(std::string_view line) { write_text(fmt::format("{}\n", core::printable(line))); }

void print_error_lines(std::string_view lines)
{
    while (!lines.empty()) {
        const size_t end = lines.find('\n');
        print_error_line(lines.substr(0, end));
        lines.remove_prefix(end == std::string_view::npos ? lines.size() : end + 1);
    }
}

void show_progress(std::string_view line) { write_text(fmt::format("\r{}", core::printable(line))); }

void end_progress() { write_text("\n"); }

}  // namespace tintvert::tool
