// tintvert completions: what a shell needs to complete our command lines.
#include <fmt/format.h>

#include <algorithm>

#include "command_words.h"
#include "commands.h"

namespace tintvert::tool {
namespace {

std::string joined(const std::vector<std::string>& words) { return fmt::format("{}", fmt::join(words, " ")); }

std::string quoted(const std::string& text, std::string_view apostrophe)
{
    std::string result;
    for (const char c : text) {
        if (c == '\'')
            result += apostrophe;
        else
            result += c;
    }
    return fmt::format("'{}'", result);
}

std::string zsh(const std::string& text) { return quoted(text, "'\\''"); }
std::string fish(const std::string& text) { return quoted(text, "\\'"); }

void print_bash(const CLI::App& tool)
{
    const std::vector<CommandWords> commands = command_words(tool);
    std::vector<std::string> names;
    for (const CommandWords& command : commands) names.push_back(command.name);
    fmt::print(R"(# tintvert completion for bash
_tintvert()
{{
    local word=${{COMP_WORDS[COMP_CWORD]}} before=${{COMP_WORDS[COMP_CWORD - 1]}} options= values= words=
    COMPREPLY=()
    if [ "$COMP_CWORD" -eq 1 ]; then
        COMPREPLY=($(compgen -W '{} --help --version' -- "$word"))
        return
    fi
    case ${{COMP_WORDS[1]}} in
)",
               joined(names));
    for (const CommandWords& command : commands) {
        std::vector<std::string> options;
        fmt::print("    {})\n        case $before in\n", command.name);
        for (const OptionWords& option : command.options) {
            options.insert(options.end(), option.names.begin(), option.names.end());
            if (option.value.empty()) continue;
            const std::string pattern = fmt::format("{}", fmt::join(option.names, "|"));
            fmt::print(
                "        {}) values='{}'; [ -n \"$values\" ] || {{ COMPREPLY=($(compgen -f -- \"$word\")); return; }} "
                ";;\n",
                pattern, joined(option.values));
        }
        fmt::print("        esac\n        options='{}'\n        words='{}'\n        ;;\n", joined(options),
                   joined(command.positional_values));
    }
    fmt::print(R"(    esac
    if [ -n "$values" ]; then
        COMPREPLY=($(compgen -W "$values" -- "$word"))
    elif [ "${{word#-}}" != "$word" ]; then
        COMPREPLY=($(compgen -W "$options" -- "$word"))
    elif [ -n "$words" ] && [ "$COMP_CWORD" -eq 2 ]; then
        COMPREPLY=($(compgen -W "$words" -- "$word"))
    else
        COMPREPLY=($(compgen -f -- "$word"))
    fi
}}
complete -o filenames -F _tintvert tintvert
)");
}

void print_zsh(const CLI::App& tool)
{
    fmt::print(
        "#compdef tintvert\n_tintvert()\n{{\n    local -a commands options\n    local values=\n    commands=(\n");
    const std::vector<CommandWords> commands = command_words(tool);
    for (const CommandWords& command : commands)
        fmt::print("        {}\n", zsh(command.name + ":" + command.description));
    fmt::print(
        "    )\n    if (( CURRENT == 2 )); then\n        _describe command commands\n        return\n    fi\n"
        "    case ${{words[2]}} in\n");
    for (const CommandWords& command : commands) {
        fmt::print("    {})\n        case ${{words[CURRENT-1]}} in\n", command.name);
        for (const OptionWords& option : command.options)
            if (!option.value.empty())
                fmt::print("        {}) {} ;;\n", fmt::join(option.names, "|"),
                           option.values.empty() ? std::string("_files; return")
                                                 : "compadd -- " + joined(option.values) + "; return");
        fmt::print("        esac\n        options=(\n");
        for (const OptionWords& option : command.options)
            for (const std::string& name : option.names)
                fmt::print("            {}\n", zsh(name + ":" + option.description));
        fmt::print("        )\n        values={}\n        ;;\n", zsh(joined(command.positional_values)));
    }
    fmt::print(R"(    esac
    if [[ ${{words[CURRENT]}} == -* ]]; then
        _describe option options
    elif [[ -n $values && CURRENT -eq 3 ]]; then
        compadd -- ${{=values}}
    else
        _files
    fi
}}
if [ "${{funcstack[1]}}" = _tintvert ]; then
    _tintvert
else
    compdef _tintvert tintvert
fi
)");
}

void print_fish(const CLI::App& tool)
{
    fmt::print("# tintvert completion for fish\n");
    for (const CommandWords& command : command_words(tool)) {
        fmt::print("complete -c tintvert -f -n __fish_use_subcommand -a {} -d {}\n", command.name,
                   fish(command.description));
        const std::string here = fmt::format("complete -c tintvert -n '__fish_seen_subcommand_from {}'", command.name);
        for (const OptionWords& option : command.options) {
            std::string names;
            for (const std::string& name : option.names)
                names += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
            const std::string values = option.values.empty() ? "" : " -x -a " + fish(joined(option.values));
            fmt::print("{}{} -d {}{}\n", here, names, fish(option.description),
                       !option.value.empty() && values.empty() ? " -r" : values);
        }
        if (!command.positional_values.empty())
            fmt::print("{} -f -a {}\n", here, fish(joined(command.positional_values)));
    }
}

}  // namespace

Command add_completions(CLI::App& tool)
{
    CLI::App* const app =
        tool.add_subcommand("completions", "What a shell needs to complete command lines of tintvert.");
    const auto shell = std::make_shared<std::string>();
    app->add_option("shell", *shell, "bash, zsh or fish")->required()->check(CLI::IsMember({"bash", "zsh", "fish"}));
    return {app, [shell, &tool] {
                (*shell == "bash" ? print_bash : *shell == "zsh" ? print_zsh : print_fish)(tool);
                return Exit::done;
            }};
}

}  // namespace tintvert::tool
