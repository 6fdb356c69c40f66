#include "command_words.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "catalog.h"
#include "layouts.h"
#include "options.h"

namespace tintvert::tool {
namespace {

// What an option with few answers may be.
std::vector<std::string> choices_of(const std::string& name)
{
    if (name == "as") return {"letters", "blocks", "symbols", "sixels", "kitty"};
    if (name == "color") return {"auto", "always", "never"};
    if (name == "format") return {"raw", "y4m", "png", "ppm", "pam", "bmp"};
    if (name == "shell") return {"bash", "zsh", "fish"};
    return {};
}

// And the names of the catalogue.
std::vector<std::string> values_of(const std::string& name)
{
    std::vector<std::string> values = choices_of(name);
    if (name == "routine")
        for (const catalog::Routine& routine : catalog::routines()) values.emplace_back(routine.name);
    if (name == "layout")
        for (const catalog::Layout& layout : catalog::layouts()) values.emplace_back(layout.name);
    if (name == "chapter")
        for (const catalog::Routine& routine : catalog::routines())
            if (values.empty() || values.back() != routine.chapter) values.emplace_back(routine.chapter);
    return values;
}

constexpr std::pair<std::string_view, const char*> words_for_values[] = {
    {"at", "X,Y"},   {"frames", "A:B"},   {"from", "LAYOUT"},  {"layout", "LAYOUT"}, {"output", "FILE"},
    {"size", "WxH"}, {"to", "LAYOUT"},    {"stride", "LINES"}, {"table", "TABLE"},   {"input", "FILE"},
    {"png", "FILE"}, {"missing", "FILE"}, {"palette", "FILE"}, {"picture", "FILE"},  {"planes", "FILE,..."},
};

}  // namespace

std::string value_word(const CLI::Option& option)
{
    if (option.get_items_expected_max() == 0) return {};
    if (option.get_group() == routine_arguments) return "N";
    const std::string name = option.get_lnames().front();
    if (const std::vector<std::string> choices = choices_of(name); !choices.empty())
        return fmt::format("{}", fmt::join(choices, "|"));
    const auto word = std::ranges::find(words_for_values, name, &std::pair<std::string_view, const char*>::first);
    return word == std::end(words_for_values) ? "N" : word->second;
}

std::vector<CommandWords> command_words(const CLI::App& tool)
{
    std::vector<CommandWords> commands;
    std::vector<std::string> names;
    for (const CLI::App* app : tool.get_subcommands({})) names.push_back(app->get_name());
    for (const CLI::App* app : tool.get_subcommands({})) {
        CommandWords command{app->get_name(), app->get_description(), {}, {}, {}};
        for (const CLI::Option* option : app->get_options()) {
            if (option->get_positional()) {
                if (command.positionals.empty())
                    command.positional_values = option->get_name() == "command" ? names : values_of(option->get_name());
                command.positionals.emplace_back(option->get_name(), option->get_description());
                continue;
            }
            OptionWords words{{}, option->get_description(), value_word(*option), {}};
            for (const std::string& name : option->get_snames()) words.names.push_back("-" + name);
            for (const std::string& name : option->get_lnames()) words.names.push_back("--" + name);
            if (option->get_group() != routine_arguments && !option->get_lnames().empty())
                words.values = values_of(option->get_lnames().front());
            command.options.push_back(words);
        }
        commands.push_back(command);
    }
    return commands;
}

}  // namespace tintvert::tool
