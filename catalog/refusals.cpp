#include "refusals.h"

#include <algorithm>
#include <array>

#include "refusals/rules.h"
#include "routine_id.h"
#include "shapes.h"

namespace tintvert::catalog {
namespace {

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

constexpr int64_t memory = int64_t{1} << 47;

// Numbers of up to 2^31 - 1, distances of up to 2^32 - 1, and no product of one with the lines beyond memory.
struct Size {
    int64_t lines = 1, longest = 0;

    // Whether `number` is within what its argument may be.
    template <Arg argument>
    bool takes(int64_t number)
    {
        constexpr Part part = part_of(argument);
        constexpr int64_t most = part == Part::distance ? refusals::most_unsigned : refusals::most_signed;
        if constexpr (part == Part::none) return true;
        if (number > most || number < -most) return false;
        if constexpr (part == Part::lines)
            lines = refusals::size_of(number);
        else if (argument != Arg::scale)
            longest = std::max(longest, refusals::size_of(number));
        return true;
    }
    bool fits_in_memory() const { return longest * lines <= memory; }
};

using Rule = Reason (*)(const Arguments&);

Reason no_rule(const Arguments&) { return {}; }

constexpr auto rules = [] {
    std::array<Rule, routine_count> table{};
    table.fill(no_rule);
#define TNTVT_REFUSES(routine, rule) table[static_cast<size_t>(RoutineId::routine)] = refusals::rule;
#include "refusals.def"
#undef TNTVT_REFUSES
    return table;
}();

template <auto& shape, Rule rule>
Reason reason_by(const Arguments& call)
{
    Size size;
    const bool fits = [&]<size_t... place>(std::index_sequence<place...>)
    {
        return (size.takes<shape[place]>(call[shape[place]]) && ...);
    }
    (std::make_index_sequence<shape.size()>{});
    if (!fits || !size.fits_in_memory()) return {Refusal::too_large, "the numbers make more than memory can hold"};
    return rule(call);
}

constexpr Rule reasons[] = {
#define TNTVT_ROUTINE(chapter, name, shape, from, to, rule, summary) \
    reason_by<shapes::shape, rules[static_cast<size_t>(RoutineId::name)]>,
#include "routines.def"
#undef TNTVT_ROUTINE
};

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
    return reasons[static_cast<size_t>(id_of(routine))](call);
}

}  // namespace tintvert::catalog
