// The rows of docs/deliberate.md, which is compiled into the tool.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tintvert::tool {

struct Oddity {
    std::string_view name, what;
};

// Those whose row names the routine.
std::vector<Oddity> oddities_of(std::string_view routine);

// The page as it stands in docs/; filled in when the tool is built.
std::string_view deliberate_page();

}  // namespace tintvert::tool
