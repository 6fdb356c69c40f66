// How --help reads.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace tintvert::tool {

// Options with a word for their value, what they are if they are not given, and whether they have to be.
class Help : public CLI::Formatter {
public:
    Help();

private:
    std::string make_option_name(const CLI::Option* option, bool is_positional) const override;
    std::string make_option_opts(const CLI::Option* option) const override;
    std::string make_group(std::string group, bool is_positional,
                           std::vector<const CLI::Option*> options) const override;
};

}  // namespace tintvert::tool
