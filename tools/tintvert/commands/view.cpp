// tintvert view: a frame as a picture, in the terminal or as PNG.
#include <fmt/format.h>
#include <unistd.h>

#include <map>
#include <memory>

#include "commands.h"
#include "inspect/chafa_picture.h"
#include "inspect/sample_picture.h"
#include "inspect/terminal_picture.h"
#include "io/pictures/png_file.h"
#include "options.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string file, output, drawing, color;
    SampleOptions samples;
    long width = 0;
};

const std::map<std::string, Drawing> drawings{{"letters", Drawing::letters},
                                              {"blocks", Drawing::blocks},
                                              {"symbols", Drawing::symbols},
                                              {"sixels", Drawing::sixels},
                                              {"kitty", Drawing::kitty}};

// The same bytes on every machine, unless a terminal is there to see more.
Drawing drawing_for(const Options& options)
{
    if (!options.drawing.empty()) return drawings.at(options.drawing);
    if (!wants_color(options.color)) return Drawing::letters;
    return isatty(STDOUT_FILENO) != 0 ? finest_drawing() : Drawing::blocks;
}

Exit run(const Options& options)
{
    const SampledFrame frame = read_frame(options.file, options.samples);
    const Picture picture = picture_of_samples(frame.shape, frame.bytes);
    if (!options.output.empty())
        write_png(options.output, picture);
    else
        fmt::print("{}", terminal_picture(picture, options.width > 0 ? options.width : terminal_columns(),
                                          drawing_for(options)));
    return Exit::done;
}

}  // namespace

Command add_view(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("view", "A frame as a picture, in the terminal or as PNG.");
    const auto options = std::make_shared<Options>();
    app->add_option("file", options->file, "a file of frames; the first is taken, or the first of --frames")
        ->required();
    add_sample_options(*app, options->samples);
    app->add_option("--width", options->width, "columns of the picture in the terminal")->check(CLI::Range(1, 10000));
    app->add_option("--as", options->drawing, "how it is drawn; by default what the terminal can, and blocks in a pipe")
        ->check(CLI::IsMember(drawings));
    app->add_option("-o,--output", options->output, "a PNG to write instead");
    add_color_option(app, &options->color);
    return {app, [options] { return naming(options->file, [&] { return run(*options); }); }};
}

}  // namespace tintvert::tool
