#include "paths/calls.h"

#include <algorithm>

#include "failure.h"
#include "paths/holds.h"

namespace tintvert::tool {
namespace {

void need_whole_groups(std::string_view layout, Size size)
{
    const road::Holds& holds = road::holds_of(layout);
    const bool pairs = holds.chroma == road::Chroma::c420 || holds.chroma == road::Chroma::c422;
    if (pairs && size.width % 2 != 0)
        throw Failure(Exit::unsafe, "refused: {} holds pairs of pixels, and {} is odd", layout, size.width);
    if ((holds.chroma == road::Chroma::c420 || layout == "field_planes") && size.height % 2 != 0)
        throw Failure(Exit::unsafe, "refused: {} holds pairs of lines, and {} is odd", layout, size.height);
}

}  // namespace

Calls::Calls(const std::vector<Call>& calls, size_t input_bytes) : input_(input_bytes)
{
    for (const Call& call : calls) conversions_.emplace_back(*call.routine, call.arguments);
}

std::span<const uint8_t> Calls::run()
{
    std::span<const uint8_t> frame = input_;
    for (Conversion& conversion : conversions_) {
        conversion.clear();
        for (const auto buffer : conversion.inputs()) {
            std::ranges::copy(frame.first(buffer.size()), buffer.begin());
            frame = frame.subspan(buffer.size());
        }
        conversion.run();
        output_.clear();
        for (const auto buffer : conversion.outputs()) output_.insert(output_.end(), buffer.begin(), buffer.end());
        frame = output_;
    }
    return frame;
}

std::vector<Call> calls_of(const road::Road& road, Size size)
{
    need_whole_groups(road.from, size);
    std::vector<Call> calls;
    for (const road::Stretch& stretch : road.stretches) {
        need_whole_groups(stretch.to, size);
        calls.push_back({stretch.routine, catalog::plain_call(*stretch.routine, {size.width, size.height})});
    }
    return calls;
}

}  // namespace tintvert::tool
