#include "help.h"

#include <fmt/format.h>

#include "command_words.h"
#include "options.h"

namespace tintvert::tool {

Help::Help()
{
    label("SUBCOMMAND", "COMMAND");
    label("Positionals", "Arguments");
}

// Without the value of an option that is given without one, which the parser has in braces.
std::string Help::make_option_name(const CLI::Option* option, bool is_positional) const
{
    const std::string name = CLI::Formatter::make_option_name(option, is_positional);
    return name.substr(0, name.find('{'));
}

std::string Help::make_option_opts(const CLI::Option* option) const
{
    if (option->get_positional()) return {};
    if (!option->get_option_text().empty()) return option->get_option_text();
    std::string text = value_word(*option);
    if (!text.empty()) text = " " + text;
    if (!option->get_default_str().empty()) text += fmt::format(" (default {})", option->get_default_str());
    return option->get_required() ? text + " (required)" : text;
}

// One empty line between groups, not two.
std::string Help::make_group(std::string group, bool is_positional, std::vector<const CLI::Option*> options) const
{
    const std::string text = CLI::Formatter::make_group(group, is_positional, options);
    return group == routine_arguments ? text.substr(1) : text;
}

}  // namespace tintvert::tool
