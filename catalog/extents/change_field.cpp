#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

// Lines of both frames by number, at 32-bit pitches whose doubles wrap.
struct Fields {
    int64_t dst_pitch, src_pitch, dst_pair, src_pair, pairs;
    bool one_frame;

    explicit Fields(const Arguments& call)
    {
        const auto dst_stride = call.as<uint32_t>(Arg::dstStride);
        const auto given = call.as<uint32_t>(Arg::srcStride);
        const uint32_t src_stride = given == 0 ? dst_stride : given;
        dst_pitch = dst_stride;
        src_pitch = src_stride;
        dst_pair = dst_stride * 2;
        src_pair = src_stride * 2;
        pairs = call.as<uint32_t>(Arg::height) / 2;
        one_frame = in_place(call);
    }

    int64_t dst_line(int64_t line) const { return line / 2 * dst_pair + line % 2 * dst_pitch; }
    int64_t src_line(int64_t line) const { return line / 2 * src_pair + line % 2 * src_pitch; }

    // One field of a frame: lines first, first + 2 ...
    Range dst_field(int64_t first) const { return lines(dst_line(first), dst_pair, pairs, src_pitch); }
    Range src_field(int64_t first) const { return lines(src_line(first), src_pair, pairs, src_pitch); }
};

// What single copies and averages of lines read and write. A copy that is left out because both lines are one
// is left out in all pairs of lines or in one, so that two pairs at either end tell how far all of them reach.
struct Lines {
    const Fields& fields;
    Range read, written;

    void move(int64_t dst, int64_t src, int64_t bytes)
    {
        if (bytes == 0) return;
        read = join(read, {src, src + bytes});
        written = join(written, {dst, dst + bytes});
    }
    void copy_unless_same(int64_t dst_line, int64_t src_line)
    {
        const int64_t dst = fields.dst_line(dst_line), src = fields.src_line(src_line);
        if (!fields.one_frame || dst != src) move(dst, src, fields.src_pitch);
    }
    void average(int64_t dst_line, int64_t one, int64_t other)
    {
        const int64_t bytes = fields.src_pitch / 4 * 4;
        move(fields.dst_line(dst_line), fields.src_line(one), bytes);
        move(fields.dst_line(dst_line), fields.src_line(other), bytes);
    }
};

Extents within_dst(Range read, Range written)
{
    Extents result;
    result.add(Arg::dst, read, written);
    return result;
}

Extents repeat(const Arguments& call, int64_t field)
{
    const Fields fields(call);
    Lines touched{fields, {}, {}};
    outermost(fields.pairs, 2, [&](int64_t k) {
        touched.copy_unless_same(2 * k, 2 * k + field);
        touched.copy_unless_same(2 * k + 1, 2 * k + field);
    });
    return two_frames_or_one(call, touched.read, touched.written);
}

Extents interpolate_first(const Arguments& call)
{
    const Fields fields(call);
    Lines touched{fields, {}, {}};
    outermost(fields.pairs, 2, [&](int64_t k) {
        touched.copy_unless_same(2 * k, 2 * k);
        touched.average(2 * k + 1, 2 * k, k + 1 < fields.pairs ? 2 * k + 2 : 2 * k);
    });
    return two_frames_or_one(call, touched.read, touched.written);
}

Extents interpolate_second(const Arguments& call)
{
    const Fields fields(call);
    Lines touched{fields, {}, {}};
    if (!fields.one_frame || fields.src_pitch != fields.dst_pitch) touched.move(0, fields.src_pitch, fields.src_pitch);
    outermost(fields.pairs, 2, [&](int64_t k) {
        touched.copy_unless_same(2 * k + 1, 2 * k + 1);
        if (k + 1 < fields.pairs) touched.average(2 * k + 2, 2 * k + 1, 2 * k + 3);
    });
    return two_frames_or_one(call, touched.read, touched.written);
}

Extents blend(const Arguments& call)
{
    const Fields fields(call);
    const auto height = call.as<uint32_t>(Arg::height);
    const int64_t bytes = call.as<uint32_t>(Arg::width) * 4;
    if (height < 2) return {};
    const Range line = lines(0, fields.dst_pitch, height, bytes);
    return within_dst(join(line, lines(0, fields.src_pitch, height, bytes)), line);
}

Extents split(const Arguments& call, int64_t field_on_top, int64_t bytes)
{
    const Fields fields(call);
    if (call[Arg::src] == 0)
        return within_dst(fields.src_field(field_on_top), lines(0, fields.dst_pitch, fields.pairs, fields.src_pitch));
    const int64_t bottom = static_cast<uint32_t>(fields.dst_pitch * fields.pairs);
    return two_frames_or_one(
        call,
        join(lines(0, fields.src_pair, fields.pairs, bytes),
             lines(fields.src_pitch, fields.src_pair, fields.pairs, bytes)),
        join(lines(0, fields.dst_pitch, fields.pairs, bytes), lines(bottom, fields.dst_pitch, fields.pairs, bytes)));
}

Extents copy(const Arguments& call, int64_t from, int64_t to)
{
    const Fields fields(call);
    if (call[Arg::src] == 0) return {};
    return two_frames_or_one(call, fields.src_field(from), fields.dst_field(to));
}

Extents by_mode(const Arguments& call, uint32_t mode)
{
    const Fields fields(call);
    const Range exchanged = join(fields.dst_field(0), fields.src_field(1));
    switch (mode) {
        case 1:
            return within_dst(fields.src_field(0), fields.dst_field(1));
        case 2:
            return within_dst(fields.src_field(1), fields.dst_field(0));
        case 3:
            return within_dst(exchanged, exchanged);
        case 4:
            return blend(call);
        case 5:
            return copy(call, 1, 1);
        case 6:
            return copy(call, 0, 1);
        case 7:
            return copy(call, 1, 0);
        case 8:
            return copy(call, 0, 0);
        case 9:
            return repeat(call, 0);
        case 10:
            return repeat(call, 1);
        case 11:
            return interpolate_first(call);
        case 12:
            return interpolate_second(call);
        case 13:
            return split(call, 0, fields.dst_pitch);
        case 14:
            return split(call, 1, fields.src_pitch);
        default:
            return {};
    }
}

}  // namespace

// A null `src` is what the modes 5 to 8, 13 and 14 make of it; in modes 9 to 12 it is a buffer still to be
// supplied. The heights that mode 3 and modes 5 to 8 never end with have no extents.
Extents change_field_rgb(const Arguments& call) { return by_mode(call, call.as<uint32_t>(Arg::mode)); }

Extents change_field_yuv(const Arguments& call)
{
    const auto mode = call.as<uint32_t>(Arg::mode);
    return by_mode(call, mode == 4 ? 1 : mode == 11 ? 9 : mode == 12 ? 10 : mode);
}

}  // namespace tintvert::catalog::extents
