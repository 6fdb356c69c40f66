// Frames of three planes through zimg. Only where zimg is there.
#pragma once

#include <zimg.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <type_traits>
#include <vector>

#include "peers/frames.h"

namespace tintvert::test {

template <typename Value>
using Planes = std::array<std::vector<Value>, 3>;

// A frame of three planes in zimg's words. `halves` is 1 where chroma has half the width. Floating-point samples are
// 0 to 1, chroma -0.5 to 0.5.
struct ZimgForm {
    zimg_color_family_e family;
    zimg_matrix_coefficients_e matrix;
    zimg_pixel_range_e range = ZIMG_RANGE_FULL;
    unsigned int depth = 8;
    unsigned int halves = 0;
    zimg_transfer_characteristics_e transfer = ZIMG_TRANSFER_UNSPECIFIED;
};

inline constexpr ZimgForm rgb_full = {ZIMG_COLOR_RGB, ZIMG_MATRIX_RGB};

inline ZimgForm ycbcr(zimg_matrix_coefficients_e matrix, zimg_pixel_range_e range, unsigned int depth = 8)
{
    return {ZIMG_COLOR_YUV, matrix, range, depth};
}

namespace detail {

template <typename Value>
zimg_image_format format_of(const ZimgForm& form, const Size& size)
{
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned int>(size.width);
    format.height = static_cast<unsigned int>(size.height);
    format.pixel_type = std::is_same_v<Value, float>      ? ZIMG_PIXEL_FLOAT
                        : std::is_same_v<Value, uint16_t> ? ZIMG_PIXEL_WORD
                                                          : ZIMG_PIXEL_BYTE;
    format.depth = std::is_same_v<Value, float> ? 32 : form.depth;
    format.color_family = form.family;
    format.matrix_coefficients = form.matrix;
    format.pixel_range = form.range;
    format.subsample_w = form.halves;
    format.transfer_characteristics = form.transfer;
    return format;
}

// zimg wants lines on 64 bytes.
template <typename Value>
class AlignedPlane {
public:
    explicit AlignedPlane(const Size& size)
        : size_(size),
          stride_((size.width * static_cast<long>(sizeof(Value)) + 63) / 64 * 64),
          bytes_(static_cast<uint8_t*>(std::aligned_alloc(64, static_cast<size_t>(stride_ * size.height))), &std::free)
    {}

    long stride() const { return stride_; }
    void* data() { return bytes_.get(); }
    Value* line(long y) { return reinterpret_cast<Value*>(bytes_.get() + y * stride_); }

    void put(const std::vector<Value>& values)
    {
        for (long y = 0; y < size_.height; ++y)
            for (long x = 0; x < size_.width; ++x) line(y)[x] = values.at(static_cast<size_t>(y * size_.width + x));
    }

    std::vector<Value> get()
    {
        std::vector<Value> values;
        for (long y = 0; y < size_.height; ++y) values.insert(values.end(), line(y), line(y) + size_.width);
        return values;
    }

private:
    Size size_;
    long stride_;
    std::unique_ptr<uint8_t, decltype(&std::free)> bytes_;
};

}  // namespace detail

// No dither, chroma on the even pixels, and the transfer curves at their full precision with 1.0 for 10000 cd/m2.
template <typename To, typename From>
Planes<To> zimg(const Planes<From>& planes, const ZimgForm& from, const ZimgForm& to, const Size& size)
{
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    parameters.nominal_peak_luminance = 10000;
    parameters.allow_approximate_gamma = 0;
    parameters.cpu_type = ZIMG_CPU_NONE;  // the same figures on every machine
    const zimg_image_format src_format = detail::format_of<From>(from, size);
    const zimg_image_format dst_format = detail::format_of<To>(to, size);
    const std::unique_ptr<zimg_filter_graph, decltype(&zimg_filter_graph_free)> graph(
        zimg_filter_graph_build(&src_format, &dst_format, &parameters), &zimg_filter_graph_free);
    char reason[256] = "";
    const auto check = [&reason](bool good) {
        if (good) return;
        zimg_get_last_error(reason, sizeof reason);
        throw std::runtime_error(reason);
    };
    check(graph != nullptr);

    size_t scratch_bytes = 0;
    check(zimg_filter_graph_get_tmp_size(graph.get(), &scratch_bytes) == ZIMG_ERROR_SUCCESS);
    detail::AlignedPlane<uint8_t> scratch({static_cast<long>(scratch_bytes) + 1, 1});
    std::vector<detail::AlignedPlane<From>> src;
    std::vector<detail::AlignedPlane<To>> dst;
    zimg_image_buffer_const src_buffer = {};
    zimg_image_buffer dst_buffer = {};
    src_buffer.version = dst_buffer.version = ZIMG_API_VERSION;
    for (unsigned int p = 0; p < 3; ++p) {
        src.emplace_back(Size{size.width >> (p == 0 ? 0 : from.halves), size.height});
        dst.emplace_back(Size{size.width >> (p == 0 ? 0 : to.halves), size.height});
        src[p].put(planes[p]);
        src_buffer.plane[p] = {src[p].data(), src[p].stride(), ZIMG_BUFFER_MAX};
        dst_buffer.plane[p] = {dst[p].data(), dst[p].stride(), ZIMG_BUFFER_MAX};
    }
    check(zimg_filter_graph_process(graph.get(), &src_buffer, &dst_buffer, scratch.data(), nullptr, nullptr, nullptr,
                                    nullptr) == ZIMG_ERROR_SUCCESS);
    return {dst[0].get(), dst[1].get(), dst[2].get()};
}

}  // namespace tintvert::test
