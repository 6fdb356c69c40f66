// Signals that end the program: what is half written goes, and the exit code is 128 + the signal.
#pragma once

namespace tintvert::core {

// SIGINT, SIGTERM and SIGHUP, unless they came in ignored. A file that grows past the limit of the process
// (SIGXFSZ) and a pipe that nobody reads (SIGPIPE) are no signals here but failed writes.
void catch_interrupts();

// The file that a signal removes; one at a time. Null for none.
void set_unfinished(const char* path);

}  // namespace tintvert::core
