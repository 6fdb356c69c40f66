// tintvert verify: our routines against the independent programs and libraries that this machine has.
#include <fmt/format.h>

#include <array>
#include <memory>

#include "commands.h"
#include "json.h"
#include "names.h"
#include "peers/check.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string routine;
    bool json = false;
};

constexpr std::array words{"equal", "near", "differs", "skipped"};

Exit run(const Options& options)
{
    if (!options.routine.empty()) routine_named(options.routine);
    std::array<int, words.size()> counts{};
    Json list = Json::array();
    for (const PeerCheck& check : peer_checks()) {
        const std::string_view routine = check.routine->name, peer = check.peer->program;
        if (!options.routine.empty() && routine != options.routine) continue;
        const PeerVerdict verdict = verify_by_peer(check);
        ++counts[verdict.kind];
        const char* const word = words[verdict.kind];
        list.push_back({{"routine", routine},
                        {"peer", peer},
                        {"asked", check.peer->command},
                        {"result", word},
                        {"why", verdict.why}});
        if (options.json) continue;
        fmt::print("{:<34}  {:<15}  {}{}{}\n", routine, peer, word, verdict.why.empty() ? "" : ": ",
                   printable(verdict.why));
        std::fflush(stdout);
    }
    if (list.empty()) throw Failure(Exit::usage, "no peer is asked about {}", options.routine);
    if (options.json)
        write_json({{"schema", json_schema}, {"checks", list}});
    else
        fmt::print("\n{} equal, {} near, {} differ, {} skipped\n", counts[0], counts[1], counts[2], counts[3]);
    return counts[PeerVerdict::differs] == 0 ? Exit::done : Exit::differs;
}

}  // namespace

Command add_verify(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand(
        "verify", "Our routines against FFmpeg, GStreamer, OpenImageIO, libyuv and zimg; exit code 1 if one differs.");
    const auto options = std::make_shared<Options>();
    app->add_option("routine", options->routine, "one of the routines; without it, all that have a peer");
    app->add_flag("--json", options->json, "JSON instead of text");
    return {app, [options] { return run(*options); }};
}

}  // namespace tintvert::tool
