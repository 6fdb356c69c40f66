#include "reference/rgb/rgb_16bit.h"

namespace tintvert::reference {

namespace {

bool big_endian(Depth depth) { return depth == Depth::big_endian_to_16 || depth == Depth::big_endian_to_8; }
bool deep_source(Depth depth) { return depth != Depth::from_8_to_16; }
bool deep_result(Depth depth) { return depth == Depth::from_8_to_16 || depth == Depth::big_endian_to_16; }

uint64_t channel(Depth depth, const uint8_t* src, int number)
{
    if (!deep_source(depth)) return src[number];
    const uint8_t first = src[2 * number], second = src[2 * number + 1];
    return big_endian(depth) ? first * 256u + second : second * 256u + first;
}

// Between 8 and 16 bits: times or divided by 2 to the power of `bits` - 8, modulo 32.
uint64_t rescaled(Depth depth, uint64_t value, uint32_t bits)
{
    const uint32_t power = (bits + 24) % 32;
    if (depth == Depth::from_8_to_16) return value << power;
    if (depth == Depth::big_endian_to_16) return value;
    return value >> power;
}

void put(Depth depth, uint8_t* dst, int number, uint64_t value)
{
    if (!deep_result(depth)) {
        dst[number] = static_cast<uint8_t>(value % 256);
        return;
    }
    dst[2 * number] = static_cast<uint8_t>(value % 256);
    dst[2 * number + 1] = static_cast<uint8_t>(value / 256 % 256);
}

// Line counts and places by the sign of the height. A magnitude that is too large for a `long` is no work.
long line_count(Height rule, long height)
{
    if (rule == Height::positive_only || height >= 0)
        return rule == Height::one_line_off ? static_cast<long>(static_cast<uint32_t>(height)) : height;
    const uint64_t magnitude = 0 - static_cast<uint64_t>(height);
    return rule == Height::one_line_off ? static_cast<long>(static_cast<uint32_t>(magnitude))
                                        : static_cast<long>(magnitude);
}

}  // namespace

PixelBytes pixel_bytes(const DeepForm& form)
{
    return {form.dst_channels * (deep_result(form.depth) ? 2 : 1),
            form.src_channels * (deep_source(form.depth) ? 2 : 1)};
}

void deep_frame(const DeepForm& form, const StridedFrame& frame, uint32_t bits, uint32_t order)
{
    if (big_endian(form.depth) && order > 3) return;
    const std::string_view picks = form.picks[big_endian(form.depth) ? order : 0];
    const long lines = line_count(form.height, frame.height);

    const auto pixel = [&](uint8_t* dst, const uint8_t* src) {
        uint64_t read[4] = {};
        for (int i = 0; i < form.src_channels; ++i) read[i] = channel(form.depth, src, i);
        int number = 0;
        for (const char pick : picks)
            put(form.depth, dst, number++, pick == 'z' ? 0 : rescaled(form.depth, read[pick - '0'], bits));
    };
    const auto place = [&](long r) {
        if (frame.height > 0 || form.height == Height::positive_only) return r;
        return form.height == Height::exact_flip ? lines + 1 - r : lines - r;
    };
    backward(frame, lines, pixel_bytes(form), pixel, place);
}

}  // namespace tintvert::reference
