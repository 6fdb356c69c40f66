// The field modes that move whole lines and know nothing of what is in them.
#include <utility>

#include "field/change_field.h"
#include "frame/failure.h"
#include "frame/imports.h"

namespace tintvert {

void copy_line_unless_same(uint8_t* dst, const uint8_t* src, uint32_t bytes)
{
    if (dst != src) CopyMemoryFast(dst, src, bytes);
}

// QUIRK (keeps_source_pitch_on_dst): the modes without a second frame take their source lines from
// `dst` at the pitch of the source. Here, in flip_fields and in blend_lines.
int double_field(const Change& change, Field from, Field to)
{
    LinePair dst(change.dst, change.dst_stride), src(change.dst, change.src_stride);
    for (uint32_t k = 0; k < change.pairs(); ++k, dst.next(), src.next())
        CopyMemoryFast(dst.*to, src.*from, change.src_stride);
    return 0;
}

// QUIRK (keeps_scratch_of_destination_pitch): the scratch line has `dstStride` bytes and each copy
// moves `srcStride`, which callers keep no larger.
// QUIRK (keeps_flip_without_guard): the count is tested after each round, so a height of 0 or 1 makes
// 2^32 rounds.
// QUIRK (keeps_success_after_failure): a copy that throws ends the loop, and the status is 0.
int flip_fields(const Change& change)
{
    void* scratch = ZKAlloc(change.dst_stride);
    LinePair dst(change.dst, change.dst_stride), src(change.dst, change.src_stride);
    uint32_t rounds = change.pairs();
    do {
        try {
            CopyMemoryFast(scratch, src.odd, change.src_stride);
            CopyMemoryFast(src.odd, dst.even, change.src_stride);
            CopyMemoryFast(dst.even, scratch, change.src_stride);
        } catch (...) {
            report_failure("exception-tntvt_change_field_rgb(FieldFLip) ");
            break;
        }
        dst.next();
        src.next();
    } while (--rounds != 0);
    ZKFree(scratch);
    return 0;
}

// QUIRK (keeps_even_heights_only): two lines a round until the height is exactly 0, which an odd
// height never is.
int copy_field(const Change& change, Field from, Field to)
{
    if (change.src == nullptr) return -2;
    LinePair dst(change.dst, change.dst_stride), src(change.src, change.src_stride);
    for (uint32_t lines = change.height; lines != 0; lines -= 2, dst.next(), src.next())
        CopyMemoryFast(dst.*to, src.*from, change.src_stride);
    return 0;
}

int repeat_lines(const Change& change, Field field)
{
    LinePair dst(change.dst, change.dst_stride), src(change.src, change.src_stride);
    for (uint32_t k = 0; k < change.pairs(); ++k, dst.next(), src.next()) {
        copy_line_unless_same(dst.even, src.*field, change.src_stride);
        copy_line_unless_same(dst.odd, src.*field, change.src_stride);
    }
    return 0;
}

namespace {

// QUIRK (keeps_one_field_in_place): the other field is not kept and the bottom half stays as it was.
// The first line of the first field is copied onto itself.
int pack_field(const Change& change, Field field)
{
    uint8_t* dst = change.dst;
    LinePair src(change.dst, change.src_stride);
    for (uint32_t k = 0; k < change.pairs(); ++k, dst = advance(dst, change.dst_stride), src.next())
        CopyMemoryFast(dst, src.*field, change.src_stride);
    return 0;
}

}  // namespace

int split_fields(const Change& change, Field on_top, uint32_t line_bytes)
{
    if (change.src == nullptr) return pack_field(change, on_top);
    uint8_t* first = change.dst;
    uint8_t* second = line_at(change.dst, change.pairs(), change.dst_stride);
    if (on_top == second_field) std::swap(first, second);
    LinePair src(change.src, change.src_stride);
    for (uint32_t k = 0; k < change.pairs(); ++k, src.next()) {
        CopyMemoryFast(first, src.even, line_bytes);
        CopyMemoryFast(second, src.odd, line_bytes);
        first = advance(first, change.dst_stride);
        second = advance(second, change.dst_stride);
    }
    return 0;
}

}  // namespace tintvert
