#include "command_words.h"

#include <algorithm>

#include "catalog.h"
#include "layouts.h"

namespace tintvert::tool {
namespace {

// What stands behind a name of the catalogue, on the command line.
std::vector<std::string> values_of(const std::string& name)
{
    std::vector<std::string> values;
    if (name == "routine")
        for (const catalog::Routine& routine : catalog::routines()) values.emplace_back(routine.name);
    if (name == "layout")
        for (const catalog::Layout& layout : catalog::layouts()) values.emplace_back(layout.name);
    if (name == "chapter")
        for (const catalog::Routine& routine : catalog::routines())
            if (values.empty() || values.back() != routine.chapter) values.emplace_back(routine.chapter);
    if (name == "color") values = {"auto", "always", "never"};
    if (name == "interlaced") values = {"field", "frame"};
    if (name == "shell") values = {"bash", "zsh", "fish"};
    return values;
}

}  // namespace

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
            OptionWords words{{}, option->get_description(), option->get_items_expected_max() > 0, {}};
            for (const std::string& name : option->get_snames()) words.names.push_back("-" + name);
            for (const std::string& name : option->get_lnames()) words.names.push_back("--" + name);
            if (!option->get_lnames().empty()) words.values = values_of(option->get_lnames().front());
            command.options.push_back(words);
        }
        commands.push_back(command);
    }
    return commands;
}

}  // namespace tintvert::tool
