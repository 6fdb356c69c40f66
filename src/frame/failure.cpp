#include "frame/failure.h"

#include "frame/imports.h"

namespace tintvert {

// QUIRK (keeps_line_feed_before_carriage_return): the line ends in LF, CR, in that order.
void report_failure(const char* text) { ErrFmtOut(0xC0000000, 0, 0, "ERROR(Tintvert): %s\n\r", text); }

}  // namespace tintvert
