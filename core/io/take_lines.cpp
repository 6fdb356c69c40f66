// Lines of a file to lines in memory.
#include <algorithm>

#include "failure.h"
#include "frame/memory.h"
#include "io/sources.h"

namespace tintvert::core {
namespace {

constexpr int64_t samples_a_group = 12, group_bytes = 16;

// Sample n of a run of v210 is in word n / 3, three samples of ten bits to a word.
uint8_t* word_of(uint8_t* run, int64_t sample) { return run + sample / 3 * 4; }

// Every line of the file begins with a group; in memory the pairs of all lines follow each other.
void join_v210_lines(const FrameForm& form, const uint8_t* file, int64_t stride, std::span<uint8_t> frame)
{
    std::ranges::fill(frame, uint8_t{0});
    int64_t to = 0;
    for (int64_t y = 0; y < form.height; ++y) {
        const uint8_t* line = file + y * stride;
        for (int64_t from = 0; from < form.width * 2; ++from, ++to) {
            const uint32_t sample = load<uint32_t>(line + from / 3 * 4) >> (10 * (from % 3)) & 0x3FF;
            uint8_t* const word = word_of(frame.data(), to);
            store(word, load<uint32_t>(word) | sample << (10 * (to % 3)));
        }
    }
}

}  // namespace

void need_lines(const FrameForm& form)
{
    const auto lines = static_cast<int64_t>(form.bytes());
    const int64_t run = (form.width * form.height * 2 + samples_a_group - 1) / samples_a_group * group_bytes;
    if (form.parts.size() != 1 || lines != (form.unbroken ? run : form.stride * form.height))
        throw Failure(Exit::usage, "this frame of {} has no lines to take at another stride", form.layout);
}

void take_lines(const FrameForm& form, const uint8_t* file, int64_t stride, std::span<uint8_t> frame)
{
    if (form.unbroken) return join_v210_lines(form, file, stride, frame);
    const int64_t both = std::min(stride, form.stride);
    for (int64_t y = 0; y < form.height; ++y) {
        uint8_t* const line = frame.data() + y * form.stride;
        std::copy_n(file + y * stride, both, line);
        std::fill(line + both, line + form.stride, uint8_t{0});
    }
}

}  // namespace tintvert::core
