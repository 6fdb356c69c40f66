#include "paths/pipeline.h"

#ifdef TINTVERT_TBB

#include <tbb/concurrent_queue.h>
#include <tbb/global_control.h>
#include <tbb/parallel_pipeline.h>

namespace tintvert::core {
namespace {

struct Frame {
    std::unique_ptr<FrameConverter> converter;
    std::span<const uint8_t> result;
};

}  // namespace

int64_t run_pipeline(const Pipeline& pipeline, int jobs)
{
    const tbb::global_control threads(tbb::global_control::max_allowed_parallelism, static_cast<size_t>(jobs));
    tbb::concurrent_queue<std::shared_ptr<Frame>> idle;
    int64_t count = 0;
    using FramePointer = std::shared_ptr<Frame>;
    const auto read = [&](tbb::flow_control& control) -> FramePointer {
        FramePointer frame;
        if (!idle.try_pop(frame)) frame = std::make_shared<Frame>(Frame{pipeline.make_converter(), {}});
        if (!pipeline.read(frame->converter->input())) control.stop();
        return frame;
    };
    const auto convert = [](FramePointer frame) {
        frame->result = frame->converter->run();
        return frame;
    };
    const auto write = [&](const FramePointer& frame) {
        pipeline.write(frame->result);
        ++count;
        idle.push(frame);
    };
    using tbb::filter_mode;
    tbb::parallel_pipeline(static_cast<size_t>(jobs) * 2,
                           tbb::make_filter<void, FramePointer>(filter_mode::serial_in_order, read) &
                               tbb::make_filter<FramePointer, FramePointer>(filter_mode::parallel, convert) &
                               tbb::make_filter<FramePointer, void>(filter_mode::serial_in_order, write));
    return count;
}

}  // namespace tintvert::core

#else

namespace tintvert::core {

int64_t run_pipeline(const Pipeline& pipeline, int)
{
    const std::unique_ptr<FrameConverter> converter = pipeline.make_converter();
    int64_t count = 0;
    for (; pipeline.read(converter->input()); ++count) pipeline.write(converter->run());
    return count;
}

}  // namespace tintvert::core

#endif
