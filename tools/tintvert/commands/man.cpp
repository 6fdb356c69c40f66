// tintvert man: its manual pages, in roff.
#include <fmt/format.h>

#include <algorithm>

#include "command_words.h"
#include "commands.h"
#include "names.h"

namespace tintvert::tool {
namespace {

// Hyphens that are typed, backslashes, and lines that would begin with a request.
std::string roff(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        if (c == '-')
            result += "\\-";
        else if (c == '\\')
            result += "\\e";
        else
            result += c;
    }
    return result.starts_with('.') || result.starts_with('\'') ? "\\&" + result : result;
}

void print_exit_codes()
{
    fmt::print(
        ".SH EXIT STATUS\n.TP\n.B 0\nDone.\n.TP\n.B 1\nWhat was compared differs, or something is missing from a "
        "capture.\n"
        ".TP\n.B 2\nThe command line makes no sense.\n.TP\n.B 3\nA file is missing, unreadable, broken or too short, "
        "or "
        "cannot be written.\n.TP\n.B 4\nRefused as unsafe.\n.TP\n.B 130\nInterrupted.\n");
}

void print_all(const std::vector<CommandWords>& commands)
{
    fmt::print(
        ".TH TINTVERT 1 \"\" \"tintvert {0}\" \"User Commands\"\n.SH NAME\ntintvert \\- pixel layout conversion for "
        "professional video\n.SH SYNOPSIS\n.B tintvert\n.I command\n[\n.I options\n]\n.SH COMMANDS\n",
        TINTVERT_VERSION);
    for (const CommandWords& command : commands)
        fmt::print(".TP\n.B {}\n{}\n", roff(command.name), roff(command.description));
    print_exit_codes();
    fmt::print(
        ".SH ENVIRONMENT\n.TP\n.B NO_COLOR\nIf it is set and not empty, nothing is coloured unless\n.B "
        "\\-\\-color=always\nsays so.\n.SH SEE ALSO\n");
    for (const CommandWords& command : commands)
        fmt::print(".BR {} (1){}\n", roff("tintvert-" + command.name), &command == &commands.back() ? "" : ",");
}

void print_one(const CommandWords& command)
{
    const std::string page = "tintvert-" + command.name;
    std::string upper = page;
    std::ranges::transform(upper, upper.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    fmt::print(".TH {} 1 \"\" \"tintvert {}\" \"User Commands\"\n.SH NAME\n{} \\- {}\n.SH SYNOPSIS\n.B tintvert {}\n",
               roff(upper), TINTVERT_VERSION, roff(page), roff(command.description), roff(command.name));
    for (const auto& [name, description] : command.positionals) fmt::print(".I {}\n", roff(name));
    fmt::print("[\n.I options\n]\n");
    if (!command.positionals.empty()) fmt::print(".SH ARGUMENTS\n");
    for (const auto& [name, description] : command.positionals)
        fmt::print(".TP\n.I {}\n{}\n", roff(name), roff(description));
    fmt::print(".SH OPTIONS\n");
    for (const OptionWords& option : command.options) {
        std::string names;
        for (const std::string& name : option.names) names += (names.empty() ? "" : ", ") + roff(name);
        fmt::print(".TP\n.B {}{}\n{}\n", names, option.value.empty() ? "" : " " + roff(option.value),
                   roff(option.description));
    }
    print_exit_codes();
    fmt::print(".SH SEE ALSO\n.BR tintvert (1)\n");
}

Exit run(const CLI::App& tool, const std::string& name)
{
    const std::vector<CommandWords> commands = command_words(tool);
    if (name.empty()) {
        print_all(commands);
        return Exit::done;
    }
    const auto command = std::ranges::find(commands, name, &CommandWords::name);
    std::vector<std::string_view> names;
    for (const CommandWords& other : commands) names.push_back(other.name);
    if (command == commands.end())
        throw Failure(Exit::usage, "there is no command '{}'{}", name, suggestion(name, names));
    print_one(*command);
    return Exit::done;
}

}  // namespace

Command add_man(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("man", "The manual page of tintvert, or of one command, in roff.");
    const auto name = std::make_shared<std::string>();
    app->add_option("command", *name, "one of the commands; without it, the page of the tool");
    return {app, [name, &tool] { return run(tool, *name); }};
}

}  // namespace tintvert::tool
