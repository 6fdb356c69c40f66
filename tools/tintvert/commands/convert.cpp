// tintvert convert: frames through one routine, from file to file.
#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "bmp.h"
#include "catalog.h"
#include "commands.h"
#include "conversion.h"
#include "frames.h"
#include "geometry.h"
#include "input_file.h"
#include "nearest.h"
#include "progress.h"
#include "rle_scan.h"

namespace tintvert::tool {
namespace {

using catalog::Arg;
using catalog::Routine;

struct Options {
    std::string routine, size, layout = "rgb32", frames, palette;
    std::vector<std::string> files, planes;
    std::map<Arg, int64_t> numbers;
    int64_t offset = 0;
    bool alpha = false;
};

bool takes(const Routine& routine, Arg argument)
{
    return std::ranges::find(routine.arguments, argument) != routine.arguments.end();
}

struct Size {
    int64_t width, height;
};

Size size_of(const std::string& text)
{
    Size size{};
    const char* const end = text.data() + text.size();
    const auto width = std::from_chars(text.data(), end, size.width);
    if (width.ec == std::errc() && width.ptr != end && *width.ptr == 'x') {
        const auto height = std::from_chars(width.ptr + 1, end, size.height);
        if (height.ec == std::errc() && height.ptr == end) return size;
    }
    throw Failure(Exit::usage, "a size is WIDTHxHEIGHT, such as 1920x1080, and not '{}'", text);
}

// A:B, from frame A up to frame B; A alone is one frame.
std::pair<int64_t, int64_t> range_of(const std::string& text, int64_t frames)
{
    if (text.empty()) return {0, frames};
    int64_t first = 0, end = 0;
    const char* const stop = text.data() + text.size();
    const auto a = std::from_chars(text.data(), stop, first);
    if (a.ec == std::errc() && a.ptr == stop) end = first + 1;
    if (a.ec == std::errc() && a.ptr != stop && *a.ptr == ':') {
        const auto b = std::from_chars(a.ptr + 1, stop, end);
        if (b.ec != std::errc() || b.ptr != stop) end = 0;
    }
    if (first < 0 || end <= first) throw Failure(Exit::usage, "frames are A:B or A, and not '{}'", text);
    if (end > frames) throw Failure(Exit::unsafe, "there are {} frames, and not {}", frames, end);
    return {first, end};
}

// Everything that is to be decided before the first frame.
struct Job {
    const Routine& routine;
    Paths in, out;
    catalog::Arguments call;
    FrameForm from, to;
};

void need_positive_size(const Size& size)
{
    if (size.width < 1 || size.height < 1)
        throw Failure(Exit::unsafe, "refused: a picture of {}x{}", size.width, size.height);
}

std::string or_layout(std::string_view layout, const Options& options)
{
    return std::string{layout == "none" ? options.layout : layout};
}

void apply(const Options& options, const Routine& routine, catalog::Arguments* call)
{
    for (const auto& [argument, value] : options.numbers) {
        if (!takes(routine, argument))
            throw Failure(Exit::usage, "{} takes no {}", routine.name, catalog::describe(argument).name);
        (*call)[argument] = value;
    }
}

Job job_of(const Options& options, const Routine& routine, const Paths& in, const Paths& out, const Size& size)
{
    need_positive_size(size);
    const auto scale = options.numbers.find(Arg::scale);
    const int64_t reduction = scale == options.numbers.end() ? 1 : scale->second;
    Job job{routine, in, out, catalog::plain_call(routine, {size.width, size.height, reduction, options.layout}),
            {},      {}};
    apply(options, routine, &job.call);
    const bool reduces = takes(routine, Arg::scale) && reduction > 1;
    const Words words{static_cast<int>(std::clamp<int64_t>(job.call[Arg::bits], 1, 16)), job.call[Arg::swapBytes] != 0};
    const auto stride = [&](Arg own) { return takes(routine, own) ? std::abs(job.call[own]) : int64_t{0}; };
    const auto line = [&](const std::string& layout, int64_t width) {
        const catalog::Layout* known = catalog::find_layout(layout);
        return known == nullptr ? int64_t{0} : known->line_bytes(width);
    };
    job.from = {or_layout(routine.from, options), size.width, size.height, 0, words};
    job.from.stride = std::max(stride(Arg::srcStride), line(job.from.layout, size.width));
    job.to = {or_layout(routine.to, options), reduces ? size.width / reduction : size.width,
              reduces ? size.height / reduction : size.height, 0, words};
    // Red stands first in what this one writes.
    if (routine.name == "tntvt_rgb10_rgb48") job.to.layout = "bgr48";
    job.to.stride = std::max(stride(Arg::dstStride), line(job.to.layout, job.to.width));
    return job;
}

Exit convert_frames(const Options& options, const Job& job, FrameSource* source)
{
    Conversion conversion(job.routine, job.call);
    const Buffers in = conversion.inputs(), out = conversion.outputs();
    if (in.empty() || out.empty()) throw Failure(Exit::usage, "{} turns no picture into another", job.routine.name);
    const auto [first, end] = range_of(options.frames, source->frames(in));
    const std::unique_ptr<FrameSink> sink = open_sink(job.out, options.alpha);
    Progress progress(end - first);
    for (int64_t frame = first; frame < end; ++frame) {
        source->read(frame, job.from, in);
        conversion.run();
        sink->write(job.to, out);
        progress.done(frame - first + 1);
    }
    sink->commit();
    return Exit::done;
}

// A run-length coded stream is walked before it is decoded: it must end, and stay inside its picture.
void need_sound_stream(const Job& job, const std::vector<uint8_t>& stream)
{
    const bool is_24 = job.routine.to == "rgb24";
    const auto scan = is_24 ? catalog::scan_rle8_rgb24(stream, job.call[Arg::height])
                            : catalog::scan_rle8_rgb32(stream, job.call[Arg::dstStride], job.call[Arg::height]);
    if (!scan.ends) throw Failure(Exit::unsafe, "refused: the coded stream runs out at byte {}", scan.wanted);
    const int64_t room = is_24 ? job.to.width * 3 * job.to.height : job.call[Arg::dstStride] * job.to.height;
    if (!scan.written.empty() && (scan.written.begin < 0 || scan.written.end > room))
        throw Failure(Exit::unsafe, "refused: the coded stream writes bytes {} to {} of a picture of {}",
                      scan.written.begin, scan.written.end, room);
}

Exit convert_coded(const Options& options, const Routine& routine, const Paths& in, const Paths& out)
{
    InputFile file(in.at(0));
    BmpRle8 picture{0, 0, {}, {}};
    if (has_ending(in[0], ".bmp")) {
        picture = read_bmp_rle8(file);
    } else {
        const Size size = size_of(options.size);
        const std::vector<uint8_t> all = file.read_all();
        if (options.offset > file.size()) throw Failure(Exit::unsafe, "{} ends before the offset", in[0].string());
        picture = {
            size.width, size.height, InputFile(options.palette).read_all(), {all.begin() + options.offset, all.end()}};
        if (picture.palette.size() != 1024)
            throw Failure(Exit::unsafe, "{} is no palette of 256 x 4 bytes", options.palette);
    }
    Job job = job_of(options, routine, in, out, {picture.width, picture.height});
    job.call[Arg::streamSize] = static_cast<int64_t>(picture.stream.size());
    job.call[Arg::src] = reinterpret_cast<int64_t>(picture.stream.data());
    need_sound_stream(job, picture.stream);
    Conversion conversion(routine, job.call);
    const auto palette = conversion.bytes(Arg::palette, 1024);
    const size_t entry = routine.to == "rgb24" ? 3 : 4;
    for (size_t i = 0; i < 256; ++i) std::copy_n(&picture.palette[i * 4], entry, &palette[i * entry]);
    std::ranges::copy(picture.stream, conversion.bytes(Arg::src, job.call[Arg::streamSize]).begin());
    conversion.run();
    const std::unique_ptr<FrameSink> sink = open_sink(out, options.alpha);
    sink->write(job.to, conversion.outputs());
    sink->commit();
    return Exit::done;
}

// `--planes` names the files of the side that has several buffers.
void place_files(const Options& options, const Routine& routine, Paths* in, Paths* out)
{
    const bool planes = !options.planes.empty();
    if (options.files.size() != (planes ? 1u : 2u))
        throw Failure(
            Exit::usage, "{}",
            planes ? "with --planes one file is left to name" : "name the file to read and the file to write");
    const bool planes_go_in = planes && std::ranges::any_of(routine.arguments, [&](Arg a) { return a == Arg::dst; });
    if (planes) {
        (planes_go_in ? in : out)->assign(options.planes.begin(), options.planes.end());
        (planes_go_in ? out : in)->assign(1, options.files[0]);
    } else {
        in->assign(1, options.files[0]);
        out->assign(1, options.files[1]);
    }
}

Exit run(const Options& options)
{
    const Routine& routine = routine_named(options.routine);
    if (catalog::find_layout(options.layout) == nullptr)
        throw Failure(Exit::usage, "there is no layout '{}'", options.layout);
    Paths in, out;
    place_files(options, routine, &in, &out);
    if (takes(routine, Arg::palette)) return convert_coded(options, routine, in, out);
    const std::unique_ptr<FrameSource> source = open_source(in, options.offset);
    if (source->width() == 0 && options.size.empty())
        throw Failure(Exit::usage, "{} does not tell its size: give --size WIDTHxHEIGHT", in[0].string());
    const Size size = source->width() != 0 ? Size{source->width(), source->height()} : size_of(options.size);
    return convert_frames(options, job_of(options, routine, in, out, size), source.get());
}

}  // namespace

Command add_convert(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("convert", "Sends the frames of a file through one routine.");
    const auto options = std::make_shared<Options>();
    app->add_option("routine", options->routine, "a name that `tintvert list` gives")->required();
    app->add_option("files", options->files, "IN OUT: raw frames, .png, .y4m, .bmp (run-length coded)")->required();
    app->add_option("-s,--size", options->size, "WIDTHxHEIGHT of raw frames");
    app->add_option("--layout", options->layout, "what frames hold, for routines that take any")->capture_default_str();
    app->add_option("--planes", options->planes,
                    "the files of the planes, or of the fields, in the order of the arguments")
        ->delimiter(',')
        ->allow_extra_args(false);
    app->add_option("--offset", options->offset, "bytes to skip at the head of raw files")
        ->check(CLI::NonNegativeNumber);
    app->add_option("--frames", options->frames, "A:B, from frame A up to frame B, or A alone");
    app->add_option("--palette", options->palette, "256 entries of four bytes, for a raw run-length coded stream");
    app->add_flag("--alpha", options->alpha, "keep alpha in a PNG");
    for (const Routine& routine : catalog::routines()) {
        for (const Arg argument : routine.arguments) {
            const catalog::Argument& about = catalog::describe(argument);
            const std::string name = "--" + std::string{about.name};
            const bool told_by_size = argument == Arg::width || argument == Arg::height || argument == Arg::pixels;
            if (about.kind == catalog::Argument::buffer || argument == Arg::ignored || told_by_size) continue;
            if (app->get_option_no_throw(name) != nullptr) continue;
            app->add_option_function<int64_t>(
                   name, [options, argument](const int64_t& value) { options->numbers[argument] = value; },
                   std::string{about.meaning})
                ->group("Arguments of the routine");
        }
    }
    return {app, [options] { return run(*options); }};
}

}  // namespace tintvert::tool
