// A file as a capture, pcap or RFC 4571, down to frames.
//
//     half the width   height   scan   file
#include "capture/packets/source.h"
#include "capture/walker.h"
#include "failure.h"
#include "input.h"
#include "must.h"

namespace {

using namespace tintvert::core;
using tintvert::fuzz::must;

void run(tintvert::fuzz::Input& input)
{
    capture::WalkerOptions options;
    options.size = {(input.byte() % 64 + 1) * 2, input.byte() % 16 + 1};
    const uint8_t scan = input.byte();
    options.scan = static_cast<capture::Scan>(scan % 3);
    if (scan & 0x80) options.port = uint16_t{5004};
    const auto bytes = input.rest();
    if (bytes.empty()) return;
    std::FILE* const file = fmemopen(const_cast<uint8_t*>(bytes.data()), bytes.size(), "rb");
    must(file != nullptr, "there is a file in memory");
    capture::Input packets(file, "the case");
    const auto source = capture::open_source(packets);
    uint64_t frames = 0;
    capture::Walker walker(options, [&](const capture::Frame& frame) {
        ++frames;
        must(frame.is_whole() == (frame.missing_pixels() == 0), "a whole frame misses nothing");
        must(frame.whole_lines() <= frame.size().height, "there are no more lines than the frame has");
    });
    for (capture::Datagram datagram; source->next(datagram);) {
        const std::vector<uint8_t> alone(datagram.bytes.begin(), datagram.bytes.end());
        datagram.bytes = alone;
        walker.take(datagram);
    }
    walker.finish();
    must(walker.packets().taken <= walker.packets().read, "no packet is taken twice");
    must(frames <= walker.segments().taken + walker.segments().all_refused(), "a frame has a segment");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    tintvert::fuzz::Input input(data, size);
    try {
        run(input);
    } catch (const Failure&) {
    }
    return 0;
}
