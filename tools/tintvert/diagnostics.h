// What goes to stderr. Whether it can be written does not change what a command does, nor its exit code.
#pragma once

#include <string_view>

namespace tintvert::tool {

// Closed standard descriptors become /dev/null, opened so that they cannot be used: otherwise the next file to be
// opened would be number 2, and get the messages.
void occupy_standard_descriptors();

void print_error_line(std::string_view line);  // escaped, with a newline after it
void print_error_lines(std::string_view lines);
void show_progress(std::string_view line);  // in place of the line that was shown before
void end_progress();

}  // namespace tintvert::tool
