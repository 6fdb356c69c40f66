// The report of a capture, in words and as JSON.
#pragma once

#include <string>

#include "capture/report.h"
#include "json.h"

namespace tintvert::tool {

Json to_json(const capture::Report& report);
std::string to_text(const capture::Report& report);

}  // namespace tintvert::tool
