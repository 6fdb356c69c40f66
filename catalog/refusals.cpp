#include "refusals.h"

#include "catalog.h"

namespace tintvert::catalog {

std::string_view name_of(Refusal refusal)
{
    constexpr std::string_view names[] = {
        "none",  "too_large",         "divides_by_zero", "never_returns", "walks_2_32_lines",
        "wraps", "reads_as_unsigned", "overruns_scratch"};
    return names[static_cast<size_t>(refusal)];
}

Reason reason(const Routine& routine, const Arguments& call)
{
    if (!routine.fits_in_memory(call)) return {Refusal::too_large, "the numbers make more than memory can hold"};
    return routine.refuses == nullptr ? Reason{} : routine.refuses(call);
}

}  // namespace tintvert::catalog
