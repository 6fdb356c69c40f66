// tintvert list: the routines of the library.
#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "catalog.h"
#include "commands.h"
#include "json.h"
#include "names.h"
#include "routine_facts.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string chapter;
    bool json = false;
};

std::vector<std::string_view> chapters()
{
    std::vector<std::string_view> names;
    for (const catalog::Routine& routine : catalog::routines())
        if (std::ranges::find(names, routine.chapter) == names.end()) names.push_back(routine.chapter);
    return names;
}

std::vector<const catalog::Routine*> chosen(const std::string& chapter)
{
    std::vector<const catalog::Routine*> routines;
    for (const catalog::Routine& routine : catalog::routines())
        if (chapter.empty() || routine.chapter == chapter) routines.push_back(&routine);
    if (routines.empty())
        throw Failure(Exit::usage, "there is no chapter '{}'{}", chapter, suggestion(chapter, chapters()));
    return routines;
}

void print_json(const std::vector<const catalog::Routine*>& routines)
{
    Json list = Json::array();
    for (const catalog::Routine* routine : routines) {
        Json own = to_json(*routine);
        own.update(facts_to_json(*routine));
        list.push_back(own);
    }
    write_json({{"schema", json_schema}, {"routines", list}});
}

void print_text(const std::vector<const catalog::Routine*>& routines)
{
    size_t longest = 0;
    for (const catalog::Routine* routine : routines) longest = std::max(longest, routine->name.size());
    std::string_view chapter;
    for (const catalog::Routine* routine : routines) {
        if (routine->chapter != chapter) fmt::print("{}{}\n", chapter.empty() ? "" : "\n", routine->chapter);
        chapter = routine->chapter;
        const catalog::Routine* const alias = catalog::alias_of(*routine);
        fmt::print("  {:{}}  {}{}\n", routine->name, longest, routine->summary,
                   alias == nullptr ? "" : fmt::format(" The same as {}.", alias->name));
    }
}

Exit run(const Options& options)
{
    const auto routines = chosen(options.chapter);
    options.json ? print_json(routines) : print_text(routines);
    return Exit::done;
}

}  // namespace

Command add_list(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("list", "The routines of the library, or of one chapter.");
    const auto options = std::make_shared<Options>();
    app->add_option("chapter", options->chapter, "frame, ycbcr8, decode, ycbcr10, rgb, field or hdr; without it, all");
    app->add_flag("--json", options->json, "JSON instead of text");
    return {app, [options] { return run(*options); }};
}

}  // namespace tintvert::tool
