// libycbcr, and each of its levels that the machine has, beside what a user can put together today: libyuv for
// 8 bits, libavcodec's v210 decoder followed by libyuv for 10. 1080p frames, one thread.
#include <benchmark/benchmark.h>
#include <libyuv.h>
#include <lines.h>
#include <ycbcr.h>

#include <vector>

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace {

constexpr int width = 1920, height = 1080;

std::vector<uint8_t> pattern(size_t size)
{
    std::vector<uint8_t> bytes(size);
    for (size_t i = 0; i < size; ++i) bytes[i] = static_cast<uint8_t>(i * 167 >> 3);
    return bytes;
}

template <class Work>
void measure(benchmark::State& state, size_t source_bytes, Work work)
{
    std::vector<uint8_t> src = pattern(source_bytes), dst(width * height * 4);
    for (auto _ : state) {
        work(dst.data(), src.data());
        benchmark::ClobberMemory();
    }
    state.counters["ns/px"] =
        benchmark::Counter(static_cast<double>(width) * height / 1e9,
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// The frame line by line in one level.
template <class FormOfLine>
void measure_level(benchmark::State& state, ycbcr::InstructionSet level, size_t source_bytes, FormOfLine form_of_line)
{
    if (level > tintvert::machine_instruction_set()) return state.SkipWithError("this machine has no such level");
    measure(state, source_bytes, [&](uint8_t* dst, const uint8_t* src) {
        for (int y = 0; y < height; ++y)
            ycbcr::line(level, dst + y * width * 4, form_of_line(src, y), width, ycbcr::bt601);
    });
}

void uyvy_ours(benchmark::State& state)
{
    measure(state, width * height * 2, [](uint8_t* dst, uint8_t* src) {
        cycbcr_uyvy_to_rgb32(dst, src, width, height, width * 4, width * 2, 601, 0);
    });
}

void uyvy_level(benchmark::State& state, ycbcr::InstructionSet level)
{
    measure_level(state, level, width * height * 2,
                  [](const uint8_t* src, int y) { return ycbcr::Uyvy{src + y * width * 2}; });
}

void uyvy_libyuv(benchmark::State& state)
{
    measure(state, width * height * 2,
            [](uint8_t* dst, uint8_t* src) { libyuv::UYVYToARGB(src, width * 2, dst, width * 4, width, height); });
}

void i420_ours(benchmark::State& state)
{
    measure(state, width * height * 3 / 2, [](uint8_t* dst, uint8_t* src) {
        cycbcr_i420_to_rgb32(dst, src, width, height, width * 4, width, 601, 0);
    });
}

void i420_level(benchmark::State& state, ycbcr::InstructionSet level)
{
    measure_level(state, level, width * height * 3 / 2, [](const uint8_t* src, int y) {
        const uint8_t* const cb = src + width * height + y / 2 * (width / 2);
        return ycbcr::Planar{src + y * width, cb, cb + width * height / 4, width / 2};
    });
}

void i420_libyuv(benchmark::State& state)
{
    measure(state, width * height * 3 / 2, [](uint8_t* dst, uint8_t* src) {
        const uint8_t* const cb = src + width * height;
        libyuv::I420ToARGB(src, width, cb, width / 2, cb + width * height / 4, width / 2, dst, width * 4, width,
                           height);
    });
}

constexpr int v210_line = 5120;

void v210_ours(benchmark::State& state)
{
    measure(state, v210_line * height, [](uint8_t* dst, uint8_t* src) {
        cycbcr_012v_to_rgb32(dst, src, width, height, width * 4, v210_line, 709, 0);
    });
}

void v210_level(benchmark::State& state, ycbcr::InstructionSet level)
{
    measure_level(state, level, v210_line * height,
                  [](const uint8_t* src, int y) { return ycbcr::V210{src + y * v210_line}; });
}

void v210_libavcodec_libyuv(benchmark::State& state)
{
    AVCodecContext* context = avcodec_alloc_context3(avcodec_find_decoder(AV_CODEC_ID_V210));
    context->width = width;
    context->height = height;
    context->thread_count = 1;
    avcodec_open2(context, nullptr, nullptr);
    AVPacket* packet = av_packet_alloc();
    AVFrame* frame = av_frame_alloc();
    measure(state, v210_line * height + AV_INPUT_BUFFER_PADDING_SIZE, [&](uint8_t* dst, uint8_t* src) {
        packet->data = src;
        packet->size = v210_line * height;
        if (avcodec_send_packet(context, packet) < 0 || avcodec_receive_frame(context, frame) < 0)
            return state.SkipWithError("libavcodec did not decode");
        const auto plane = [&](int n) { return reinterpret_cast<const uint16_t*>(frame->data[n]); };
        libyuv::I210ToARGB(plane(0), frame->linesize[0] / 2, plane(1), frame->linesize[1] / 2, plane(2),
                           frame->linesize[2] / 2, dst, width * 4, width, height);
        av_frame_unref(frame);
    });
    av_frame_free(&frame);
    packet->data = nullptr;
    av_packet_free(&packet);
    avcodec_free_context(&context);
}

}  // namespace

BENCHMARK(uyvy_ours);
BENCHMARK_CAPTURE(uyvy_level, scalar, ycbcr::InstructionSet::scalar);
BENCHMARK_CAPTURE(uyvy_level, avx2, ycbcr::InstructionSet::avx2);
BENCHMARK_CAPTURE(uyvy_level, avx512, ycbcr::InstructionSet::avx512);
BENCHMARK(uyvy_libyuv);
BENCHMARK(i420_ours);
BENCHMARK_CAPTURE(i420_level, scalar, ycbcr::InstructionSet::scalar);
BENCHMARK_CAPTURE(i420_level, avx2, ycbcr::InstructionSet::avx2);
BENCHMARK_CAPTURE(i420_level, avx512, ycbcr::InstructionSet::avx512);
BENCHMARK(i420_libyuv);
BENCHMARK(v210_ours);
BENCHMARK_CAPTURE(v210_level, scalar, ycbcr::InstructionSet::scalar);
BENCHMARK_CAPTURE(v210_level, avx2, ycbcr::InstructionSet::avx2);
BENCHMARK_CAPTURE(v210_level, avx512, ycbcr::InstructionSet::avx512);
BENCHMARK(v210_libavcodec_libyuv);
BENCHMARK_MAIN();
