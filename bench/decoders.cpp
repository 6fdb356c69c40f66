// The table decoders and the exact encoders at every tier, beside what a user can put together today: libyuv
// for 8 bits, libavcodec and libswscale for `v210`, and memcpy of the same bytes. 1080p frames, one thread.
#include <benchmark/benchmark.h>
#include <libyuv.h>
#include <tintvert.h>

#include <cstring>
#include <string>
#include <vector>

#include "frame/wide.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libswscale/swscale.h>
}

namespace tintvert {
Tier highest_tier = Tier::vbmi;
}

namespace {

using tintvert::Tier;

constexpr int width = 1920, height = 1080, v210_line = 5120;
constexpr size_t rgb32_bytes = size_t{width} * height * 4, rgb24_bytes = size_t{width} * height * 3,
                 uyvy_bytes = size_t{width} * height * 2, v210_bytes = size_t{v210_line} * height;

using Work = void (*)(uint8_t* dst, uint8_t* src);

std::vector<uint8_t> pattern(size_t size)
{
    std::vector<uint8_t> bytes(size);
    for (size_t i = 0; i < size; ++i) bytes[i] = static_cast<uint8_t>(i * 167 >> 3);
    return bytes;
}

void tell_pixels(benchmark::State& state)
{
    state.counters["ns/px"] =
        benchmark::Counter(static_cast<double>(width) * height / 1e9,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

template <class Call>
void measure(benchmark::State& state, size_t source_bytes, size_t result_bytes, Call call)
{
    std::vector<uint8_t> src = pattern(source_bytes), dst(result_bytes);
    for (auto _ : state) {
        call(dst.data(), src.data());
        benchmark::ClobberMemory();
    }
    tell_pixels(state);
}

// A routine at each tier that the machine has, and memcpy of its bytes.
void ours(const std::string& name, size_t source_bytes, size_t result_bytes, Work work)
{
    constexpr const char* names[] = {"plain", "base", "avx2", "vbmi"};
    for (int tier = 0; tier <= static_cast<int>(tintvert::tier_of_machine()); ++tier)
        benchmark::RegisterBenchmark((name + '/' + names[tier]).c_str(), [=](benchmark::State& state) {
            tintvert::highest_tier = static_cast<Tier>(tier);
            measure(state, source_bytes, result_bytes, work);
        });
    benchmark::RegisterBenchmark((name + "/memcpy").c_str(), [=](benchmark::State& state) {
        const size_t half = (source_bytes + result_bytes) / 2;
        measure(state, half, half, [=](uint8_t* dst, uint8_t* src) { std::memcpy(dst, src, half); });
    });
}

void peer(const std::string& name, size_t source_bytes, size_t result_bytes, Work work)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) { measure(state, source_bytes, result_bytes, work); });
}

AVCodecContext* open_codec(const AVCodec* codec)
{
    AVCodecContext* context = avcodec_alloc_context3(codec);
    context->width = width;
    context->height = height;
    context->pix_fmt = AV_PIX_FMT_YUV422P10;
    context->time_base = {1, 25};
    context->thread_count = 1;
    avcodec_open2(context, codec, nullptr);
    return context;
}

void v210_libavcodec_libyuv(benchmark::State& state)
{
    AVCodecContext* context = open_codec(avcodec_find_decoder(AV_CODEC_ID_V210));
    AVPacket* packet = av_packet_alloc();
    AVFrame* frame = av_frame_alloc();
    measure(state, v210_bytes + AV_INPUT_BUFFER_PADDING_SIZE, rgb32_bytes, [&](uint8_t* dst, uint8_t* src) {
        packet->data = src;
        packet->size = static_cast<int>(v210_bytes);
        if (avcodec_send_packet(context, packet) < 0 || avcodec_receive_frame(context, frame) < 0)
            return state.SkipWithError("libavcodec did not decode");
        const auto plane = [&](int n) { return reinterpret_cast<const uint16_t*>(frame->data[n]); };
        libyuv::I210ToARGB(plane(0), frame->linesize[0] / 2, plane(1), frame->linesize[1] / 2, plane(2),
                           frame->linesize[2] / 2, dst, width * 4, width, height);
        av_frame_unref(frame);
    });
    packet->data = nullptr;
    av_frame_free(&frame);
    av_packet_free(&packet);
    avcodec_free_context(&context);
}

void bgra_v210_libswscale_libavcodec(benchmark::State& state)
{
    AVCodecContext* context = open_codec(avcodec_find_encoder(AV_CODEC_ID_V210));
    SwsContext* scaler = sws_getContext(width, height, AV_PIX_FMT_BGRA, width, height, AV_PIX_FMT_YUV422P10,
                                        SWS_BILINEAR, nullptr, nullptr, nullptr);
    AVPacket* packet = av_packet_alloc();
    AVFrame* frame = av_frame_alloc();
    frame->width = width;
    frame->height = height;
    frame->format = AV_PIX_FMT_YUV422P10;
    av_frame_get_buffer(frame, 0);
    measure(state, rgb32_bytes, 1, [&](uint8_t*, uint8_t* src) {
        const uint8_t* const planes[] = {src, nullptr, nullptr, nullptr};
        const int strides[] = {width * 4, 0, 0, 0};
        sws_scale(scaler, planes, strides, 0, height, frame->data, frame->linesize);
        if (avcodec_send_frame(context, frame) < 0 || avcodec_receive_packet(context, packet) < 0)
            return state.SkipWithError("libavcodec did not encode");
        av_packet_unref(packet);
    });
    av_frame_free(&frame);
    av_packet_free(&packet);
    sws_freeContext(scaler);
    avcodec_free_context(&context);
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;

    ours("2vuy_rgb32", uyvy_bytes, rgb32_bytes,
         [](uint8_t* dst, uint8_t* src) { tntvt_yuv422_rgb24(dst, width * 4, src, width * 2, width, height, 1); });
    peer("2vuy_rgb32/libyuv", uyvy_bytes, rgb32_bytes,
         [](uint8_t* dst, uint8_t* src) { libyuv::UYVYToARGB(src, width * 2, dst, width * 4, width, height); });
    ours("2vuy_rgb24", uyvy_bytes, rgb24_bytes,
         [](uint8_t* dst, uint8_t* src) { tntvt_yuv422_rgb24(dst, width * 3, src, width * 2, width, height, 1); });
    ours("2vuy_rgb16", uyvy_bytes, uyvy_bytes,
         [](uint8_t* dst, uint8_t* src) { tntvt_yuv422_rgb16(dst, width * 2, src, width * 2, width, height, 1); });
    ours("v210_rgb32_8", v210_bytes, rgb32_bytes,
         [](uint8_t* dst, uint8_t* src) { tntvt_v210_rgb24(dst, width * 4, src, v210_line, width, height, 1); });
    ours("v210_rgb24_8", v210_bytes, rgb24_bytes,
         [](uint8_t* dst, uint8_t* src) { tntvt_v210_rgb24(dst, width * 3, src, v210_line, width, height, 1); });
    ours("v210_rgb16_8", v210_bytes, uyvy_bytes,
         [](uint8_t* dst, uint8_t* src) { tntvt_v210_rgb16(dst, width * 2, src, v210_line, width, height, 1); });
    ours("v210_rgb32_10", v210_bytes, rgb32_bytes,
         [](uint8_t* dst, uint8_t* src) { _v210_to_rgb(src, dst, width, height, width * 4, 1); });
    benchmark::RegisterBenchmark("v210_rgb32/libavcodec_libyuv", v210_libavcodec_libyuv);

    ours("bgra_2vuy", rgb32_bytes, uyvy_bytes,
         [](uint8_t* dst, uint8_t* src) { bgra_to_2vuy(src, dst, width * height); });
    ours("argb_2vuy_hd", rgb32_bytes, uyvy_bytes,
         [](uint8_t* dst, uint8_t* src) { hd_rgb_to_2vuy(src, dst, width * height, 0); });
    peer("bgra_2vuy/libyuv", rgb32_bytes, uyvy_bytes,
         [](uint8_t* dst, uint8_t* src) { libyuv::ARGBToUYVY(src, width * 4, dst, width * 2, width, height); });
    ours("bgra_v210", rgb32_bytes, v210_bytes,
         [](uint8_t* dst, uint8_t* src) { tntvt_rgb32_v210(dst, v210_line, src, width * 4, width, height); });
    ours("rgb_v210", rgb24_bytes, v210_bytes, [](uint8_t* dst, uint8_t* src) {
        argb_to_v210(src, reinterpret_cast<unsigned int*>(dst), width * height, 0);
    });
    benchmark::RegisterBenchmark("bgra_v210/libswscale_libavcodec", bgra_v210_libswscale_libavcodec);
    benchmark::RunSpecifiedBenchmarks();
}
