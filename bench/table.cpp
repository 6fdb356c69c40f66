#include "table.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>

namespace tintvert::bench {
namespace {

constexpr size_t frame = std::size(sizes) - 1;
constexpr std::string_view levels[] = {"scalar", "sse2", "avx2", "avx512"};

double find(const Medians& medians, const std::string& name)
{
    const auto found = medians.find(name);
    return found == medians.end() ? 0 : found->second;
}

// The quickest of the names that begin with `prefix` and are no measurement of ours.
std::string quickest_peer(const Medians& medians, const std::string& prefix)
{
    std::string quickest;
    double least = 0;
    for (auto it = medians.lower_bound(prefix); it != medians.end() && it->first.starts_with(prefix); ++it) {
        const std::string name = it->first.substr(prefix.size());
        if (name == "memcpy" || std::ranges::find(levels, name) != std::end(levels)) continue;
        if (least == 0 || it->second < least) {
            least = it->second;
            quickest = name;
        }
    }
    return quickest;
}

std::string ratio(double value) { return value == 0 ? "-" : fmt::format("{:.2f}", value); }

}  // namespace

std::vector<Row> rows_of(const Medians& medians)
{
    std::vector<Row> rows;
    for (const catalog::Routine& routine : catalog::routines()) {
        const std::string at_frame = fmt::format("{}@{}@", routine.name, sizes[frame].name);
        const std::string peer = quickest_peer(medians, at_frame);
        for (const std::string_view level : levels) {
            if (find(medians, at_frame + std::string{level}) == 0) continue;
            Row row{std::string{routine.name}, std::string{level}, {}, {}, {}, peer};
            for (size_t i = 0; i < std::size(sizes); ++i) {
                const std::string at = fmt::format("{}@{}@", routine.name, sizes[i].name);
                const double ns = find(medians, at + row.level), copy = find(medians, at + "memcpy"),
                             other = peer.empty() ? 0 : find(medians, at + peer);
                row.ns[i] = ns / static_cast<double>(sizes[i].width * sizes[i].height);
                row.of_memcpy[i] = ns / copy;
                if (other != 0) row.of_peer[i] = ns / other;
            }
            rows.push_back(row);
        }
    }
    return rows;
}

std::string as_text(const std::vector<Row>& rows)
{
    std::string text = fmt::format("{:32} {:6}", "routine", "level");
    for (const Size& size : sizes) text += fmt::format("{:>7} ns/px  x memcpy  x peer", size.name);
    text += "   peer\n";
    for (const Row& row : rows) {
        text += fmt::format("{:32} {:6}", row.routine, row.level);
        for (size_t i = 0; i < std::size(sizes); ++i)
            text += fmt::format("{:13.3f} {:>9} {:>7}", row.ns[i], ratio(row.of_memcpy[i]), ratio(row.of_peer[i]));
        text += fmt::format("   {}\n", row.peer);
    }
    return text;
}

std::string as_json(const std::vector<Row>& rows, std::string_view machine)
{
    nlohmann::json json = {{"schema", 1}, {"machine", machine}, {"rows", nlohmann::json::array()}};
    for (const Row& row : rows) {
        nlohmann::json entry = {{"routine", row.routine}, {"level", row.level}};
        if (!row.peer.empty()) entry["peer"] = row.peer;
        for (size_t i = 0; i < std::size(sizes); ++i) {
            nlohmann::json& size = entry[sizes[i].name];
            size = {{"ns_per_pixel", row.ns[i]}, {"of_memcpy", row.of_memcpy[i]}};
            if (row.of_peer[i] != 0) size["of_peer"] = row.of_peer[i];
        }
        json["rows"].push_back(entry);
    }
    return json.dump(2) + "\n";
}

std::string as_markdown(const std::vector<Row>& rows, std::string_view machine, std::string_view date)
{
    std::string text = fmt::format(
        "# Performance\n\n"
        "`scripts/bench --docs` measures and writes this page. Measured on {}, {}, one thread.\n\n"
        "Medians in nanoseconds a pixel, from one run with all measurements interleaved. \"x memcpy\" is the time\n"
        "divided by that of memcpy for the same bytes read and written, and \"x peer\" by that of the fastest\n"
        "peer installed; below 1 the routine is faster. `slice` is 1920x16 again and again, which stays in the\n"
        "second-level cache, and `frame` is 1920x1080. Every buffer begins on a cache line, at a different\n"
        "place within a page.\n\n"
        "The levels are scalar, SSE2 (every x86-64), AVX2, and AVX-512 with VBMI. Where a routine has no SIMD\n"
        "version for a level, the next lower one runs and the row repeats it. libycbcr selects its own level:\n"
        "the rows of `tntvt_yuv422_8_rgb32`, `tntvt_yuv422_10_rgb32`, `tntvt_i420_rgb32` and `tntvt_yv12_rgb32`\n"
        "show its highest. A peer may do less or round differently; [peers.md](peers.md) says which bytes\n"
        "agree.\n\n"
        "Frames are noise. RGB to `2vuy` by the BT.601 matrix converts greys, whose chroma is a whole number,\n"
        "in doubles: a frame of greys takes twice as long.\n\n"
        "![The highest level and the scalar version beside memcpy](performance.svg)\n\n"
        "| routine | level | slice ns/px | x memcpy | x peer | frame ns/px | x memcpy | x peer | peer |\n"
        "|---|---|--:|--:|--:|--:|--:|--:|---|\n",
        date, machine);
    for (const Row& row : rows) {
        text += fmt::format("| {} | {} ", row.level == "scalar" ? row.routine : "", row.level);
        for (size_t i = 0; i < std::size(sizes); ++i)
            text += fmt::format("| {:.3f} | {} | {} ", row.ns[i], ratio(row.of_memcpy[i]), ratio(row.of_peer[i]));
        text += fmt::format("| {} |\n", row.level == "scalar" ? row.peer : "");
    }
    return text;
}

std::string as_plot_data(const std::vector<Row>& rows)
{
    std::string text;
    for (size_t i = 0; i < rows.size(); ++i) {
        const bool last = i + 1 == rows.size() || rows[i + 1].routine != rows[i].routine;
        if (rows[i].level == "scalar") text += fmt::format("{} {:.3f}", rows[i].routine, rows[i].of_memcpy[frame]);
        if (last) text += fmt::format(" {:.3f}\n", rows[i].of_memcpy[frame]);
    }
    return text;
}

}  // namespace tintvert::bench
