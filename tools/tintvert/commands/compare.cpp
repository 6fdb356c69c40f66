// tintvert compare: two files of frames, sample by sample.
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

#include "commands.h"
#include "inspect/sample_difference.h"
#include "io/pictures/png_file.h"
#include "json.h"
#include "options.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string one, other, picture;
    SampleOptions samples;
    bool exact = false, json = false;
};

// Where each pixel's components differ: as red, green and blue, from a dark grey up. Chroma is spread over the
// pixels that share it.
Picture difference_picture(const FrameShape& shape, const std::vector<uint8_t>& one, const std::vector<uint8_t>& other)
{
    Picture picture(shape.width, shape.height);
    for (size_t alpha = 3; alpha < picture.bytes.size(); alpha += 4) picture.bytes[alpha] = 255;
    const auto channel = [](std::string_view component) {
        return component == "Y" || component == "R" || component == "A" ? 0
               : component == "Cb" || component == "G"                  ? 1
                                                                        : 2;
    };
    catalog::each_sample(
        shape.planes, shape.width,
        [&](const catalog::PlacedPlane& placed, const catalog::Sample& sample, int64_t x, int64_t y, int64_t offset) {
            const catalog::Plane& plane = *placed.plane;
            const int64_t apart = std::abs(catalog::load_sample(plane, sample, one.data() + offset) -
                                           catalog::load_sample(plane, sample, other.data() + offset));
            if (apart == 0) return;
            const auto shade = static_cast<uint8_t>(std::min<int64_t>(64 + (apart * 191 >> sample.bits), 255));
            const bool is_chroma = sample.component.starts_with('C');
            const int64_t across = is_chroma ? plane.across / std::ranges::count(plane.fields, sample.component,
                                                                                 &catalog::Sample::component)
                                             : 1;
            for (int64_t line = 0; line < plane.down; ++line)
                for (int64_t i = x; i < std::min(x + across, shape.width); ++i)
                    picture.pixel(i, y + line)[channel(sample.component)] = shade;
        });
    return picture;
}

// What two files have in common, read frame by frame.
struct Comparison {
    int64_t frames = 0, different_bytes = 0;
    std::optional<int64_t> first_byte;
    std::optional<Picture> picture;
};

void compare_bytes(Comparison* result, int64_t offset, const std::vector<uint8_t>& one,
                   const std::vector<uint8_t>& other)
{
    for (size_t i = 0; i < one.size(); ++i) {
        if (one[i] == other[i]) continue;
        ++result->different_bytes;
        if (!result->first_byte) result->first_byte = offset + static_cast<int64_t>(i);
    }
}

Json to_json(const Comparison& result, const SampleDifference& samples, bool equal)
{
    Json components = Json::array();
    for (const ComponentDifference& own : samples.components()) {
        const double psnr = own.psnr();
        components.push_back({{"component", own.component},
                              {"bits", own.bits},
                              {"samples", own.samples},
                              {"different", own.different},
                              {"largest", own.largest},
                              {"mean", own.mean()},
                              {"psnr", std::isinf(psnr) ? Json() : Json(psnr)}});
    }
    Json first;
    if (const auto& where = samples.first())
        first = {{"frame", where->frame},         {"line", where->line}, {"pixel", where->pixel},
                 {"component", where->component}, {"one", where->one},   {"other", where->other}};
    return {{"schema", json_schema},
            {"equal", equal},
            {"frames", result.frames},
            {"first", first},
            {"components", components},
            {"different_bytes", result.different_bytes},
            {"first_byte", result.first_byte ? Json(*result.first_byte) : Json()}};
}

void print_text(const Options& options, const Comparison& result, const SampleDifference& samples)
{
    const char* const s = result.frames == 1 ? "" : "s";
    if (const auto& where = samples.first())
        fmt::print("first difference: frame {}, line {}, pixel {}, {}: {} and {}\n", where->frame, where->line,
                   where->pixel, where->component, where->one, where->other);
    else
        fmt::print("no sample of {} frame{} differs\n", result.frames, s);
    if (options.exact || (!samples.first() && result.different_bytes != 0)) {
        if (result.first_byte)
            fmt::print("{} bytes differ, the first at {}\n", result.different_bytes, *result.first_byte);
        else
            fmt::print("no byte differs\n");
    }
    if (!samples.first()) return;
    fmt::print("\n{:<9} {:>12} {:>12} {:>8} {:>10} {:>8}\n", "component", "samples", "different", "largest", "mean",
               "PSNR");
    for (const ComponentDifference& own : samples.components())
        fmt::print("{:<9} {:>12} {:>12} {:>8} {:>10.4f} {:>8}\n", own.component, own.samples, own.different,
                   own.largest, own.mean(), std::isinf(own.psnr()) ? "inf" : fmt::format("{:.2f}", own.psnr()));
}

// The layout that both files name, unless --layout names one.
std::string layout_of(const Options& options, const Clip& one, const Clip& other)
{
    if (!options.samples.layout.empty()) return options.samples.layout;
    if (one.layout().empty() || other.layout().empty()) return one.layout().empty() ? other.layout() : one.layout();
    if (one.layout() != other.layout())
        throw Failure(Exit::usage, "{} has frames of {}, and {} of {}: give --layout LAYOUT", one.name(), one.layout(),
                      other.name(), other.layout());
    return one.layout();
}

Exit run(const Options& options)
{
    const ClipOptions& clip_options = options.samples.clip;
    if (options.one == "-" && options.other == "-")
        throw Failure(Exit::usage, "one of the files can be standard input, and not both");
    Clip one(clip_options, {options.one}), other(clip_options, {options.other});
    if (one.size() != other.size())
        throw Failure(Exit::unsafe, "{} is {}x{}, and {} {}x{}", one.name(), one.size().width, one.size().height,
                      other.name(), other.size().width, other.size().height);
    const std::string layout = layout_of(options, one, other);
    const FrameShape shape = expect_samples(one, layout, clip_options);
    expect_samples(other, layout, clip_options);
    const auto need_as_long = [&](bool is) {
        if (!is) throw Failure(Exit::unsafe, "{} and {} differ in length", one.name(), other.name());
    };
    need_as_long(one.frames() < 0 || other.frames() < 0 || one.frames() == other.frames());

    Comparison result;
    SampleDifference samples(shape);
    std::vector<uint8_t> a(static_cast<size_t>(shape.bytes)), b(a.size());
    const int64_t first = frame_range_of(clip_options.frames).first;
    for (;; ++result.frames) {
        const bool is_there = one.next(a);
        need_as_long(is_there == other.next(b));
        if (!is_there) break;
        const int64_t frame = first + result.frames;
        const bool differed = samples.first().has_value();
        compare_bytes(&result, clip_options.offset + frame * shape.bytes, a, b);
        samples.add(frame, a, b);
        const bool is_first = !differed && samples.first();
        if (!options.picture.empty() && (result.frames == 0 || is_first))
            result.picture = difference_picture(shape, a, b);
    }
    if (result.frames == 0) throw Failure(Exit::unsafe, "{} has no frame", one.name());
    if (result.picture) write_png(options.picture, *result.picture);
    const bool equal = !samples.first() && (!options.exact || result.different_bytes == 0);
    if (options.json)
        write_json(to_json(result, samples, equal));
    else
        print_text(options, result, samples);
    return equal ? Exit::done : Exit::differs;
}

}  // namespace

Command add_compare(CLI::App& tool)
{
    CLI::App* const app =
        tool.add_subcommand("compare", "The frames of two files, sample by sample; exit code 1 if they differ.");
    const auto options = std::make_shared<Options>();
    app->add_option("one", options->one, "a file of frames")->required();
    app->add_option("other", options->other, "another")->required();
    add_sample_options(*app, options->samples);
    app->add_option("--picture", options->picture, "a PNG of the first frame that differs: where, and how far");
    app->add_flag("--exact", options->exact, "every byte counts, those of no sample too");
    app->add_flag("--json", options->json, "JSON instead of text");
    return {app, [options] { return naming(options->one, [&] { return run(*options); }); }};
}

}  // namespace tintvert::tool
