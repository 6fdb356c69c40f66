// The sizes, strides and ranges of frames of a command line.
//
//     layout   text
#include <string>

#include "failure.h"
#include "input.h"
#include "io/clip_options.h"
#include "layouts.h"
#include "must.h"

namespace {

using namespace tintvert::core;
using tintvert::fuzz::must;

template <class Read>
void attempt(Read read)
{
    try {
        read();
    } catch (const Failure&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    tintvert::fuzz::Input input(data, size);
    const auto layouts = tintvert::catalog::layouts();
    const std::string_view layout = layouts[input.byte() % layouts.size()].name;
    const std::string text(input.rest().begin(), input.rest().end());
    const std::string half = text.substr(text.size() / 2);
    attempt([&] {
        const Size read = size_of(text);
        must(read.width > 0 && read.height > 0 && read.width * read.height <= 1 << 28, "a size is sane");
    });
    attempt([&] {
        const FrameRange range = frame_range_of(text);
        must(range.first >= 0 && (range.end == -1 || range.end > range.first), "a range has a frame");
    });
    attempt([&] { must(stride_of(text, layout, {640, 480}) >= 0, "a stride goes forward"); });
    attempt(
        [&] { must(stride_of(half, layout, size_of(text.substr(0, text.size() / 2))) >= 0, "a stride goes forward"); });
    return 0;
}
