#include "peers/peer.h"

#ifdef TINTVERT_ZIMG

#include <zimg.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace tintvert::core {
namespace {

template <class Value>
using Planes = std::array<std::vector<Value>, 3>;

zimg_image_format format_of(const PeerQuestion& question, zimg_pixel_type_e type)
{
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned>(question.width);
    format.height = static_cast<unsigned>(question.height);
    format.pixel_type = type;
    format.color_family = ZIMG_COLOR_RGB;
    format.matrix_coefficients = ZIMG_MATRIX_RGB;
    format.pixel_range = ZIMG_RANGE_FULL;
    return format;
}

// zimg wants lines on 64 bytes.
template <class Value>
class Lines {
public:
    explicit Lines(const zimg_image_format& format)
        : stride_((format.width * sizeof(Value) + 63) / 64 * 64),
          bytes_(static_cast<uint8_t*>(std::aligned_alloc(64, stride_ * format.height)), &std::free)
    {
        std::fill_n(bytes_.get(), stride_ * format.height, uint8_t{0});
    }
    uint8_t* data() { return bytes_.get(); }
    ptrdiff_t stride() const { return static_cast<ptrdiff_t>(stride_); }
    Value* line(size_t y) { return reinterpret_cast<Value*>(bytes_.get() + y * stride_); }

private:
    size_t stride_;
    std::unique_ptr<uint8_t, decltype(&std::free)> bytes_;
};

void check(bool good)
{
    if (good) return;
    char reason[256] = "";
    zimg_get_last_error(reason, sizeof reason);
    throw std::runtime_error(std::string("zimg: ") + reason);
}

// Floating-point samples, 1.0 for the highest code. No approximations, and the same figures on every machine.
template <class Value>
Planes<float> through_zimg(const Planes<Value>& planes, const zimg_image_format& from, const zimg_image_format& to)
{
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    parameters.nominal_peak_luminance = 10000;
    parameters.allow_approximate_gamma = 0;
    parameters.cpu_type = ZIMG_CPU_NONE;
    const std::unique_ptr<zimg_filter_graph, decltype(&zimg_filter_graph_free)> graph(
        zimg_filter_graph_build(&from, &to, &parameters), &zimg_filter_graph_free);
    check(graph != nullptr);
    size_t scratch_bytes = 0;
    check(zimg_filter_graph_get_tmp_size(graph.get(), &scratch_bytes) == ZIMG_ERROR_SUCCESS);
    zimg_image_format scratch_format = {};
    scratch_format.width = static_cast<unsigned>(scratch_bytes) + 1;
    scratch_format.height = 1;
    Lines<uint8_t> scratch(scratch_format);

    std::vector<Lines<Value>> in;
    std::vector<Lines<float>> out;
    zimg_image_buffer_const in_buffer = {};
    zimg_image_buffer out_buffer = {};
    in_buffer.version = out_buffer.version = ZIMG_API_VERSION;
    for (size_t p = 0; p < 3; ++p) {
        in.emplace_back(from);
        out.emplace_back(to);
        for (size_t y = 0; y < from.height; ++y)
            std::copy_n(planes[p].begin() + static_cast<ptrdiff_t>(y * from.width), from.width, in[p].line(y));
        in_buffer.plane[p] = {in[p].data(), in[p].stride(), ZIMG_BUFFER_MAX};
        out_buffer.plane[p] = {out[p].data(), out[p].stride(), ZIMG_BUFFER_MAX};
    }
    check(zimg_filter_graph_process(graph.get(), &in_buffer, &out_buffer, scratch.data(), nullptr, nullptr, nullptr,
                                    nullptr) == ZIMG_ERROR_SUCCESS);
    Planes<float> result;
    for (size_t p = 0; p < 3; ++p)
        for (size_t y = 0; y < to.height; ++y)
            result[p].insert(result[p].end(), out[p].line(y), out[p].line(y) + to.width);
    return result;
}

// The upper `bits` of the samples of 4:2:2, chroma repeated for the odd pixels.
Planes<uint16_t> samples_of(const PeerQuestion& question, int bits)
{
    Planes<uint16_t> planes;
    for (auto& plane : planes) plane.resize(static_cast<size_t>(question.width * question.height));
    catalog::each_sample(
        question.planes(question.from), question.width,
        [&](const catalog::PlacedPlane& placed, const catalog::Sample& sample, int64_t x, int64_t y, int64_t offset) {
            const int64_t value =
                catalog::load_sample(*placed.plane, sample, &question.frame[static_cast<size_t>(offset)]);
            const size_t at = static_cast<size_t>(y * question.width + x);
            const size_t plane = sample.component == "Y" ? 0 : sample.component == "Cb" ? 1 : 2;
            planes[plane][at] = static_cast<uint16_t>(value >> (sample.bits - bits));
            if (plane != 0) planes[plane][at + 1] = planes[plane][at];
        });
    return planes;
}

// RGB of 8 bits, truncated as the tables of the routines are, and opaque.
std::vector<uint8_t> decoded(const PeerQuestion& question, int bits)
{
    zimg_image_format from = format_of(question, ZIMG_PIXEL_WORD);
    from.depth = static_cast<unsigned>(bits);
    from.color_family = ZIMG_COLOR_YUV;
    from.matrix_coefficients = ZIMG_MATRIX_BT470_BG;
    from.pixel_range = ZIMG_RANGE_LIMITED;
    const Planes<float> rgb = through_zimg(samples_of(question, bits), from, format_of(question, ZIMG_PIXEL_FLOAT));
    const bool has_alpha = question.to == "rgb32";
    std::vector<uint8_t> frame;
    for (size_t pixel = 0; pixel < rgb[0].size(); ++pixel) {
        for (size_t plane = 3; plane-- > 0;)
            frame.push_back(static_cast<uint8_t>(std::clamp(rgb[plane][pixel] * 255.0f, 0.0f, 255.0f)));
        if (has_alpha) frame.push_back(255);
    }
    return frame;
}

// Every byte by the curve at 256 places, truncated.
std::vector<uint8_t> by_curve(const PeerQuestion& question)
{
    PeerQuestion line = question;
    line.width = 256;
    line.height = 1;
    std::vector<float> places;
    for (int code = 0; code < 256; ++code) places.push_back(static_cast<float>(code) / 256);
    zimg_image_format from = format_of(line, ZIMG_PIXEL_FLOAT), to = from;
    from.transfer_characteristics = ZIMG_TRANSFER_LINEAR;
    to.transfer_characteristics = ZIMG_TRANSFER_ST2084;
    const std::vector<float> curve = through_zimg<float>({places, places, places}, from, to)[0];
    std::vector<uint8_t> frame = question.frame;
    for (uint8_t& byte : frame) byte = static_cast<uint8_t>(curve[byte] * 256);
    return frame;
}

}  // namespace

bool has_zimg() { return true; }

PeerAnswer answer_of_zimg(const PeerQuestion& question)
try {
    if (question.asked == "linear to ST 2084") return {.frame = by_curve(question)};
    return {.frame = decoded(question, question.asked == "BT.601 of 10 bits" ? 10 : 8)};
} catch (const std::runtime_error& error) {
    return {.why_none = error.what()};
}

}  // namespace tintvert::core

#else

namespace tintvert::core {

bool has_zimg() { return false; }

PeerAnswer answer_of_zimg(const PeerQuestion&) { return {.why_none = "zimg not built in"}; }

}  // namespace tintvert::core

#endif
