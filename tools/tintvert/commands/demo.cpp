// tintvert demo: a picture to `2vuy` and back, at full size and reduced.
#include <fmt/format.h>
#include <tintvert.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <vector>

#include "catalog.h"
#include "commands.h"
#include "inspect/difference.h"
#include "inspect/test_card.h"
#include "io/output_file.h"
#include "io/pictures/png_file.h"
#include "io/pictures/rgb_frame.h"
#include "stopwatch.h"

namespace tintvert::tool {
namespace {

using catalog::Arg;

struct Options {
    std::string input, output = "demo";
};

// The catalogue knows what a call writes, the last whole group included.
std::vector<uint8_t> buffer_for(const char* routine, const catalog::Arguments& call, Arg buffer)
{
    for (const catalog::Touch& touch : catalog::find(routine)->extents(call))
        if (touch.buffer == buffer)
            return std::vector<uint8_t>(static_cast<size_t>(std::max(touch.read.end, touch.written.end)));
    return {};
}

// A frame of 2vuy whose lines are whole pairs, and how long the way there took.
struct Encoded {
    long width = 0, height = 0;
    std::vector<uint8_t> frame;
    double ns = 0;
};

Encoded encode(const Picture& picture)
{
    Encoded result;
    result.width = picture.width + picture.width % 2;
    result.height = picture.height;
    std::vector<uint8_t> rgb32 = rgb32_of(picture, result.width);
    catalog::Arguments call;
    call[Arg::width] = result.width;
    call[Arg::height] = result.height;
    result.frame = buffer_for("tntvt_rgb32_2vuy", call, Arg::dst);
    result.ns =
        median_ns([&] { tntvt_rgb32_2vuy(result.frame.data(), 0, rgb32.data(), 0, result.width, result.height); });
    return result;
}

struct Decoded {
    Picture picture;
    double ns = 0;
};

// 24-bit pixels: the stride has no room for a fourth byte. Pixels beyond `width` / `scale` are left out.
Decoded decode(Encoded& from, long width, long scale)
{
    const long stride = from.width / scale * 3;
    catalog::Arguments call;
    call[Arg::dstStride] = stride;
    call[Arg::srcStride] = from.width * 2;
    call[Arg::width] = from.width;
    call[Arg::height] = from.height;
    call[Arg::scale] = scale;
    std::vector<uint8_t> rgb24 = buffer_for("tntvt_yuv422_rgb24", call, Arg::dst);
    const double ns = median_ns([&] {
        tntvt_yuv422_rgb24(rgb24.data(), stride, from.frame.data(), from.width * 2, from.width, from.height, scale);
    });
    return {picture_of_rgb24(rgb24.data(), stride, width / scale, from.height / scale), ns};
}

std::string size_text(long width, long height) { return fmt::format("{} x {}", width, height); }

void report_step(const std::string& step, long width, long height, double ns_a_pixel, const std::string& file)
{
    fmt::print("{:<22} {:>12} {:>8.2f}  {}\n", step, size_text(width, height), ns_a_pixel, printable(file));
}

Picture picture_in(const std::string& path)
{
    InputFile file(path);
    return read_png(file);
}

Exit run(const Options& options)
{
    const bool own = options.input.empty();
    const Picture given = own ? test_card() : picture_in(options.input);
    const Picture picture = with_8_bits(given);
    const std::filesystem::path folder = options.output;
    const std::string stem = own ? "card" : std::filesystem::path(options.input).stem().string();
    const double pixels = static_cast<double>(picture.width * picture.height);
    make_folder(folder);

    fmt::print("{}, {}, {} bits a sample{}\n\n", own ? "built-in test card" : printable(options.input),
               size_text(given.width, given.height), given.depth * 8,
               given.depth == Picture::bits16 ? ", of which the upper 8 are used" : "");

    fmt::print("{:<22} {:>12} {:>8}\n", "step", "pixels", "ns/pixel");
    Encoded encoded = encode(picture);
    const auto raw = folder / fmt::format("{}_{}x{}.2vuy", stem, encoded.width, encoded.height);
    write_file(raw, encoded.frame.data(), encoded.frame.size());
    report_step("rgb32 to 2vuy", encoded.width, encoded.height, encoded.ns / pixels, raw.string());

    std::string differences;
    for (const long scale : {1, 2, 4}) {
        const std::string step = fmt::format("2vuy to rgb24, 1/{}", scale);
        if (picture.width < scale || picture.height < scale) {
            fmt::print("{:<22} {:>12}\n", step, "none left");
            continue;
        }
        const Decoded decoded = decode(encoded, picture.width, scale);
        const auto file = folder / fmt::format("{}_scale{}.png", stem, scale);
        write_png(file, decoded.picture);
        report_step(step, decoded.picture.width, decoded.picture.height, decoded.ns / pixels, file.string());
        const Difference d = difference(decoded.picture, picture, scale);
        differences +=
            fmt::format("1/{:<8} {:>5} {:>5} {:>5}   {:>7.3f} {:>7.3f} {:>7.3f}   input pixel ({}, {})\n", scale,
                        d.largest[0], d.largest[1], d.largest[2], d.mean[0], d.mean[1], d.mean[2],
                        scale == 1 ? "x" : fmt::format("{}x", scale), scale == 1 ? "y" : fmt::format("{}y", scale));
    }
    if (encoded.width != picture.width)
        fmt::print("\nAn odd width travels as the next even one, its last column repeated.\n");
    fmt::print("\nns/pixel is the median of nine runs, divided by the pixels of the input.\n");
    fmt::print("\ndifference     largest              mean\n");
    fmt::print("{:<10} {:>5} {:>5} {:>5}   {:>7} {:>7} {:>7}   {}\n{}", "", "R", "G", "B", "R", "G", "B",
               "pixel (x, y) against", differences);
    return Exit::done;
}

}  // namespace

Command add_demo(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand(
        "demo", "Sends a picture to 2vuy and back, writes the results and says how far they are off.");
    const auto options = std::make_shared<Options>();
    app->add_option("-i,--input", options->input, "a PNG; without it, a test card of 1920 x 1080");
    app->add_option("-o,--output", options->output, "the folder to write to")->capture_default_str()->take_last();
    return {app, [options] { return naming(options->input, [&] { return run(*options); }); }};
}

}  // namespace tintvert::tool
