// tintvert explain: what one call reads, writes and meets at a given geometry.
#include <fmt/format.h>

#include <algorithm>
#include <memory>

#include "calls/c_program.h"
#include "calls/quirks.h"
#include "calls/rle8.h"
#include "calls/routine_arguments.h"
#include "commands.h"
#include "io/clip_options.h"
#include "json.h"
#include "names.h"
#include "options.h"
#include "routine_facts.h"

namespace tintvert::tool {
namespace {

using catalog::Range;

struct Options {
    std::string routine, size, stride;
    GivenArguments numbers;
    bool show_call = false, json = false;
};

int64_t bytes_of(const RoutineCall& plan, bool PlannedBuffer::*direction)
{
    int64_t bytes = 0;
    for (const PlannedBuffer& buffer : plan.buffers)
        if (buffer.*direction) bytes += buffer.picture.end - buffer.picture.begin;
    return bytes;
}

std::string_view name_of(const PlannedBuffer& buffer) { return catalog::describe(buffer.argument).name; }

// What is outside of the picture, and what of it is left out.
std::string beyond_picture(const Range& touched, const Range& picture)
{
    if (picture.empty()) return {};
    std::string text;
    const auto add = [&](int64_t bytes, const char* what) {
        if (bytes > 0) text += fmt::format("{}{} {}", text.empty() ? "" : ", ", bytes, what);
    };
    add(picture.begin - touched.begin, "before its start");
    add(touched.end - picture.end, "past its end");
    add(std::min(touched.begin, picture.end) - picture.begin, "left out at its start");
    add(picture.end - std::max(touched.end, picture.begin), "left out at its end");
    return text;
}

// Sixty columns for all of a buffer; a range that is not empty has at least one.
std::string bar(const Range& range, const Range& whole)
{
    constexpr int64_t columns = 60;
    const double length = static_cast<double>(whole.end - whole.begin);
    const auto column = [&](int64_t byte) {
        return static_cast<int64_t>(static_cast<double>(byte - whole.begin) / length * columns);
    };
    const int64_t begin = std::min(column(range.begin), columns - 1), end = std::max(column(range.end), begin + 1);
    return std::string(static_cast<size_t>(begin), '.') + std::string(static_cast<size_t>(end - begin), '#') +
           std::string(static_cast<size_t>(columns - end), '.');
}

// bytes 0-4147199
std::string bytes_text(const Range& range)
{
    return fmt::format("bytes {}{}{}", range.begin, range.begin < 0 ? " to " : "-", range.end - 1);
}

void print_range(const char* what, const Range& range, const PlannedBuffer& buffer)
{
    if (range.empty()) return;
    const std::string more = what == std::string_view("picture") ? "" : beyond_picture(range, buffer.picture);
    fmt::print("    {:<8}{:<27}|{}|{}{}\n", what, bytes_text(range), bar(range, buffer.whole()),
               more.empty() ? "" : "  ", more);
}

std::string call_text(const RoutineCall& plan)
{
    std::string text;
    for (const catalog::Arg argument : plan.routine->arguments) {
        const catalog::Argument& about = catalog::describe(argument);
        text += text.empty() ? "" : ", ";
        if (about.kind == catalog::Argument::buffer || argument == catalog::Arg::ignored)
            text += about.name;
        else
            text += fmt::format("{} {}", about.name, plan.arguments[argument]);
    }
    return fmt::format("{}({})", plan.routine->name, text);
}

void print_text(const RoutineCall& plan, Size size)
{
    const catalog::Routine& routine = *plan.routine;
    fmt::print("{}\n  {}\n\n", call_text(plan), routine.summary);
    const std::string_view from = routine.from->name == "none" ? "as it is" : routine.from->name;
    const std::string_view to = routine.to->name == "none" ? "as it is" : routine.to->name;
    fmt::print("reads    {:>12} bytes, {}\nwrites   {:>12} bytes, {}\n", bytes_of(plan, &PlannedBuffer::in), from,
               bytes_of(plan, &PlannedBuffer::out), to);
    if (decodes_rle8(routine))
        fmt::print("\nThe stream decides which bytes these are; here it is that of a picture of one colour.\n");
    for (const PlannedBuffer& buffer : plan.buffers) {
        if (buffer.whole().empty()) continue;
        fmt::print("\n  {}\n", name_of(buffer));
        print_range("picture", buffer.picture, buffer);
        print_range("read", buffer.read, buffer);
        print_range("written", buffer.written, buffer);
    }
    const std::vector<Quirk> quirks = quirks_at(routine, plan.arguments);
    if (!quirks.empty()) fmt::print("\nquirks\n");
    for (const Quirk& quirk : quirks)
        fmt::print("  {}{}{}\n    {}\n", quirk.name, quirk.here.empty() ? "" : ", ", quirk.here, quirk.what);
    if (const auto peer = catalog::peer_of(routine))
        fmt::print("\npeer, {}\n  {}\n",
                   peer->agreement == catalog::Peer::exact ? "with the same bytes" : "by other rules",
                   peer_command_at(*peer, size.width, size.height));
}

Json to_json(const Range& range) { return range.empty() ? Json() : Json{range.begin, range.end}; }

void print_json(const RoutineCall& plan, Size size)
{
    Json arguments = Json::object(), buffers = Json::array(), quirks = Json::array();
    for (const catalog::Arg argument : plan.routine->arguments)
        if (catalog::describe(argument).kind == catalog::Argument::number && argument != catalog::Arg::ignored)
            arguments[std::string(catalog::describe(argument).name)] = plan.arguments[argument];
    for (const PlannedBuffer& buffer : plan.buffers)
        buffers.push_back({{"name", name_of(buffer)},
                           {"picture", to_json(buffer.picture)},
                           {"read", to_json(buffer.read)},
                           {"written", to_json(buffer.written)}});
    for (const Quirk& quirk : quirks_at(*plan.routine, plan.arguments))
        quirks.push_back(
            {{"name", quirk.name}, {"what", quirk.what}, {"here", quirk.here.empty() ? Json() : Json(quirk.here)}});
    write_json({{"schema", json_schema},
                {"routine", plan.routine->name},
                {"arguments", arguments},
                {"bytes_in", bytes_of(plan, &PlannedBuffer::in)},
                {"bytes_out", bytes_of(plan, &PlannedBuffer::out)},
                {"buffers", buffers},
                {"quirks", quirks},
                {"peer", peer_to_json(*plan.routine, size.width, size.height)},
                {"call", c_program(plan)}});
}

// --stride is the argument of that name, or else the lines of the source.
catalog::Arguments arguments_for(const Options& options, const catalog::Routine& routine, Size size)
{
    using catalog::Arg;
    layout_named(options.numbers.layout);
    if (options.stride.empty()) return arguments_of(routine, options.numbers, size.width, size.height, 0);
    const std::string_view layout = layout_of_stride(routine, options.numbers);
    if (takes(routine, Arg::stride))
        return arguments_of(routine, options.numbers, size.width, size.height, stride_of(options.stride, layout, size));
    if (!takes(routine, Arg::srcStride)) throw Failure(Exit::usage, "{} takes no stride of its source", routine.name);
    GivenArguments numbers = options.numbers;
    numbers.numbers[Arg::srcStride] = stride_of(options.stride, layout, size);
    return arguments_of(routine, numbers, size.width, size.height, 0);
}

Exit run(const Options& options)
{
    const catalog::Routine& routine = routine_named(options.routine);
    const Size size = size_of(options.size);
    catalog::Arguments arguments = arguments_for(options, routine, size);
    const std::vector<uint8_t> stream = one_colour_stream(size.width, size.height);
    if (decodes_rle8(routine)) {
        arguments[catalog::Arg::src] = reinterpret_cast<int64_t>(stream.data());
        arguments[catalog::Arg::streamSize] = static_cast<int64_t>(stream.size());
    }
    const RoutineCall plan = plan_call(routine, arguments);
    if (options.json)
        print_json(plan, size);
    else if (options.show_call)
        fmt::print("{}", c_program(plan));
    else
        print_text(plan, size);
    return Exit::done;
}

}  // namespace

Command add_explain(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand(
        "explain",
        "One call at a given size: bytes in and out, what it reads and writes beyond the frame, and its quirks.");
    const auto options = std::make_shared<Options>();
    app->add_option("routine", options->routine, "a name that `tintvert list` gives")->required();
    app->add_option("-s,--size", options->size, "width and height of the picture that goes in, such as 1920x1080")
        ->required();
    add_stride_option(*app, options->stride);
    app->add_flag("--show-call", options->show_call, "the call as a program in C, ready to paste");
    app->add_flag("--json", options->json, "JSON instead of text");
    add_routine_options(*app, options->numbers);
    return {app, [options] { return run(*options); }};
}

}  // namespace tintvert::tool
