// tintvert layouts: the memory layouts, byte by byte, with their names elsewhere.
#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "commands.h"
#include "inspect/layout_picture.h"
#include "json.h"
#include "names.h"
#include "options.h"

namespace tintvert::tool {
namespace {

using catalog::Layout;

struct Options {
    std::string name, color;
    bool json = false, markdown = false;
};

std::vector<Layout> chosen(const std::string& name)
{
    const auto all = catalog::layouts();
    if (name.empty()) return {all.begin(), all.end()};
    return {layout_named(name)};
}

std::string names_elsewhere(const Layout& layout)
{
    std::string text;
    const auto add = [&](const char* who, std::string_view name) {
        if (!name.empty()) text += fmt::format("{}{} {}", text.empty() ? "" : ", ", who, name);
    };
    add("FFmpeg", layout.ffmpeg);
    add("GStreamer", layout.gstreamer);
    add("FourCC", layout.fourcc);
    add("libyuv", layout.libyuv);
    return text.empty() ? "no name elsewhere" : text;
}

Json to_json(const catalog::Plane& plane)
{
    Json samples = Json::array();
    for (const catalog::Sample& sample : plane.fields)
        if (!sample.component.empty())
            samples.push_back({{"component", sample.component},
                               {"pixel", sample.pixel},
                               {"word", sample.word},
                               {"low_bit", sample.low},
                               {"bits", sample.bits},
                               {"signed", sample.is_signed}});
    return {{"pixels_across", plane.across},
            {"pixels_down", plane.down},
            {"field", plane.field},
            {"unit_bytes", plane.unit_bytes},
            {"word_bytes", plane.word_bytes},
            {"byte_order", plane.big_endian ? "big" : "little"},
            {"samples", samples}};
}

Json forms_to_json(const Layout& layout)
{
    Json forms = Json::array();
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        if (form.layout != layout.name) continue;
        Json planes = Json::array();
        for (const catalog::Plane& plane : form.planes) planes.push_back(to_json(plane));
        forms.push_back({{"form", form.form}, {"planes", planes}});
    }
    return forms;
}

void print_json(const std::vector<Layout>& layouts)
{
    Json list = Json::array();
    for (const Layout& layout : layouts)
        list.push_back({{"name", layout.name},
                        {"summary", layout.summary},
                        {"ffmpeg", layout.ffmpeg},
                        {"gstreamer", layout.gstreamer},
                        {"fourcc", layout.fourcc},
                        {"libyuv", layout.libyuv},
                        {"line_bytes_1920", layout.line_bytes(1920)},
                        {"note", layout.note},
                        {"picture", picture_of(layout, Painter(false))},
                        {"forms", forms_to_json(layout)}});
    write_json({{"schema", json_schema}, {"layouts", list}});
}

constexpr std::string_view introduction = R"(# Layouts

Every memory layout that the routines read and write, as `tintvert layouts` prints it. This page is made by
`tintvert layouts --markdown`.

Bytes are counted from the lowest address, b0 first; bits are drawn from the highest to the lowest. Words are
little-endian unless a layout says otherwise. No layout needs its lines to be aligned, and a line has no
padding of its own. The channel letters in a name follow three different readings (word order, memory order,
and the order of the line routines), so read the picture and not the name: `rgb32` is FFmpeg's `bgra`, and
`bgra32` is not the `BGRA` of the line routines. Range, video or full, is a property of the routine that
writes.

`v210` has three default line lengths: 128 bytes for each 48 pixels
(`tntvt_rgb32_v210`, `tntvt_YCbCr10Packed_to_v210`, `tntvt_v210_frame_to_rtp_4175`, the `tntvt_yuv422_10_`
entries), `width` x 16 / 6 rounded up to 64 bytes (`tntvt_2vuy_v210`), and `width` x 16 / 6 truncated
(`tntvt_v210_2vuy`). At 1920 pixels all give 5120; at 1280 they give 3456, 3456 and 3413; at 100 they give
384, 320 and 266. `_v210_to_rgb` reads groups with no padding between lines at all.
)";

void print_markdown(const std::vector<Layout>& layouts)
{
    fmt::print("{}", introduction);
    for (const Layout& layout : layouts)
        fmt::print("\n## {}\n\n{}. Elsewhere: {}.\n\n```text\n{}```\n", layout.name, layout.summary,
                   names_elsewhere(layout), picture_of(layout, Painter(false)));
}

// A single layout is drawn bit by bit too.
void print_text(const std::vector<Layout>& layouts, const Painter& paint)
{
    for (const Layout& layout : layouts)
        fmt::print("{}{}\n  {}\n  {}\n\n{}", &layout == layouts.data() ? "" : "\n", layout.name, layout.summary,
                   names_elsewhere(layout), picture_of(layout, paint));
    const std::string bits = layouts.size() == 1 ? bits_picture_of(layouts.front(), paint) : "";
    if (!bits.empty()) fmt::print("\n{}", bits);
}

Exit run(const Options& options)
{
    const std::vector<Layout> layouts = chosen(options.name);
    if (options.json)
        print_json(layouts);
    else if (options.markdown)
        print_markdown(layouts);
    else
        print_text(layouts, Painter(wants_color(options.color)));
    return Exit::done;
}

}  // namespace

Command add_layouts(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("layouts", "The memory layouts, byte by byte.");
    const auto options = std::make_shared<Options>();
    app->add_option("layout", options->name, "one of the layouts; without it, all");
    app->add_flag("--json", options->json, "JSON instead of text");
    app->add_flag("--markdown", options->markdown, "the page docs/layouts.md");
    add_color_option(app, &options->color);
    return {app, [options] { return run(*options); }};
}

}  // namespace tintvert::tool
