#include "refusals.h"

#include <algorithm>

namespace tintvert::catalog {
namespace {

bool takes(const Routine& routine, Arg argument)
{
    return std::ranges::find(routine.arguments, argument) != routine.arguments.end();
}

bool one_of(std::string_view name, std::initializer_list<std::string_view> names)
{
    return std::ranges::find(names, name) != names.end();
}

std::string_view refused_field_mode(const Arguments& call)
{
    const int64_t height = call[Arg::height], mode = call[Arg::mode];
    if (mode == 3 && height < 2) return "mode 3 with fewer than two lines counts through 2^32 of them";
    if (mode >= 5 && mode <= 8 && height % 2 != 0) return "modes 5 to 8 with an odd `height` count through 2^32 lines";
    return {};
}

}  // namespace

std::string_view refusal(const Routine& routine, const Arguments& call)
{
    const std::string_view name = routine.name;
    constexpr int64_t most = 0x7FFFFFFF;
    for (const Arg size : {Arg::width, Arg::height, Arg::pixels, Arg::count, Arg::total, Arg::bytes})
        if (takes(routine, size) && std::abs(call[size]) > most) return "a size above 2^31 - 1 wraps a 32-bit product";
    if (takes(routine, Arg::width) && takes(routine, Arg::height)) {
        const int64_t width = std::abs(call[Arg::width]), height = std::abs(call[Arg::height]);
        if (width != 0 && height > most / 8 / width) return "`width` x `height` x 8 wraps at 32 bits";
    }
    if (takes(routine, Arg::scale) && call[Arg::scale] == 0 && name != "tntvt_yuv422_rgb16" &&
        name != "tntvt_v210_rgb16")
        return "a `scale` of 0 divides by zero";
    if (one_of(name, {"tntvt_2vuy_v210", "tntvt_yuv422_8_yuv422_10"}) && call[Arg::height] < 1)
        return "a `height` of 0 walks 2^32 lines";
    if (name == "tntvt_v210_frame_to_rtp_4175" && call[Arg::width] % 2 != 0) return "an odd `width` never returns";
    if (takes(routine, Arg::groups) && call[Arg::groups] == 0) return "`groups` of 0 divides by zero";
    if (name == "tntvt_rgba_full" && call[Arg::width] == 0) return "a `width` of 0 divides by zero";
    if (name == "tntvt_rle8_rgb24" && call[Arg::height] == 0) return "a `height` of 0 counts through 2^32 lines";
    if (routine.shape == "field_change") return refused_field_mode(call);
    return {};
}

}  // namespace tintvert::catalog
