// Random calls of the field routines, each prepared twice: for the library and for its reference implementation.
#pragma once

#include <tintvert/field.h>

#include <functional>
#include <sstream>
#include <string>

#include "reference/field/field.h"
#include "support/random.h"

namespace tintvert::test {

// Either takes the address of offset 0 of a memory that reaches `field_call_reach` bytes to both sides.
struct FieldCall {
    std::string text;
    std::function<int(uint8_t*)> library, expected;
};

constexpr int64_t field_call_reach = 4096;

namespace field_calls {

// Where a second buffer is beside `first`: on it, over it, or away from it.
inline int64_t beside(Random& random, int64_t first)
{
    switch (random.between(0, 2)) {
        case 0:
            return first;
        case 1:
            return first + random.between(-64, 64);
        default:
            return 1700 + random.between(0, 15);
    }
}

template <class... Numbers>
std::string text_of(const char* routine, Numbers... numbers)
{
    std::ostringstream text;
    text << routine;
    ((text << ' ' << +numbers), ...);
    return text.str();
}

// Odd numbers from nowhere for the arguments that no routine reads.
inline unsigned int unread(Random& random) { return static_cast<unsigned int>(random.next()); }
inline int number(Random& random, long low, long high) { return static_cast<int>(random.between(low, high)); }
inline unsigned int count(Random& random, long low, long high)
{
    return static_cast<unsigned int>(random.between(low, high));
}

inline FieldCall change_field(Random& random, bool yuv)
{
    const unsigned int mode = random.between(0, 15) == 0 ? unread(random) | 16 : count(random, 0, 15);
    const unsigned int dst_stride = count(random, 0, 48);
    unsigned int src_stride = random.between(0, 3) == 0 ? 0 : count(random, 0, 48), height = count(random, 0, 12);
    unsigned int width = count(random, 0, 16) | (random.between(0, 3) == 0 ? 0xC0000000 : 0);
    if (mode == 3) src_stride = dst_stride == 0 ? 0 : src_stride % (dst_stride + 1), height += height < 2 ? 2 : 0;
    if (mode >= 5 && mode <= 8) height &= ~1u;
    const bool null = random.between(0, 3) == 0 && (mode < 9 || mode > 12);
    const int64_t dst = random.between(0, 15), src = beside(random, dst);
    const auto with = [=](auto* routine) {
        return [=](uint8_t* memory) {
            return routine(memory + dst, mode, width, height, dst_stride, null ? nullptr : memory + src, src_stride);
        };
    };
    return {text_of(yuv ? "tntvt_change_field_yuv" : "tntvt_change_field_rgb", dst, mode, width, height, dst_stride,
                    null, src, src_stride),
            with(yuv ? tntvt_change_field_yuv : tntvt_change_field_rgb),
            with(yuv ? reference::change_field_yuv : reference::change_field_rgb)};
}
inline FieldCall change_field_rgb(Random& random) { return change_field(random, false); }
inline FieldCall change_field_yuv(Random& random) { return change_field(random, true); }

inline FieldCall deinterlace_rgb(Random& random)
{
    const int modes[] = {2, 16, 17, 0, 1, 3, -2, 18}, squares[] = {0, 1, 74, 75, 46340, 46341, 65536, -46341};
    const int mode = modes[random.between(0, 7)];
    const int threshold = random.between(0, 3) == 0 ? squares[random.between(0, 7)] : number(random, -300, 300);
    const int softness = random.between(0, 1) == 0 ? squares[random.between(0, 7)] : number(random, -100, 100);
    const unsigned int width = count(random, 0, 6), height = count(random, 0, 9), stride = count(random, 0, 60);
    const long eighth = static_cast<long>(random.next());
    const int64_t dst = random.between(0, 15), src = beside(random, dst);
    const auto with = [=](auto* routine) {
        return [=](uint8_t* memory) {
            return routine(memory + dst, memory + src, width, height, stride, threshold, softness, eighth, mode);
        };
    };
    return {text_of("tntvt_deinterlace_rgb", dst, src, width, height, stride, threshold, softness, mode),
            with(tntvt_deinterlace_rgb), with(reference::deinterlace_rgb)};
}

inline FieldCall flip_vert(Random& random)
{
    const int64_t dst = random.between(0, 15), src = beside(random, dst);
    const int height = number(random, dst == src ? 0 : -2, 12);
    const unsigned int third = unread(random), stride = count(random, 0, 60);
    const auto with = [=](auto* routine) {
        return [=](uint8_t* memory) { return routine(memory + dst, memory + src, third, height, stride), 0; };
    };
    return {text_of("tntvt_flip_vert", dst, src, height, stride), with(tntvt_flip_vert), with(reference::flip_vert)};
}

inline FieldCall flip_vert_flags(Random& random)
{
    const int64_t dst = random.between(0, 15), src = beside(random, dst);
    const int height = number(random, dst == src ? 0 : -2, 12);
    const unsigned int third = unread(random), fourth = unread(random);
    const unsigned int dst_stride = count(random, 0, 60), src_stride = count(random, 0, 60);
    const unsigned int one_bit = 0x1000000u << random.between(0, 3), other_bits = unread(random) & 0xF0FFFFFF;
    const unsigned int flags = (random.between(0, 3) == 0 ? unread(random) : one_bit) | other_bits;
    const int keep_margins = number(random, -1, 1);
    const auto with = [=](auto* routine) {
        return [=](uint8_t* memory) {
            routine(memory + dst, memory + src, third, fourth, height, dst_stride, src_stride, flags, keep_margins);
            return 0;
        };
    };
    return {text_of("tntvt_flip_vert_flags", dst, src, height, dst_stride, src_stride, flags, keep_margins),
            with(tntvt_flip_vert_flags), with(reference::flip_vert_flags)};
}

inline FieldCall flip_horz(Random& random)
{
    const int64_t dst = random.between(0, 15), src = beside(random, dst);
    const int width = number(random, dst == src ? 0 : -2, 20);
    const int height = number(random, -2, 9);
    const unsigned int stride =
        random.between(0, 2) == 0 ? static_cast<unsigned int>(width * 4 & 0xFF) : count(random, 0, 100);
    const auto with = [=](auto* routine) {
        return [=](uint8_t* memory) { return routine(memory + dst, memory + src, width, height, stride), 0; };
    };
    return {text_of("tntvt_flip_horz", dst, src, width, height, stride), with(tntvt_flip_horz),
            with(reference::flip_horz)};
}

inline FieldCall mix_or_separate(Random& random, bool mixing)
{
    const int64_t frame = random.between(0, 15), first = beside(random, frame), second = beside(random, first);
    const long frame_stride = random.between(-60, 60), field_stride = random.between(-60, 60);
    const unsigned int width = count(random, 0, 12) | (random.between(0, 3) == 0 ? 0xC0000000 : 0);
    const unsigned int height = count(random, 0, 12);
    const auto with = [=](auto* mix, auto* separate) {
        return [=](uint8_t* memory) {
            if (mixing)
                mix(memory + frame, frame_stride, memory + first, memory + second, field_stride, width, height);
            else
                separate(memory + first, memory + second, field_stride, memory + frame, frame_stride, width, height);
            return 0;
        };
    };
    return {text_of(mixing ? "tntvt_fld_sep_to_mix32" : "tntvt_fld_mix_to_sep32", frame, frame_stride, first, second,
                    field_stride, width, height),
            with(tntvt_fld_sep_to_mix32, tntvt_fld_mix_to_sep32),
            with(reference::fld_sep_to_mix32, reference::fld_mix_to_sep32)};
}
inline FieldCall mix(Random& random) { return mix_or_separate(random, true); }
inline FieldCall separate(Random& random) { return mix_or_separate(random, false); }

// Byte counts below 0 are left out: cut to 32 bits they are larger than any memory here.
inline FieldCall copy_interleaved(Random& random)
{
    const int64_t dst = random.between(0, 15), src = beside(random, dst);
    long dst_stride = random.between(-60, 60), src_stride = random.between(-60, 60), height = random.between(-12, 12);
    if (random.between(0, 2) == 0) src_stride = dst_stride;
    if (src_stride == dst_stride) {
        if (dst_stride * height < 0) height = -height;
        height += random.between(-1, 1) * 0x100000000;  // has no part in the product
    } else if (height > 0 && (dst_stride < 0 || src_stride < 0)) {
        height = 0;
    }
    const long fifth = static_cast<long>(random.next());
    const auto with = [=](auto* routine) {
        return [=](uint8_t* memory) {
            return routine(memory + dst, dst_stride, memory + src, src_stride, fifth, height), 0;
        };
    };
    return {text_of("tntvt_copy_interleaved", dst, dst_stride, src, src_stride, height), with(tntvt_copy_interleaved),
            with(reference::copy_interleaved)};
}

inline FieldCall copy_dissolve(Random& random)
{
    const unsigned int codes[] = {0x79757632, 0x30313276, 0x30313272, 0x41524742, 0x41524741};
    const unsigned int fourcc = codes[random.between(0, 4)];
    const long stride = random.between(-100, 100), width = random.between(-2, 24), height = random.between(-2, 9);
    const int64_t dst = random.between(0, 15), src = beside(random, dst);
    const auto with = [=](auto* routine) {
        return [=](uint8_t* memory) { return routine(memory + dst, memory + src, stride, width, height, fourcc); };
    };
    return {text_of("tntvt_copy_dissolve", dst, src, stride, width, height, fourcc), with(tntvt_copy_dissolve),
            with(reference::copy_dissolve)};
}

}  // namespace field_calls

using MakeFieldCall = FieldCall (*)(Random&);
constexpr MakeFieldCall every_field_call[] = {field_calls::change_field_rgb,
                                              field_calls::change_field_yuv,
                                              field_calls::deinterlace_rgb,
                                              field_calls::flip_vert,
                                              field_calls::flip_vert_flags,
                                              field_calls::flip_horz,
                                              field_calls::mix,
                                              field_calls::separate,
                                              field_calls::copy_interleaved,
                                              field_calls::copy_dissolve};

}  // namespace tintvert::test
