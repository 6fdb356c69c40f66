// The commands with their options as words: for help, completions and manual pages.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace tintvert::tool {

struct OptionWords {
    std::vector<std::string> names;  // with their hyphens
    std::string description;
    std::string value;                // the word for it, such as WxH; empty for flags
    std::vector<std::string> values;  // empty for files and numbers
};

struct CommandWords {
    std::string name, description;
    std::vector<OptionWords> options;
    std::vector<std::pair<std::string, std::string>> positionals;  // name, description
    std::vector<std::string> positional_values;                    // of the first; empty for files
};

// The placeholder of an option's value: its choices, or a word.
std::string value_word(const CLI::Option& option);

std::vector<CommandWords> command_words(const CLI::App& tool);

}  // namespace tintvert::tool
