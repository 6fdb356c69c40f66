// tintvert convert: frames from file to file, through one routine or along a conversion path.
#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <thread>
#include <vector>

#include "calls/rle8.h"
#include "catalog.h"
#include "commands.h"
#include "diagnostics.h"
#include "geometry.h"
#include "io/frames.h"
#include "io/pictures/bmp.h"
#include "json.h"
#include "names.h"
#include "options.h"
#include "paths/frame_forms.h"
#include "paths/path.h"
#include "paths/pipeline.h"
#include "progress.h"

namespace tintvert::tool {
namespace {

using catalog::Arg;
using catalog::Routine;

struct Options {
    ClipOptions clip;
    GivenArguments routine;
    SinkOptions sink;
    std::string from, to, palette;
    std::vector<std::string> words, planes;
    int jobs = 0;
    bool dry_run = false, quiet = false, json = false;
};

struct Files {
    FilePaths in, out;
};

// All frames of a clip through the calls into the file. How many there were.
int64_t convert_frames(const Options& options, Clip& clip, const std::vector<RoutineCall>& calls, const FrameForm& to,
                       const FilePaths& out)
{
    SinkOptions sink_options = options.sink;
    sink_options.timing = clip.timing();
    const std::unique_ptr<FrameSink> sink = open_sink(out, to, sink_options);
    const int jobs =
        options.jobs > 0 ? options.jobs : static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    Progress progress(clip.frames(), options.quiet);
    int64_t written = 0;
    const Pipeline pipeline{
        [&](std::span<uint8_t> frame) { return clip.next(frame); },
        [&] { return std::make_unique<FrameConverter>(calls, clip.form().bytes()); },
        [&](std::span<const uint8_t> frame) {
            sink->write(frame);
            progress.done(++written);
        },
    };
    run_pipeline(pipeline, jobs);
    if (written == 0) throw Failure(Exit::unsafe, "{} has no frame", clip.name());
    sink->commit();
    return written;
}

// A stream of run-length codes has no lines, and its length is known at its end: it goes through as a whole.
Exit convert_coded(const Options& options, const Routine& routine, const Files& files)
{
    InputFile file(files.in.at(0));
    CodedPicture picture{0, 0, {}, {}};
    if (format_of(files.in[0]) == "bmp") {
        picture = read_bmp_rle8(file);
    } else {
        const Size size = size_of(options.clip.size);
        if (!file.skip(options.clip.offset)) throw Failure(Exit::unsafe, "{} ends before the offset", file.name());
        picture = {size.width, size.height, InputFile(options.palette).read_rest(), file.read_rest()};
        if (picture.palette.size() != 1024)
            throw Failure(Exit::unsafe, "{} is no palette of 256 x 4 bytes", options.palette);
    }
    const Size size{picture.width, picture.height};
    const RoutineCall call = plan_call(routine, arguments_of(routine, options.routine, size.width, size.height, 0));
    const std::vector<uint8_t> frame = decode_rle8(routine, call.arguments, picture);
    FrameForm to = output_form(call, options.routine.layout, size);
    to.parts = {static_cast<int64_t>(frame.size())};
    const std::unique_ptr<FrameSink> sink = open_sink(files.out, to, options.sink);
    sink->write(frame);
    sink->commit();
    return Exit::done;
}

// `--planes` names the files of the side that has several buffers.
Files place_files(const Options& options, const Routine& routine, const std::vector<std::string>& names)
{
    const bool planes = !options.planes.empty();
    if (names.size() != (planes ? 1u : 2u))
        throw Failure(
            Exit::usage, "{}",
            planes ? "with --planes one file is left to name" : "name the file to read and the file to write");
    if (!planes) return {{names[0]}, {names[1]}};
    const FilePaths many(options.planes.begin(), options.planes.end());
    return takes(routine, Arg::dst) ? Files{many, {names[0]}} : Files{{names[0]}, many};
}

Exit convert_by_routine(const Options& options, const Routine& routine)
{
    for (const bool of_paths_only : {options.dry_run, options.json, !options.from.empty(), !options.to.empty()})
        if (of_paths_only)
            throw Failure(Exit::usage,
                          "--from, --to, --dry-run and --json go with a conversion path, and not with one routine");
    const Files files = place_files(options, routine, {options.words.begin() + 1, options.words.end()});
    if (takes(routine, Arg::palette)) return convert_coded(options, routine, files);
    ClipOptions clip_options = options.clip;
    const bool takes_stride = takes(routine, Arg::stride);
    if (takes_stride) clip_options.stride.clear();
    Clip clip(clip_options, files.in);
    const int64_t stride =
        takes_stride ? stride_of(options.clip.stride, layout_of_stride(routine, options.routine), clip.size()) : 0;
    const Size size = clip.size();
    const RoutineCall call =
        plan_call(routine, arguments_of(routine, options.routine, size.width, size.height, stride));
    const FrameForm from = input_form(call, options.routine.layout, size);
    const FrameForm to = output_form(call, options.routine.layout, size);
    if (from.parts.empty() || to.parts.empty())
        throw Failure(Exit::usage, "{} turns no picture into another", routine.name);
    clip.expect(from);
    convert_frames(options, clip, {call}, to, files.out);
    return Exit::done;
}

Json to_json(const paths::Path& path)
{
    Json steps = Json::array();
    for (const paths::Step& step : path.steps)
        steps.push_back(
            {{"routine", step.routine->name}, {"from", step.from}, {"to", step.to}, {"losses", step.losses}});
    return {{"schema", json_schema}, {"from", path.from}, {"to", path.to}, {"path", steps}, {"losses", path.losses()}};
}

void report(const Options& options, const paths::Path& path)
{
    if (!options.quiet && !options.json) print_error_lines(to_text(path));
}

// The layouts that the caller wants, or else those that the file to be written can store.
std::vector<std::string_view> wanted_layouts(const Options& options, const std::string& from, const std::string& format)
{
    if (!options.to.empty()) return {layout_named(options.to).name};
    const auto fitting = layouts_of_format(format);
    if (fitting.empty())
        throw Failure(Exit::usage, "give --to LAYOUT: raw files can be of any layout, and {} is read", from);
    return fitting;
}

bool is_picture(std::string_view format)
{
    return format == "png" || format == "ppm" || format == "pam" || format == "bmp";
}

// Pictures are put into a layout and taken out of one, which may have less room than they.
void add_losses_of_pictures(const Options& options, const Clip& clip, const std::string& format, paths::Path& path)
{
    const std::string held = clip.layout();
    if (is_picture(format_of(clip.name())) && layout_named(held).bits() > layout_named(path.from).bits())
        path.other_losses.push_back(fmt::format("{} bits of the picture read to {} by truncation",
                                                layout_named(held).bits(), layout_named(path.from).bits()));
    if (is_picture(format) && path.alpha && !options.sink.alpha)
        path.other_losses.push_back("alpha dropped, which --alpha keeps");
}

Exit print_plan(const Options& options)
{
    if (options.from.empty() || options.to.empty())
        throw Failure(Exit::usage, "without files, --dry-run takes --from LAYOUT and --to LAYOUT");
    const Size size = options.clip.size.empty() ? Size{} : size_of(options.clip.size);
    const std::string_view to[] = {options.to};
    const paths::Path path = paths::find_path({options.from, false, size}, to);
    if (options.json) write_json(to_json(path));
    report(options, path);
    return Exit::done;
}

Exit convert_by_path(const Options& options)
{
    if (!options.routine.numbers.empty())
        throw Failure(Exit::usage, "a conversion path takes no --{}: that is an argument of one routine",
                      catalog::describe(options.routine.numbers.begin()->first).name);
    if (!options.planes.empty() || !options.palette.empty())
        throw Failure(Exit::usage, "--planes and --palette go with one routine, and not with a conversion path");
    if (!options.from.empty()) layout_named(options.from);
    if (!options.to.empty()) layout_named(options.to);
    if (options.words.empty() && options.dry_run) return print_plan(options);
    if (options.words.size() != 2) throw Failure(Exit::usage, "name the file to read and the file to write");
    const std::string &in = options.words[0], &out = options.words[1];
    if (out == "-" && options.json) throw Failure(Exit::usage, "--json and the frames cannot both go to stdout");
    if (out == "-" && options.to.empty() && options.sink.format.empty())
        throw Failure(Exit::usage, "give --to LAYOUT or --format FORMAT for what goes to stdout");

    Clip clip(options.clip, {in});
    const std::string from = options.from.empty() ? clip.layout() : options.from;
    if (from.empty()) throw Failure(Exit::usage, "the layout of {} is not known: give --from LAYOUT", clip.name());
    const std::string format = options.sink.format.empty() ? format_of(out) : options.sink.format;
    paths::Path path = paths::find_path({from, clip.opaque(), clip.size()}, wanted_layouts(options, from, format));
    add_losses_of_pictures(options, clip, format, path);
    const std::vector<RoutineCall> calls = plan_path(path, clip.size());
    clip.expect(scalar_version(from, clip.size()));
    report(options, path);
    int64_t frames = 0;
    if (!options.dry_run) frames = convert_frames(options, clip, calls, scalar_version(path.to, clip.size()), {out});
    if (options.json) {
        Json summary = to_json(path);
        summary["size"] = {clip.size().width, clip.size().height};
        summary["frames"] = frames;
        write_json(summary);
    }
    return Exit::done;
}

Exit run(const Options& options)
{
    if (!options.words.empty() && catalog::find(options.words[0]) != nullptr)
        return convert_by_routine(options, *catalog::find(options.words[0]));
    if (options.words.size() == 3 || (options.words.size() == 2 && !options.planes.empty()))
        routine_named(options.words[0]);  // says that there is none
    return convert_by_path(options);
}

// The file that is read; empty for a path alone.
std::string file_read(const Options& options)
{
    const bool by_routine = !options.words.empty() && catalog::find(options.words[0]) != nullptr;
    if (by_routine && !options.planes.empty() && takes(*catalog::find(options.words[0]), Arg::dst))
        return options.planes[0];
    return options.words.size() > by_routine ? options.words[by_routine] : "";
}

}  // namespace

Command add_convert(CLI::App& tool)
{
    CLI::App* const app =
        tool.add_subcommand("convert", "Sends the frames of a file through one routine, or from layout to layout.");
    const auto options = std::make_shared<Options>();
    app->add_option("files", options->words,
                    "ROUTINE IN OUT, or IN OUT: raw frames, .png, .ppm, .pam, .bmp, .y4m; .mov and .avi to read; - for "
                    "stdin and stdout");
    app->add_option("--from", options->from,
                    "the layout that is read; not needed for files with a header that names it");
    app->add_option("--to", options->to, "the layout that is written; by default the nearest that the file can store");
    app->add_flag("--dry-run", options->dry_run, "say which routines would be taken and what is lost, and stop");
    add_clip_options(*app, options->clip);
    app->add_option("--format", options->sink.format,
                    "what kind of file is written; by default by the ending of its name")
        ->check(CLI::IsMember({"raw", "y4m", "png", "ppm", "pam", "bmp"}));
    app->add_option("-j,--jobs", options->jobs,
                    "frames that are converted at a time; by default one for each processor")
        ->check(CLI::Range(1, 1024));
    app->add_flag("-q,--quiet", options->quiet, "print neither the conversion path nor progress");
    app->add_flag("--json", options->json, "the conversion path on stdout as JSON");
    app->add_flag("--alpha", options->sink.alpha, "keep alpha in pictures");
    app->add_option("--planes", options->planes,
                    "the files of the planes, or of the fields, in the order of the arguments")
        ->delimiter(',')
        ->allow_extra_args(false);
    app->add_option("--palette", options->palette, "256 entries of four bytes, for a raw run-length coded stream");
    add_routine_options(*app, options->routine);
    return {app, [options] { return naming(file_read(*options), [&] { return run(*options); }); }};
}

}  // namespace tintvert::tool
