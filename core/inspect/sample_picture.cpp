#include "inspect/sample_picture.h"

#include <algorithm>
#include <initializer_list>

#include "frame/memory.h"
#include "geometry.h"
#include "io/pictures/rgb_frame.h"
#include "paths/frame_converter.h"

namespace tintvert::core {
namespace {

using catalog::PlacedPlane;
using catalog::Sample;

bool has(const FrameShape& shape, std::string_view component)
{
    return std::ranges::any_of(shape.form->planes, [&](const catalog::Plane& plane) {
        return std::ranges::find(plane.fields, component, &Sample::component) != plane.fields.end();
    });
}

// A value of fewer bits fills 16 by repetition of its upper bits, so that the highest is white.
unsigned widened(int64_t value, int bits)
{
    unsigned result = static_cast<unsigned>(value) << (16 - bits);
    for (int filled = bits; filled < 16; filled *= 2) result |= result >> filled;
    return result;
}

Picture picture_of_rgb(const FrameShape& shape, const std::vector<uint8_t>& frame)
{
    const bool deep =
        std::ranges::any_of(shape.form->planes.front().fields, [](const Sample& s) { return s.bits > 8; });
    Picture picture(shape.width, shape.height, deep ? Picture::bits16 : Picture::bits8);
    std::ranges::fill(picture.bytes, uint8_t{255});
    const bool grey = !has(shape, "R");
    catalog::each_sample(shape.planes, shape.width,
                         [&](const PlacedPlane& placed, const Sample& sample, int64_t x, int64_t y, int64_t offset) {
                             if (!grey && sample.component == "A") return;
                             const int64_t value = catalog::load_sample(*placed.plane, sample, frame.data() + offset);
                             const int own = sample.component == "G" ? 1 : sample.component == "B" ? 2 : 0;
                             for (int channel = grey ? 0 : own; channel <= (grey ? 2 : own); ++channel) {
                                 uint8_t* const at = picture.pixel(x, y) + channel * picture.depth;
                                 if (deep)
                                     store(at, static_cast<uint16_t>(widened(value, sample.bits)));
                                 else
                                     *at = static_cast<uint8_t>(widened(value, sample.bits) >> 8);
                             }
                         });
    return picture;
}

// 4:2:2 of 8 bits in lines of even width, luma first or chroma first. Chroma between the pairs is left out,
// and a last column alone is repeated.
std::vector<uint8_t> pairs_of(const FrameShape& shape, const std::vector<uint8_t>& frame, int64_t width,
                              bool luma_first)
{
    std::vector<uint8_t> pairs(static_cast<size_t>(width * 2 * shape.height), 128);
    catalog::each_sample(shape.planes, shape.width,
                         [&](const PlacedPlane& placed, const Sample& sample, int64_t x, int64_t y, int64_t offset) {
                             const int64_t value = catalog::load_sample(*placed.plane, sample, frame.data() + offset);
                             const auto byte =
                                 static_cast<uint8_t>((sample.is_signed ? value + 128 : value) >> (sample.bits - 8));
                             const bool is_luma = sample.component == "Y";
                             if (!is_luma && x % 2 != 0) return;
                             for (int64_t line = y; line < y + placed.plane->down; ++line) {
                                 uint8_t* const pair = &pairs[static_cast<size_t>((line * width + x / 2 * 2) * 2)];
                                 const int64_t place = is_luma ? x % 2 * 2 + 1 : sample.component == "Cb" ? 0 : 2;
                                 pair[luma_first ? place ^ 1 : place] = byte;
                                 if (is_luma && x + 1 == shape.width && x % 2 == 0) pair[luma_first ? 2 : 3] = byte;
                             }
                         });
    return pairs;
}

std::vector<uint8_t> through(std::string_view name, int64_t width, int64_t height, const std::vector<uint8_t>& frame)
{
    const catalog::Routine& routine = *catalog::find(name);
    return convert_frame(plan_call(routine, catalog::plain_call(routine, {width, height})), frame);
}

bool is_full_range(std::string_view layout)
{
    const auto full = {"yuv2", "yuvu", "yuvs", "yuvijg"};
    return std::ranges::find(full, layout) != full.end();
}

Picture picture_of_ycbcr(const FrameShape& shape, const std::vector<uint8_t>& frame)
{
    const int64_t width = shape.width + shape.width % 2;
    const bool full = is_full_range(shape.form->layout);
    std::vector<uint8_t> pairs = pairs_of(shape, frame, width, full);
    if (full) pairs = through("tntvt_yuvs_2vuy", width, shape.height, pairs);
    const std::vector<uint8_t> rgb24 = through("tntvt_yuv422_rgb24", width, shape.height, pairs);
    return picture_of_rgb24(rgb24.data(), width * 3, shape.width, shape.height);
}

}  // namespace

Picture picture_of_samples(const FrameShape& shape, const std::vector<uint8_t>& frame)
{
    return has(shape, "Cb") ? picture_of_ycbcr(shape, frame) : picture_of_rgb(shape, frame);
}

}  // namespace tintvert::core
