#include "refusals.h"

#include <algorithm>
#include <array>

#include "refusals/rules.h"
#include "routine_id.h"

namespace tintvert::catalog {
namespace {

using Rule = Reason (*)(const Arguments&);

constexpr auto rules = [] {
    std::array<Rule, routine_count> table{};
#define TNTVT_REFUSES(routine, rule) table[static_cast<size_t>(RoutineId::routine)] = refusals::rule;
#include "refusals.def"
#undef TNTVT_REFUSES
    return table;
}();

// How an argument enters the size of a frame.
enum class Part : uint8_t { none, size, lines, distance };

constexpr Part part_of(Arg argument)
{
    switch (argument) {
        case Arg::height:
            return Part::lines;
        case Arg::width:
        case Arg::pixels:
        case Arg::count:
        case Arg::groups:
        case Arg::total:
        case Arg::bytes:
        case Arg::size:
        case Arg::scale:
        case Arg::pgroupCount:
            return Part::size;
        case Arg::stride:
        case Arg::dstStride:
        case Arg::srcStride:
        case Arg::fieldStride:
        case Arg::srcPitch:
        case Arg::dstPitch:
            return Part::distance;
        default:
            return Part::none;
    }
}

constexpr auto parts = [] {
    std::array<Part, argument_count> table{};
    for (size_t i = 0; i < table.size(); ++i) table[i] = part_of(static_cast<Arg>(i));
    return table;
}();

constexpr int64_t memory = int64_t{1} << 47;

// Numbers of up to 2^31 - 1, distances of up to 2^32 - 1, and no product of one with the lines beyond memory.
bool fits_in_memory(const Routine& routine, const Arguments& call)
{
    using namespace refusals;
    int64_t lines = 1, longest = 0;
    for (const Arg argument : routine.arguments) {
        const Part part = parts[static_cast<size_t>(argument)];
        if (part == Part::none) continue;
        const int64_t number = call[argument], most = part == Part::distance ? most_unsigned : most_signed;
        if (number > most || number < -most) return false;
        if (part == Part::lines)
            lines = size_of(number);
        else if (argument != Arg::scale)
            longest = std::max(longest, size_of(number));
    }
    return longest * lines <= memory;
}

}  // namespace

std::string_view name_of(Refusal refusal)
{
    constexpr std::string_view names[] = {
        "none",  "too_large",         "divides_by_zero", "never_returns", "walks_2_32_lines",
        "wraps", "reads_as_unsigned", "overruns_scratch"};
    return names[static_cast<size_t>(refusal)];
}

Reason reason(const Routine& routine, const Arguments& call)
{
    if (!fits_in_memory(routine, call)) return {Refusal::too_large, "the numbers make more than memory can hold"};
    const Rule rule = rules[static_cast<size_t>(id_of(routine))];
    return rule == nullptr ? Reason{} : rule(call);
}

}  // namespace tintvert::catalog
