#include "rle8.h"

#include <algorithm>

#include "conversion.h"
#include "failure.h"
#include "rle_scan.h"

namespace tintvert::tool {

using catalog::Arg;

namespace {

int64_t frame_bytes(bool is_24, const catalog::Arguments& call, const BmpRle8& picture)
{
    return (is_24 ? picture.width * 3 : call[Arg::dstStride]) * picture.height;
}

void need_sound_stream(bool is_24, const catalog::Arguments& call, const BmpRle8& picture)
{
    const auto scan = is_24 ? catalog::scan_rle8_rgb24(picture.stream, call[Arg::height])
                            : catalog::scan_rle8_rgb32(picture.stream, call[Arg::dstStride], call[Arg::height]);
    if (!scan.ends) throw Failure(Exit::unsafe, "refused: the coded stream runs out at byte {}", scan.wanted);
    const int64_t room = frame_bytes(is_24, call, picture);
    if (!scan.written.empty() && (scan.written.begin < 0 || scan.written.end > room))
        throw Failure(Exit::unsafe, "refused: the coded stream writes bytes {} to {} of a picture of {}",
                      scan.written.begin, scan.written.end, room);
}

}  // namespace

std::vector<uint8_t> decode_rle8(const catalog::Routine& routine, catalog::Arguments call, const BmpRle8& picture)
{
    const bool is_24 = routine.to->name == "rgb24";
    call[Arg::streamSize] = static_cast<int64_t>(picture.stream.size());
    call[Arg::src] = reinterpret_cast<int64_t>(picture.stream.data());
    need_sound_stream(is_24, call, picture);
    Conversion conversion(routine, call);
    const auto palette = conversion.bytes(Arg::palette, 1024);
    const size_t entry = is_24 ? 3 : 4;
    for (size_t i = 0; i < 256; ++i) std::copy_n(&picture.palette[i * 4], entry, &palette[i * entry]);
    std::ranges::copy(picture.stream, conversion.bytes(Arg::src, call[Arg::streamSize]).begin());
    conversion.run();
    const auto frames = conversion.outputs();
    if (frames.empty())  // the stream ends before it draws anything
        return std::vector<uint8_t>(static_cast<size_t>(frame_bytes(is_24, call, picture)));
    return {frames[0].begin(), frames[0].end()};
}

}  // namespace tintvert::tool
