// tintvert show: one routine, from the catalogue and from its header.
#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "calls/headers.h"
#include "catalog.h"
#include "commands.h"
#include "json.h"
#include "names.h"
#include "routine_facts.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string name;
    bool json = false;
};

void print_json(const catalog::Routine& routine, const Declaration& declaration)
{
    Json arguments = Json::array();
    for (const catalog::Arg place : routine.arguments) {
        const catalog::Argument& argument = catalog::describe(place);
        const bool is_buffer = argument.kind == catalog::Argument::buffer;
        arguments.push_back(
            {{"name", argument.name}, {"kind", is_buffer ? "buffer" : "number"}, {"meaning", argument.meaning}});
    }
    Json about = to_json(routine);
    about["prototype"] = declaration.prototype;
    about["arguments"] = arguments;
    about.update(facts_to_json(routine));
    about["documentation"] = declaration.documentation;
    write_json({{"schema", json_schema}, {"routine", about}});
}

void print_indented(std::string_view text)
{
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        fmt::print("{}{}\n", line.empty() ? "" : "  ", line);
    }
}

void print_text(const catalog::Routine& routine, const Declaration& declaration)
{
    fmt::print("{}\n  {}\n\n{}\n", routine.name, routine.summary, declaration.prototype);
    for (const catalog::Arg place : routine.arguments)
        fmt::print("  {:<10}  {}\n", catalog::describe(place).name, catalog::describe(place).meaning);
    fmt::print("\nchapter     {}\n", routine.chapter);
    if (routine.from->name != "none") fmt::print("reads       {}\n", routine.from->name);
    if (routine.to->name != "none") fmt::print("writes      {}\n", routine.to->name);
    fmt::print("{}\n", facts_to_text(routine));
    print_indented(declaration.documentation);
}

Exit run(const Options& options)
{
    const catalog::Routine& routine = routine_named(options.name);
    const Declaration declaration = declaration_of(routine.chapter, routine.name);
    options.json ? print_json(routine, declaration) : print_text(routine, declaration);
    return Exit::done;
}

}  // namespace

Command add_show(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("show", "One routine: its arguments, its layouts and what it does.");
    const auto options = std::make_shared<Options>();
    app->add_option("routine", options->name, "a name that `tintvert list` gives")->required();
    app->add_flag("--json", options->json, "JSON instead of text");
    return {app, [options] { return run(*options); }};
}

}  // namespace tintvert::tool
