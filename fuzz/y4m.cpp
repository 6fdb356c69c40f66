// A file as a Y4M clip: its header, and its frames read and skipped by turns.
#include "io/y4m.h"

#include "failure.h"
#include "io/sources.h"
#include "memory_file.h"
#include "must.h"

namespace {

using namespace tintvert::core;

void run(std::span<const uint8_t> bytes)
{
    const auto clip = y4m_source(InputFile(tintvert::fuzz::memory_file(bytes)));
    const auto [width, height] = clip->size();
    if (width * height > 1 << 20) return;
    FrameForm form;
    form.layout = clip->layout();
    form.width = width;
    form.height = height;
    std::vector<uint8_t> frame(
        static_cast<size_t>(form.layout == "i420" ? width * height * 3 / 2 : width * height * 2));
    const int64_t expected = clip->expect(form, 0);
    int64_t there = 0;
    while (there % 3 == 1 ? clip->skip() : clip->read(frame)) ++there;
    tintvert::fuzz::must(there == expected, "there are as many frames as expected");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    try {
        run({data, size});
    } catch (const Failure&) {
    }
    return 0;
}
