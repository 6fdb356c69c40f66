#include "paths/frame_converter.h"

#include <algorithm>

#include "failure.h"
#include "geometry.h"
#include "names.h"

namespace tintvert::core {
namespace {

void need_whole_groups(std::string_view layout, Size size)
{
    using catalog::Chroma, catalog::Planes;
    const catalog::Layout& about = layout_named(layout);
    const Chroma chroma = about.chroma();
    const bool pairs = chroma == Chroma::c420 || chroma == Chroma::c422;
    if (pairs && size.width % 2 != 0)
        throw Refusal("refused: {} has pairs of pixels, and the width {} is odd", layout, size.width);
    if ((chroma == Chroma::c420 || about.planes() == Planes::fields422) && size.height % 2 != 0)
        throw Refusal("refused: {} has pairs of lines, and the height {} is odd", layout, size.height);
}

}  // namespace

std::vector<RoutineCall> plan_path(const paths::Path& path, Size size)
{
    need_whole_groups(path.from, size);
    std::vector<RoutineCall> calls;
    for (const paths::Step& step : path.steps) {
        need_whole_groups(step.to, size);
        calls.push_back(plan_call(*step.routine, catalog::plain_call(*step.routine, {size.width, size.height})));
    }
    return calls;
}

FrameConverter::FrameConverter(const std::vector<RoutineCall>& calls, size_t input_bytes) : input_(input_bytes)
{
    for (const RoutineCall& call : calls) stages_.push_back(prepare(call));
}

FrameConverter::Stage FrameConverter::prepare(const RoutineCall& call)
{
    Stage stage{call, {}};
    for (const PlannedBuffer& buffer : call.buffers) {
        const catalog::Range whole = buffer.whole();
        const int64_t begin = std::min<int64_t>(whole.begin, 0), end = std::max<int64_t>(whole.end, 0);
        Memory& memory =
            stage.memory.emplace_back(Memory{begin, std::vector<uint8_t>(static_cast<size_t>(end - begin))});
        stage.call.arguments[buffer.argument] = reinterpret_cast<int64_t>(memory.bytes.data() - begin);
    }
    return stage;
}

std::span<uint8_t> FrameConverter::picture_of(const PlannedBuffer& buffer, Memory& memory)
{
    return std::span(memory.bytes)
        .subspan(static_cast<size_t>(buffer.picture.begin - memory.begin),
                 static_cast<size_t>(buffer.picture.end - buffer.picture.begin));
}

std::span<const uint8_t> FrameConverter::run()
{
    std::span<const uint8_t> frame = input_;
    for (Stage& stage : stages_) {
        const std::vector<PlannedBuffer>& buffers = stage.call.buffers;
        // Nothing of a frame depends on the frame before it.
        for (Memory& memory : stage.memory) std::ranges::fill(memory.bytes, uint8_t{0});
        for (size_t i = 0; i < buffers.size(); ++i) {
            if (!buffers[i].in) continue;
            const std::span<uint8_t> picture = picture_of(buffers[i], stage.memory[i]);
            std::ranges::copy(frame.first(picture.size()), picture.begin());
            frame = frame.subspan(picture.size());
        }
        stage.call.routine->call(stage.call.arguments);
        output_.clear();
        for (size_t i = 0; i < buffers.size(); ++i) {
            if (!buffers[i].out) continue;
            const std::span<uint8_t> picture = picture_of(buffers[i], stage.memory[i]);
            output_.insert(output_.end(), picture.begin(), picture.end());
        }
        frame = output_;
    }
    return frame;
}

std::vector<uint8_t> convert_frame(const RoutineCall& call, std::span<const uint8_t> frame)
{
    FrameConverter converter({call}, frame.size());
    std::ranges::copy(frame, converter.input().begin());
    const std::span<const uint8_t> result = converter.run();
    return {result.begin(), result.end()};
}

}  // namespace tintvert::core
