// The one line that the library ever says.
#pragma once

namespace tintvert {

// `text` names the routine whose line copy threw.
void report_failure(const char* text);

}  // namespace tintvert
