// What was measured, as a table for a terminal, for the docs and as JSON.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "measured.h"

namespace tintvert::bench {

struct Row {
    std::string routine, level;
    std::array<double, std::size(sizes)> ns{}, of_memcpy{}, of_peer{};  // a pixel; ratios, 0 if there is no peer
    std::string peer;                                                   // the quickest at frame size
};

// Medians in nanoseconds by benchmark name: routine@size@level, routine@size@memcpy, routine@size@ and a peer.
using Medians = std::map<std::string, double, std::less<>>;
std::vector<Row> rows_of(const Medians& medians);

std::string as_text(const std::vector<Row>& rows);
std::string as_json(const std::vector<Row>& rows, std::string_view machine);
std::string as_markdown(const std::vector<Row>& rows, std::string_view machine, std::string_view date);
std::string as_plot_data(
    const std::vector<Row>& rows);  // routine and the ratio to memcpy at frame size, scalar and the highest level

}  // namespace tintvert::bench
