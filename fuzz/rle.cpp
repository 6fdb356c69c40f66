// Run-length coded streams through both decoders, with a stream, a colour table and a frame that end where the scan
// says that the decoder's do.
//
//     height   distance between lines   stream
#include <algorithm>
#include <cstring>

#include "block.h"
#include "checked_call.h"
#include "input.h"
#include "must.h"
#include "rle_scan.h"
#include "routine_id.h"

namespace tintvert::fuzz {
namespace {

using catalog::Arg;
using catalog::Range;
using catalog::RoutineId;

constexpr int64_t most_bytes = 1 << 20;

Block decoded(RoutineId id, const catalog::Arguments& numbers, const catalog::RleScan& scan,
              std::span<const uint8_t> stream, uint8_t ground)
{
    std::vector<uint8_t> colours(1024);
    for (size_t i = 0; i < colours.size(); ++i) colours[i] = static_cast<uint8_t>(i * 167);
    const Block src(scan.stream, 0, stream), palette(scan.palette, 0, colours);
    Block dst(scan.written, 0, std::span(&ground, 1));
    Buffers buffers;
    buffers[static_cast<size_t>(Arg::src)] = src.buffer();
    buffers[static_cast<size_t>(Arg::palette)] = palette.buffer();
    buffers[static_cast<size_t>(Arg::dst)] = dst.buffer();
    const Answer answer = call_checked(static_cast<size_t>(id), numbers, buffers, {});
    must(answer.error.ok(), "a stream that ends is decoded", answer.error.message().c_str());
    must(src.is_unchanged_beside({}) && palette.is_unchanged_beside({}), "the stream and the colours are read only");
    return dst;
}

void run(RoutineId id, const catalog::Arguments& numbers, const catalog::RleScan& scan, std::span<const uint8_t> stream)
{
    must(scan.stream.end <= static_cast<int64_t>(stream.size()), "a scan stays in its stream");
    if (!scan.ends) {
        must(scan.wanted >= stream.size(), "a truncated stream needs a byte past its end");
        return;
    }
    if (scan.written.end - scan.written.begin > most_bytes) return;
    const Block on_black = decoded(id, numbers, scan, stream, 0), on_white = decoded(id, numbers, scan, stream, 255);
    if (scan.written.empty()) return;
    const auto last = scan.written.end - scan.written.begin - 1;
    must(on_black.bytes()[0] == on_white.bytes()[0] && on_black.bytes()[last] == on_white.bytes()[last],
         "the first and the last byte of a scan's range are written");
}

}  // namespace
}  // namespace tintvert::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace tintvert;
    fuzz::Input input(data, size);
    catalog::Arguments numbers;
    numbers[catalog::Arg::height] = input.byte() & 63;
    numbers[catalog::Arg::dstStride] = static_cast<int16_t>(input.little_endian(2));
    const std::vector<uint8_t> stream(input.rest().begin(), input.rest().end());
    fuzz::run(catalog::RoutineId::tntvt_rle8_rgb32, numbers,
              catalog::scan_rle8_rgb32(stream, numbers[catalog::Arg::dstStride], numbers[catalog::Arg::height]),
              stream);
    if (numbers[catalog::Arg::height] > 0)
        fuzz::run(catalog::RoutineId::tntvt_rle8_rgb24, numbers,
                  catalog::scan_rle8_rgb24(stream, numbers[catalog::Arg::height]), stream);
    return 0;
}
