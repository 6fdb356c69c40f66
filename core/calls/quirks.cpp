#include "calls/quirks.h"

#include <fmt/format.h>

#include "facts.h"

namespace tintvert::core {
namespace {

using catalog::Arg;

struct Condition {
    std::string_view name;
    Arg argument;
    bool (*is_met)(int64_t value);
    std::string_view yes, no;
};

constexpr auto is_odd = [](int64_t value) { return value % 2 != 0; };
constexpr auto is_negative = [](int64_t value) { return value < 0; };
constexpr std::string_view odd_width = "met: the width is odd", even_width = "not met: the width is even";
constexpr std::string_view below = "met: the height is negative", above = "not met: the height is positive";

constexpr Condition conditions[] = {
    {"keeps_long_luma_lines_of_odd_width", Arg::width, is_odd, odd_width, even_width},
    {"keeps_drift_of_odd_width", Arg::width, is_odd, odd_width, even_width},
    {"keeps_pair_past_odd_width", Arg::width, is_odd, odd_width, even_width},
    {"keeps_endless_odd_width", Arg::width, is_odd, odd_width, even_width},
    {"keeps_flip_one_line_off", Arg::height, is_negative, below, above},
    {"keeps_signed_height_in_addresses", Arg::height, is_negative, below, above},
    {"keeps_matrix_change_at_962", Arg::width, [](int64_t value) { return value < 962; },
     "the width is below 962: BT.601", "the width is 962 or more: BT.709"},
    {"keeps_10_bit_decoder_for_8_bit_data", Arg::scale, [](int64_t value) { return value == 1; }, "met: full size",
     "not met: reduced"},
    {"keeps_interlaced_line_order", Arg::interlaced, [](int64_t value) { return value != 0; }, "met: interlaced",
     "not met: the lines are in order"},
    {"keeps_orders_that_write_nothing", Arg::order, [](int64_t value) { return value == 1 || value == 3; },
     "met: order 1 or 3", "not met: order 0 or 2"},
    {"keeps_plain_copy_of_mode_17", Arg::mode, [](int64_t value) { return value == 17; }, "met: mode 17",
     "not met: another mode"},
};

std::string_view here(std::string_view name, const catalog::Arguments& call)
{
    for (const Condition& condition : conditions)
        if (condition.name == name) return condition.is_met(call[condition.argument]) ? condition.yes : condition.no;
    return {};
}

// The third cell of the row that begins with the name.
std::string_view what_is(std::string_view name)
{
    std::string_view row = quirks_page();
    row.remove_prefix(row.find(fmt::format("\n| {} |", name)) + 1);
    row = row.substr(0, row.find(" |\n"));
    return row.substr(row.rfind(" | ") + 3);
}

}  // namespace

std::vector<Quirk> quirks_at(const catalog::Routine& routine, const catalog::Arguments& call)
{
    std::vector<Quirk> quirks;
    for (const std::string_view name : catalog::quirks_of(routine))
        quirks.push_back({name, what_is(name), here(name, call)});
    return quirks;
}

}  // namespace tintvert::core
