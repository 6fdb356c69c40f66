#include "io/pictures/rgb_layouts.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "frame/memory.h"

namespace tintvert::core {
namespace {

// Where the channels are in a pixel: places of red, green, blue and alpha, counted in samples; -1 for none.
struct Channels {
    std::string_view layout;
    int sample_bytes, samples, red, green, blue, alpha;
};

constexpr Channels channels[] = {
    {"rgb32", 1, 4, 2, 1, 0, 3},     {"rgba32", 1, 4, 2, 1, 0, 3},    {"rgba", 1, 4, 2, 1, 0, 3},
    {"BGRA", 1, 4, 2, 1, 0, -1},     {"ARGB", 1, 4, 1, 2, 3, -1},     {"bgra32", 1, 4, 0, 1, 2, 3},
    {"bgr32", 1, 4, 0, 1, 2, 3},     {"abgr32", 1, 4, 1, 2, 3, 0},    {"argb32", 1, 4, 1, 0, 3, 2},
    {"macargb32", 1, 4, 1, 2, 3, 0}, {"rgb24", 1, 3, 2, 1, 0, -1},    {"rgba24", 1, 3, 2, 1, 0, -1},
    {"bgr24", 1, 3, 0, 1, 2, -1},    {"macbgr24", 1, 3, 0, 1, 2, -1}, {"alphay", 1, 1, 0, 0, 0, -1},
    {"alpha", 1, 1, 0, 0, 0, -1},    {"rgb48", 2, 3, 2, 1, 0, -1},    {"bgr48", 2, 3, 0, 1, 2, -1},
    {"rgb48_12", 2, 3, 0, 1, 2, -1}, {"rgba64", 2, 4, 2, 1, 0, 3},    {"bgra64", 2, 4, 0, 1, 2, 3},
    {"argb64", 2, 4, 3, 2, 1, 0},    {"abgr64", 2, 4, 1, 2, 3, 0},    {"argb64be", 2, 4, 3, 2, 1, 0},
};

const Channels* channels_of(std::string_view layout)
{
    const auto found = std::ranges::find(channels, layout, &Channels::layout);
    return found == std::end(channels) ? nullptr : found;
}

struct Pixel {
    unsigned red, green, blue, alpha;  // 16 bits
};

Pixel get(const Picture& picture, long x, long y)
{
    const uint8_t* at = picture.pixel(x, y);
    const auto sample = [&](long n) -> unsigned {
        return picture.depth == Picture::bits16 ? load<uint16_t>(at + n * 2) : at[n] * 257u;
    };
    return {sample(0), sample(1), sample(2), sample(3)};
}

void put(Picture* picture, long x, long y, const Pixel& pixel)
{
    uint8_t* at = picture->pixel(x, y);
    const unsigned samples[] = {pixel.red, pixel.green, pixel.blue, pixel.alpha};
    for (long n = 0; n < 4; ++n) {
        if (picture->depth == Picture::bits16)
            store(at + n * 2, static_cast<uint16_t>(samples[n]));
        else
            at[n] = static_cast<uint8_t>(samples[n] >> 8);
    }
}

int bits_of(const Channels& c, const Words& words) { return c.layout == "rgb48_12" ? 12 : words.bits; }

void store_pixel(uint8_t* at, const Channels& c, const Words& words, const Pixel& pixel)
{
    const auto sample = [&](int place, unsigned value) {
        if (place < 0) return;
        uint8_t* to = at + place * c.sample_bytes;
        if (c.sample_bytes == 1)
            *to = static_cast<uint8_t>(value >> 8);
        else if (c.layout == "argb64be")
            store(to, byte_reverse(static_cast<uint16_t>(value >> (16 - bits_of(c, words)))));
        else
            store(to, static_cast<uint16_t>(value >> (16 - bits_of(c, words))));
    };
    sample(c.red, pixel.red);
    sample(c.green, pixel.green);
    sample(c.blue, pixel.blue);
    sample(c.alpha, pixel.alpha);
}

// A value of fewer bits fills 16 by repetition of its own upper bits, so that the highest is white.
unsigned widened(unsigned value, int bits)
{
    unsigned result = value << (16 - bits) & 0xFFFF;
    for (int filled = bits; filled < 16; filled *= 2) result |= result >> filled;
    return result;
}

Pixel load_pixel(const uint8_t* at, const Channels& c, const Words& words)
{
    const auto sample = [&](int place) -> unsigned {
        if (place < 0) return 0xFFFF;
        const uint8_t* from = at + place * c.sample_bytes;
        if (c.sample_bytes == 1) return *from * 257u;
        const auto word = load<uint16_t>(from);
        return widened(c.layout == "argb64be" ? byte_reverse(word) : word, bits_of(c, words));
    };
    return {sample(c.red), sample(c.green), sample(c.blue), sample(c.alpha)};
}

// x1 r5 g5 b5, and red, green, blue of ten bits from the top down.
void store_rgb16(uint8_t* at, const Pixel& p)
{
    store(at, static_cast<uint16_t>((p.red >> 11) << 10 | (p.green >> 11) << 5 | p.blue >> 11));
}

Pixel load_rgb16(const uint8_t* at)
{
    const unsigned word = load<uint16_t>(at);
    return {widened(word >> 10 & 31, 5), widened(word >> 5 & 31, 5), widened(word & 31, 5), 0xFFFF};
}

void store_rgb10(uint8_t* at, const Pixel& p, bool big_endian)
{
    const uint32_t word = (p.red >> 6) << 22 | (p.green >> 6) << 12 | (p.blue >> 6) << 2;
    store(at, big_endian ? byte_reverse(word) : word);
}

Pixel load_rgb10(const uint8_t* at, bool big_endian)
{
    const uint32_t word = big_endian ? byte_reverse(load<uint32_t>(at)) : load<uint32_t>(at);
    return {widened(word >> 22, 10), widened(word >> 12 & 0x3FF, 10), widened(word >> 2 & 0x3FF, 10), 0xFFFF};
}

long pixel_bytes(std::string_view layout)
{
    if (layout == "rgb16") return 2;
    if (layout == "rgb10") return 4;
    const Channels& c = *channels_of(layout);
    return c.sample_bytes * c.samples;
}

}  // namespace

bool stores_picture(std::string_view layout)
{
    return layout == "rgb16" || layout == "rgb10" || channels_of(layout) != nullptr;
}

bool is_deep(std::string_view layout)
{
    const Channels* c = channels_of(layout);
    return layout == "rgb10" || (c != nullptr && c->sample_bytes == 2);
}

std::vector<uint8_t> frame_of_picture(const Picture& picture, std::string_view layout, long stride, const Words& words)
{
    std::vector<uint8_t> frame(static_cast<size_t>(stride * picture.height));
    for (long y = 0; y < picture.height; ++y) {
        uint8_t* at = frame.data() + y * stride;
        for (long x = 0; x < picture.width; ++x, at += pixel_bytes(layout)) {
            const Pixel pixel = get(picture, x, y);
            if (layout == "rgb16")
                store_rgb16(at, pixel);
            else if (layout == "rgb10")
                store_rgb10(at, pixel, words.big_endian);
            else
                store_pixel(at, *channels_of(layout), words, pixel);
        }
    }
    return frame;
}

Picture picture_of_frame(const uint8_t* frame, std::string_view layout, long stride, long width, long height,
                         const Words& words, bool alpha)
{
    const Channels* c = channels_of(layout);
    Picture picture(width, height, is_deep(layout) ? Picture::bits16 : Picture::bits8);
    for (long y = 0; y < height; ++y) {
        const uint8_t* at = frame + y * stride;
        for (long x = 0; x < width; ++x, at += pixel_bytes(layout)) {
            Pixel pixel = layout == "rgb16"   ? load_rgb16(at)
                          : layout == "rgb10" ? load_rgb10(at, words.big_endian)
                                              : load_pixel(at, *c, words);
            if (!alpha) pixel.alpha = 0xFFFF;
            put(&picture, x, y, pixel);
        }
    }
    return picture;
}

}  // namespace tintvert::core
