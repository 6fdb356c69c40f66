// tintvert st2084: the six tables beside the exact curve.
#include <fmt/format.h>
#include <tintvert/hdr.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "commands.h"
#include "io/pictures/png_file.h"
#include "json.h"
#include "names.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string table = "RGB_to_SMPTE2048_8Bit", png;
    bool json = false;
};

struct Table {
    std::string_view name;
    unsigned* (*entries)();
    int size;
    bool forward;
};

constexpr Table tables[] = {
    {"RGB_to_SMPTE2048_8Bit", get_ardwRGB_to_SMPTE2048_8Bit, 256, true},
    {"RGB_to_SMPTE2048_10Bit", get_ardwRGB_to_SMPTE2048_10Bit, 1024, true},
    {"RGB_to_SMPTE2048_12Bit", get_ardwRGB_to_SMPTE2048_12Bit, 4096, true},
    {"SMPTE2048_to_RGB_8Bit", get_ardwSMPTE2048_to_RGB_8Bit, 256, false},
    {"SMPTE2048_to_RGB_10Bit", get_ardwSMPTE2048_to_RGB_10Bit, 1024, false},
    {"SMPTE2048_to_RGB_12Bit", get_ardwSMPTE2048_to_RGB_12Bit, 4096, false},
};

const Table& table_named(const std::string& name)
{
    const auto found = std::ranges::find(tables, name, &Table::name);
    if (found != std::end(tables)) return *found;
    std::vector<std::string_view> names;
    for (const Table& table : tables) names.push_back(table.name);
    throw Failure(Exit::usage, "there is no table '{}'{}", name, suggestion(name, names));
}

// SMPTE ST 2084 over the whole code range, 10000 cd/m2.
double curve(const Table& table, int code)
{
    constexpr double m1 = 2610.0 / 16384, m2 = 2523.0 / 4096 * 128, c1 = 3424.0 / 4096, c2 = 2413.0 / 4096 * 32,
                     c3 = 2392.0 / 4096 * 32;
    const double x = static_cast<double>(code) / table.size;
    if (table.forward) {
        const double y = std::pow(x, m1);
        return table.size * std::pow((c1 + c2 * y) / (1 + c3 * y), m2);
    }
    const double v = std::pow(x, 1 / m2);
    return table.size * std::pow(std::max(v - c1, 0.0) / (c2 - c3 * v), 1 / m1);
}

void print_json(const Table& table)
{
    Json entries = Json::array(), exact = Json::array();
    for (int code = 0; code < table.size; ++code) {
        entries.push_back(table.entries()[code]);
        exact.push_back(curve(table, code));
    }
    write_json({{"schema", json_schema}, {"table", table.name}, {"entries", entries}, {"curve", exact}}, -1);
}

// Sixty-four columns of sixteen lines: `#` the table, `.` the curve where the two part.
void print_plot(const Table& table)
{
    constexpr int columns = 64, rows = 16;
    std::vector<std::string> plot(rows, std::string(columns, ' '));
    const auto row_of = [&](double value) {
        return std::clamp(rows - 1 - static_cast<int>(value * rows / table.size), 0, rows - 1);
    };
    for (int column = 0; column < columns; ++column) {
        const int code = column * table.size / columns;
        plot[static_cast<size_t>(row_of(curve(table, code)))][static_cast<size_t>(column)] = '.';
        plot[static_cast<size_t>(row_of(table.entries()[code]))][static_cast<size_t>(column)] = '#';
    }
    fmt::print("{}  (# table, . curve)\n", table.name);
    for (const std::string& line : plot) fmt::print("|{}\n", line);
    fmt::print("+{}\n {:<60}{}\n\n{:>6} {:>8} {:>12}\n", std::string(columns, '-'), 0, table.size - 1, "code", "entry",
               "curve");
    for (int code = 0; code < table.size; code += table.size / 16)
        fmt::print("{:>6} {:>8} {:>12.4f}\n", code, table.entries()[code], curve(table, code));
    fmt::print("{:>6} {:>8} {:>12.4f}\n", table.size - 1, table.entries()[table.size - 1],
               curve(table, table.size - 1));
}

// The table in white over the curve in red, 512 x 512, steps joined.
void write_plot(const Table& table, const std::string& path)
{
    constexpr long side = 512;
    Picture picture(side, side);
    for (long x = 0; x < side; ++x)
        for (long y = 0; y < side; ++y) picture.pixel(x, y)[3] = 255;
    const auto row_of = [&](double value) {
        return std::clamp<long>(side - 1 - static_cast<long>(value * side / table.size), 0, side - 1);
    };
    const auto draw = [&](auto value_of, uint8_t green_and_blue) {
        long before = row_of(value_of(0));
        for (long x = 0; x < side; ++x) {
            const long row = row_of(value_of(static_cast<int>(x * table.size / side)));
            for (long y = std::min(before, row); y <= std::max(before, row); ++y) {
                uint8_t* const pixel = picture.pixel(x, y);
                pixel[0] = 255;
                pixel[1] = pixel[2] = green_and_blue;
            }
            before = row;
        }
    };
    draw([&](int code) { return curve(table, code); }, 0);
    draw([&](int code) { return static_cast<double>(table.entries()[code]); }, 255);
    write_png(path, picture);
}

Exit run(const Options& options)
{
    const Table& table = table_named(options.table);
    if (!options.png.empty())
        write_plot(table, options.png);
    else if (options.json)
        print_json(table);
    else
        print_plot(table);
    return Exit::done;
}

}  // namespace

Command add_st2084(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("st2084", "One of the ST 2084 tables beside the exact curve.");
    const auto options = std::make_shared<Options>();
    app->add_option("--table", options->table, "RGB_to_SMPTE2048_ or SMPTE2048_to_RGB_ with 8Bit, 10Bit or 12Bit")
        ->capture_default_str();
    app->add_option("--png", options->png, "a picture of the plot, 512 x 512");
    app->add_flag("--json", options->json, "every entry, with the value of the curve");
    return {app, [options] { return run(*options); }};
}

}  // namespace tintvert::tool
