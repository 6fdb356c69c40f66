// PNG files of every kind, made with libpng, and the pixels that they hold.
#pragma once

#include <png.h>

#include <array>
#include <csetjmp>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace tintvert::test {

struct PngKind {
    int colour_type = PNG_COLOR_TYPE_RGB;
    int depth = 8;
    bool interlaced = false;
    bool transparent = false;  // with a tRNS chunk
};

// Noise of `levels` levels.
inline unsigned png_level(unsigned levels, unsigned x, unsigned y)
{
    const unsigned mixed = (x * 2654435761u) ^ (y * 2246822519u + 3266489917u);
    return (mixed ^ mixed >> 15) * 668265263u >> 16 & (levels - 1);
}

// Red, green and blue of a pixel, as 8 bits. Kinds with fewer bits or without colour have fewer values.
inline std::array<uint8_t, 3> png_pixel(const PngKind& kind, unsigned x, unsigned y)
{
    const unsigned levels = kind.depth >= 8 ? 256 : 1u << kind.depth;
    const unsigned level = png_level(levels, x, y) * 255 / (levels - 1);
    const bool grey = (kind.colour_type & PNG_COLOR_MASK_COLOR) == 0;
    const auto byte = [](unsigned value) { return static_cast<uint8_t>(value); };
    return grey ? std::array{byte(level), byte(level), byte(level)}
                : std::array{byte(level), byte(level + 50), byte(255 - level)};
}

namespace png_maker {

// The samples of a line as libpng takes them: one byte each, two for 16 bits, of which the lower is noise.
inline std::vector<uint8_t> line(const PngKind& kind, unsigned width, unsigned y)
{
    std::vector<uint8_t> samples;
    const auto put = [&](unsigned value) {
        samples.push_back(static_cast<uint8_t>(value));
        if (kind.depth == 16) samples.push_back(static_cast<uint8_t>(~value));
    };
    const unsigned levels = kind.depth >= 8 ? 256 : 1u << kind.depth;
    for (unsigned x = 0; x < width; ++x) {
        const auto pixel = png_pixel(kind, x, y);
        if (kind.colour_type == PNG_COLOR_TYPE_PALETTE || kind.depth < 8)
            put(png_level(levels, x, y));
        else if ((kind.colour_type & PNG_COLOR_MASK_COLOR) == 0)
            put(pixel[0]);
        else
            for (const uint8_t value : pixel) put(value);
        if ((kind.colour_type & PNG_COLOR_MASK_ALPHA) != 0) put(x % 256);
    }
    return samples;
}

inline void append(png_structp png, png_bytep bytes, size_t count)
{
    static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<char*>(bytes), count);
}

inline void set_palette(png_structp png, png_infop info, const PngKind& kind)
{
    std::vector<png_color> colours;
    for (unsigned i = 0; i < 1u << kind.depth; ++i) {
        const unsigned level = i * 255 / ((1u << kind.depth) - 1);
        colours.push_back(
            {static_cast<uint8_t>(level), static_cast<uint8_t>(level + 50), static_cast<uint8_t>(255 - level)});
    }
    png_set_PLTE(png, info, colours.data(), static_cast<int>(colours.size()));
}

}  // namespace png_maker

inline std::string make_png(const PngKind& kind, unsigned width, unsigned height)
{
    std::string bytes;
    std::vector<std::vector<uint8_t>> lines;
    std::vector<png_bytep> rows;
    for (unsigned y = 0; y < height; ++y) lines.push_back(png_maker::line(kind, width, y));
    for (auto& samples : lines) rows.push_back(samples.data());

    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    if (setjmp(png_jmpbuf(png)) != 0) throw std::logic_error("libpng refuses to write this kind");
    png_set_write_fn(png, &bytes, png_maker::append, nullptr);
    png_set_IHDR(png, info, width, height, kind.depth, kind.colour_type,
                 kind.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    if (kind.colour_type == PNG_COLOR_TYPE_PALETTE) png_maker::set_palette(png, info, kind);
    uint8_t alphas[] = {0};
    png_color_16 seen_through = {};
    if (kind.transparent) png_set_tRNS(png, info, alphas, 1, &seen_through);
    png_write_info(png, info);
    png_set_packing(png);
    png_write_image(png, rows.data());
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return bytes;
}

}  // namespace tintvert::test
