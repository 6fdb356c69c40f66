#include "calls/rle8.h"

#include <algorithm>

#include "calls/routine_call.h"
#include "failure.h"
#include "rle_scan.h"

namespace tintvert::core {

using catalog::Arg;

namespace {

int64_t frame_bytes(bool is_24, const catalog::Arguments& call, const CodedPicture& picture)
{
    return (is_24 ? picture.width * 3 : call[Arg::dstStride]) * picture.height;
}

void need_sound_stream(bool is_24, const catalog::Arguments& call, const CodedPicture& picture)
{
    const auto scan = is_24 ? catalog::scan_rle8_rgb24(picture.stream, call[Arg::height])
                            : catalog::scan_rle8_rgb32(picture.stream, call[Arg::dstStride], call[Arg::height]);
    if (!scan.ends) throw Refusal("refused: the coded stream ends before byte {}", scan.wanted);
    const int64_t room = frame_bytes(is_24, call, picture);
    if (!scan.written.empty() && (scan.written.begin < 0 || scan.written.end > room))
        throw Refusal("refused: the coded stream writes bytes {}-{} of a picture of {} bytes", scan.written.begin,
                      scan.written.end - 1, room);
}

}  // namespace

bool decodes_rle8(const catalog::Routine& routine) { return routine.from->name == "rle8"; }

std::vector<uint8_t> decode_rle8(const catalog::Routine& routine, catalog::Arguments call, const CodedPicture& picture)
{
    const bool is_24 = routine.to->name == "rgb24";
    call[Arg::streamSize] = static_cast<int64_t>(picture.stream.size());
    call[Arg::src] = reinterpret_cast<int64_t>(picture.stream.data());
    need_sound_stream(is_24, call, picture);
    plan_call(routine, call);  // throws for geometry that is refused
    std::vector<uint8_t> palette(picture.palette.size()), frame(static_cast<size_t>(frame_bytes(is_24, call, picture)));
    const size_t entry = is_24 ? 3 : 4;
    for (size_t i = 0; i < 256; ++i) std::copy_n(&picture.palette[i * 4], entry, &palette[i * entry]);
    call[Arg::palette] = reinterpret_cast<int64_t>(palette.data());
    call[Arg::dst] = reinterpret_cast<int64_t>(frame.data());
    routine.call(call);
    return frame;
}

std::vector<uint8_t> one_colour_stream(int64_t width, int64_t height)
{
    std::vector<uint8_t> stream;
    for (int64_t line = 0; line < height; ++line) {
        for (int64_t left = width; left > 0; left -= 254)
            stream.insert(stream.end(), {static_cast<uint8_t>(std::min<int64_t>(left, 254)), 0});
        stream.insert(stream.end(), {0, 0});
    }
    stream.insert(stream.end(), {0, 1});
    return stream;
}

}  // namespace tintvert::core
