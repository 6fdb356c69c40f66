// tintvert bits: the words around a pixel of a frame, field by field.
#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <memory>

#include "commands.h"
#include "inspect/frame_shape.h"
#include "inspect/layout_picture.h"
#include "json.h"
#include "options.h"

namespace tintvert::tool {
namespace {

using catalog::PlacedPlane;
using catalog::Plane;
using catalog::Sample;

struct Options {
    std::string file, at, color;
    SampleOptions samples;
    bool json = false;
};

struct Point {
    int64_t x, y;
};

Point point_of(const std::string& text, const FrameShape& shape)
{
    Point point{-1, -1};
    const char* const end = text.data() + text.size();
    const auto x = std::from_chars(text.data(), end, point.x);
    const bool has_comma = x.ec == std::errc() && x.ptr != end && *x.ptr == ',';
    const auto y = std::from_chars(has_comma ? x.ptr + 1 : end, end, point.y);
    if (!has_comma || y.ec != std::errc() || y.ptr != end)
        throw Failure(Exit::usage, "a pixel is X,Y, such as 0,0, and not '{}'", text);
    if (point.x < 0 || point.y < 0 || point.x >= shape.width || point.y >= shape.height)
        throw Refusal("refused: pixel {},{} of a picture of {}x{}", point.x, point.y, shape.width, shape.height);
    return point;
}

// A unit with samples of the pixel.
struct Unit {
    const PlacedPlane* placed;
    int64_t offset;  // in the frame
    int64_t pixel;   // its first
};

std::vector<Unit> units_at(const FrameShape& shape, const Point& point)
{
    std::vector<Unit> units;
    for (const PlacedPlane& placed : shape.planes) {
        const Plane& plane = *placed.plane;
        if (plane.field != 0 && point.y % 2 != plane.field - 1) continue;
        const int64_t line = plane.field == 0 ? point.y / plane.down : point.y / 2, unit = point.x / plane.across;
        units.push_back({&placed, placed.offset + line * placed.stride + unit * plane.unit_bytes, unit * plane.across});
    }
    return units;
}

// The pixel's own samples, or those that it shares with the pixels before it.
bool belongs(const Plane& plane, const Sample& sample, int64_t pixel)
{
    int nearest = -1;
    for (const Sample& other : plane.fields)
        if (other.component == sample.component && other.pixel <= pixel) nearest = std::max(nearest, other.pixel);
    return !sample.component.empty() && sample.pixel == nearest;
}

std::string bits_text(uint64_t value, int bits)
{
    std::string text;
    for (int bit = bits - 1; bit >= 0; --bit) text += static_cast<char>('0' + (value >> bit & 1));
    return text;
}

bool is_there(const Unit& unit, const Sample& sample, int64_t width)
{
    return unit.placed->holds(sample, unit.pixel / unit.placed->plane->across, width);
}

std::string name_of(const Unit& unit, const Sample& sample)
{
    return fmt::format("{}{}", sample.component, unit.pixel + sample.pixel);
}

// One line a word: where its bytes are, the bytes, and its fields from the highest bit down.
void print_word(const Unit& unit, int word, const uint8_t* bytes, const Point& point, const FrameShape& shape,
                int64_t file_offset, const Painter& paint)
{
    const Plane& plane = *unit.placed->plane;
    const int64_t at = unit.offset + word * plane.word_bytes;
    std::string hex, fields;
    for (int byte = 0; byte < plane.word_bytes; ++byte)
        hex += fmt::format("{:02x} ", bytes[word * plane.word_bytes + byte]);
    for (const Sample& sample : plane.fields) {
        if (sample.word != word || !(sample.component.empty() || is_there(unit, sample, shape.width))) continue;
        const int64_t value = catalog::load_sample(plane, sample, bytes);
        const bool own = belongs(plane, sample, point.x - unit.pixel);
        const std::string bits = bits_text(static_cast<uint64_t>(value), sample.bits);
        const std::string text =
            sample.component.empty() ? "- " + bits : fmt::format("{:<4} {} {:<3}", name_of(unit, sample), bits, value);
        fields += fmt::format("  {}{}", own ? "*" : " ", paint(sample.component, text, own));
    }
    fields.erase(fields.find_last_not_of(' ') + 1);
    fmt::print("{:>10}  {}{}\n", file_offset + at, hex, fields);
}

void print_text(const SampledFrame& frame, const Point& point, const Painter& paint)
{
    const FrameShape& shape = frame.shape;
    std::string values;
    fmt::print("{:>10}  bytes, fields from the highest bit down; * those of pixel {},{}\n", "byte", point.x, point.y);
    for (const Unit& unit : units_at(shape, point)) {
        const Plane& plane = *unit.placed->plane;
        const uint8_t* const bytes = frame.bytes.data() + unit.offset;
        for (int word = 0; word < plane.unit_bytes / plane.word_bytes; ++word) {
            const bool inside = unit.offset + (word + 1) * plane.word_bytes <= shape.bytes;
            if (inside) print_word(unit, word, bytes, point, shape, frame.place, paint);
        }
        for (const Sample& sample : plane.fields)
            if (belongs(plane, sample, point.x - unit.pixel) && is_there(unit, sample, shape.width))
                values += fmt::format("{}{} {}", values.empty() ? "" : ", ", sample.component,
                                      catalog::load_sample(plane, sample, bytes));
    }
    fmt::print("\npixel {},{}: {}\n", point.x, point.y, values);
}

void print_json(const SampledFrame& frame, const Point& point)
{
    const FrameShape& shape = frame.shape;
    Json samples = Json::array();
    for (const Unit& unit : units_at(shape, point)) {
        const Plane& plane = *unit.placed->plane;
        for (const Sample& sample : plane.fields) {
            if (sample.component.empty() || !is_there(unit, sample, shape.width)) continue;
            samples.push_back({{"component", sample.component},
                               {"pixel", unit.pixel + sample.pixel},
                               {"own", belongs(plane, sample, point.x - unit.pixel)},
                               {"byte", frame.place + unit.offset + sample.word * plane.word_bytes},
                               {"word_bytes", plane.word_bytes},
                               {"low_bit", sample.low},
                               {"bits", sample.bits},
                               {"value", catalog::load_sample(plane, sample, frame.bytes.data() + unit.offset)}});
        }
    }
    write_json({{"schema", json_schema}, {"x", point.x}, {"y", point.y}, {"samples", samples}});
}

Exit run(const Options& options)
{
    const SampledFrame frame = read_frame(options.file, options.samples);
    const Point point = point_of(options.at, frame.shape);
    if (options.json)
        print_json(frame, point);
    else
        print_text(frame, point, Painter(wants_color(options.color)));
    return Exit::done;
}

}  // namespace

Command add_bits(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("bits", "The words around a pixel of a frame, field by field.");
    const auto options = std::make_shared<Options>();
    app->add_option("file", options->file, "a file of frames; the first is taken, or the first of --frames")
        ->required();
    app->add_option("--at", options->at, "the pixel, counted from 0")->required();
    add_sample_options(*app, options->samples);
    app->add_flag("--json", options->json, "JSON instead of text");
    add_color_option(app, &options->color);
    return {app, [options] { return naming(options->file, [&] { return run(*options); }); }};
}

}  // namespace tintvert::tool
