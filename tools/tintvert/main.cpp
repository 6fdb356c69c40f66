// The command line: what was asked for, and one line and an exit code for whatever goes wrong.
#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <new>
#include <string_view>
#include <system_error>
#include <vector>

#include "commands.h"
#include "diagnostics.h"
#include "help.h"
#include "io/interrupt.h"
#include "names.h"
#include "version.h"

namespace tintvert::tool {
namespace {

constexpr Command (*adders[])(CLI::App&) = {
    add_bits,    add_capture, add_compare, add_completions, add_convert, add_demo,   add_explain, add_guess,
    add_layouts, add_list,    add_man,     add_names,       add_show,    add_st2084, add_verify,  add_view};

// "--frm=2" without its value.
std::string_view name_of_option(std::string_view word) { return word.substr(0, word.find('=')); }

// An option that the command has not; none if it has all.
std::string unknown_option(const CLI::App& command, int argc, char** argv)
{
    std::vector<std::string> names;
    for (const CLI::Option* option : command.get_options())
        for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
    const std::vector<std::string_view> candidates(names.begin(), names.end());
    for (int i = 2; i < argc; ++i) {
        const std::string_view word = name_of_option(argv[i]);
        if (word.starts_with("--") && word != "--" && std::ranges::find(candidates, word) == candidates.end())
            return fmt::format("{} has no option '{}'{}", command.get_name(), word, suggestion(word, candidates));
    }
    return {};
}

// The command that is asked for, or the tool.
std::string named(int argc, char** argv, const std::vector<Command>& commands)
{
    for (const Command& command : commands)
        if (argc > 1 && command.app->get_name() == argv[1]) return "tintvert " + command.app->get_name();
    return "tintvert";
}

// A word that is no command, and an option that a command has not, get a better answer than the parser's.
std::string complaint(const CLI::ParseError& error, int argc, char** argv, const std::vector<Command>& commands)
{
    if (argc < 2 || argv[1][0] == '-') return error.what();
    std::vector<std::string> names;
    for (const Command& command : commands) {
        names.push_back(command.app->get_name());
        if (names.back() != argv[1]) continue;
        const std::string unknown = unknown_option(*command.app, argc, argv);
        return unknown.empty() ? error.what() : unknown;
    }
    const std::vector<std::string_view> candidates(names.begin(), names.end());
    return fmt::format("there is no command '{}'{}", argv[1], suggestion(argv[1], candidates));
}

Exit run(int argc, char** argv)
{
    CLI::App tool("Pixel layout conversion for professional video.", "tintvert");
    tool.formatter(std::make_shared<Help>());
    tool.set_help_flag("-h,--help", "this help");
    tool.set_version_flag("--version", version_text(), "the version, and the libraries that it is built with");
    tool.require_subcommand(1);
    std::vector<Command> commands;
    for (const auto add : adders) commands.push_back(add(tool));
    for (const Command& command : commands) command.app->group("Commands");
    tool.footer("`tintvert COMMAND --help` lists the options of a command.");
    try {
        tool.parse(argc, argv);
    } catch (const CLI::Success& asked_for_help_or_version) {
        tool.exit(asked_for_help_or_version);
        return Exit::done;
    } catch (const CLI::ParseError& error) {
        throw Failure(Exit::usage, "{} (see {} --help)", complaint(error, argc, argv, commands),
                      named(argc, argv, commands));
    }
    for (const Command& command : commands)
        if (command.app->parsed()) return command.run();
    return Exit::usage;
}

// stdout is the last file to be written.
Exit run_and_flush(int argc, char** argv)
{
    const Exit code = run(argc, argv);
    std::cout.flush();
    if (!std::cout || std::fflush(stdout) != 0)
        throw Failure(Exit::no_file, "cannot write standard output: {}", std::strerror(errno));
    return code;
}

int main(int argc, char** argv)
{
    occupy_standard_descriptors();
    catch_interrupts();
    Exit code = Exit::no_file;
    std::string line;
    try {
        return static_cast<int>(run_and_flush(argc, argv));
    } catch (const Failure& failure) {
        code = failure.code();
        line = failure.what();
    } catch (const std::bad_alloc&) {
        line = "there is not enough memory";
    } catch (const std::filesystem::filesystem_error& error) {
        line = error.what();
    } catch (const std::system_error& error) {  // of fmt::print, which names no file
        line = "cannot write standard output: " + error.code().message();
    } catch (const std::exception& error) {
        line = error.what();
    }
    print_error_line("tintvert: " + line);
    return static_cast<int>(code);
}

}  // namespace
}  // namespace tintvert::tool

int main(int argc, char** argv) { return tintvert::tool::main(argc, argv); }
