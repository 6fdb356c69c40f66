// The report of a capture, in words and as JSON.
#pragma once

#include <string>

#include "capture/report.h"
#include "json.h"

namespace tintvert::tool::capture {

Json to_json(const Report& report);
std::string to_text(const Report& report);

}  // namespace tintvert::tool::capture
