// The quirks of a routine: whose they are from the catalogue, what each is from docs/quirks.md.
#pragma once

#include <string_view>
#include <vector>

#include "catalog.h"

namespace tintvert::core {

struct Quirk {
    std::string_view name, what;
    std::string_view here;  // whether a call meets it, if its arguments decide it; empty otherwise
};

std::vector<Quirk> quirks_at(const catalog::Routine& routine, const catalog::Arguments& call);

// The page of docs/; filled in when the tool is built.
std::string_view quirks_page();

}  // namespace tintvert::core
