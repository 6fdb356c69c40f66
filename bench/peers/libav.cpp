// libswscale between the pixel formats that FFmpeg knows by our layouts' bytes, with libavcodec in front of it or
// behind it for `v210`; and libavcodec followed by libyuv, the fastest path that a user can build.
#include "peers/peers.h"

#ifdef TINTVERT_PEER_LIBAV
#include <memory>

#include "layouts.h"
#ifdef TINTVERT_PEER_LIBYUV
#include <libyuv.h>
#endif

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

namespace tintvert::bench {

using namespace catalog;

namespace {

// One side of a conversion: bytes in a pixel format, or `v210` through its codec.
struct Side {
    AVPixelFormat format = AV_PIX_FMT_NONE;
    bool coded = false;

    explicit Side(std::string_view layout)
    {
        const Layout* found = find_layout(layout);
        if (found == nullptr) return;
        coded = found->ffmpeg == "codec v210";
        format = coded ? AV_PIX_FMT_YUV422P10 : av_get_pix_fmt(std::string{found->ffmpeg}.c_str());
    }
};

struct FreeContext {
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(SwsContext* context) const { sws_freeContext(context); }
};
template <class Type>
using Owned = std::shared_ptr<Type>;

Owned<AVCodecContext> open(const AVCodec* codec, int width, int height)
{
    Owned<AVCodecContext> context(avcodec_alloc_context3(codec), FreeContext{});
    context->width = width;
    context->height = height;
    context->pix_fmt = AV_PIX_FMT_YUV422P10;
    context->time_base = {1, 25};
    context->thread_count = 1;
    return avcodec_open2(context.get(), codec, nullptr) == 0 ? context : nullptr;
}

class Conversion {
public:
    Conversion(const Side& from, const Side& to, const Measured& measured)
        : src_(measured.buffer(Arg::src)),
          dst_(measured.buffer(Arg::dst)),
          width_(static_cast<int>(measured.size.width)),
          height_(static_cast<int>(measured.size.height)),
          from_(from),
          to_(to)
    {
        if (from.coded) decoder_ = open(avcodec_find_decoder(AV_CODEC_ID_V210), width_, height_);
        if (to.coded) encoder_ = open(avcodec_find_encoder(AV_CODEC_ID_V210), width_, height_);
        in_ = frame_in(from.format);
        out_ = frame_in(to.format);
        scale_.reset(sws_getContext(width_, height_, from.format, width_, height_, to.format, SWS_POINT, nullptr,
                                    nullptr, nullptr),
                     FreeContext{});
        packet_.reset(av_packet_alloc(), FreeContext{});
    }

    bool usable() const { return scale_ != nullptr; }

    void operator()()
    {
        if (decoder_)
            decode();
        else
            av_image_fill_arrays(in_->data, in_->linesize, src_, from_.format, width_, height_, 1);
        if (!encoder_) av_image_fill_arrays(out_->data, out_->linesize, dst_, to_.format, width_, height_, 1);
        sws_scale(scale_.get(), in_->data, in_->linesize, 0, height_, out_->data, out_->linesize);
        if (encoder_) {
            avcodec_send_frame(encoder_.get(), out_.get());
            if (avcodec_receive_packet(encoder_.get(), packet_.get()) == 0) av_packet_unref(packet_.get());
        }
    }

    void decode()
    {
        packet_->data = src_;
        packet_->size = (width_ + 47) / 48 * 128 * height_;
        avcodec_send_packet(decoder_.get(), packet_.get());
        avcodec_receive_frame(decoder_.get(), in_.get());
        packet_->data = nullptr;
        packet_->size = 0;
    }

    const AVFrame& decoded() const { return *in_; }

private:
    Owned<AVFrame> frame_in(AVPixelFormat format) const
    {
        Owned<AVFrame> frame(av_frame_alloc(), FreeContext{});
        frame->format = format;
        frame->width = width_;
        frame->height = height_;
        av_frame_get_buffer(frame.get(), 0);
        return frame;
    }

    uint8_t *src_, *dst_;
    int width_, height_;
    Side from_, to_;
    Owned<AVCodecContext> decoder_, encoder_;
    Owned<AVFrame> in_, out_;
    Owned<SwsContext> scale_;
    Owned<AVPacket> packet_;
};

}  // namespace

void offer_libav(const Routine& routine, const Measured& measured, std::vector<Peer>* peers)
{
    const Side from(routine.from->name), to(routine.to->name);
    if (from.format == AV_PIX_FMT_NONE || to.format == AV_PIX_FMT_NONE || from.format == to.format) return;
    if (measured.buffer(Arg::src) == nullptr || measured.buffer(Arg::dst) == nullptr) return;
    const auto conversion = std::make_shared<Conversion>(from, to, measured);
    if (!conversion->usable()) return;
    const std::string name = from.coded ? "libavcodec + swscale" : to.coded ? "swscale + libavcodec" : "swscale";
    peers->push_back({name, [conversion] { (*conversion)(); }});
#ifdef TINTVERT_PEER_LIBYUV
    if (!from.coded || !routine.to->name.starts_with("rgb")) return;
    const auto argb = std::make_shared<std::vector<uint8_t>>(measured.size.width * measured.size.height * 4);
    peers->push_back({"libavcodec + libyuv I210ToARGB", [conversion, argb] {
                          conversion->decode();
                          const AVFrame& f = conversion->decoded();
                          const auto plane = [&](int n) { return reinterpret_cast<const uint16_t*>(f.data[n]); };
                          libyuv::I210ToARGB(plane(0), f.linesize[0] / 2, plane(1), f.linesize[1] / 2, plane(2),
                                             f.linesize[2] / 2, argb->data(), f.width * 4, f.width, f.height);
                      }});
#endif
}

}  // namespace tintvert::bench

#else

namespace tintvert::bench {
void offer_libav(const catalog::Routine&, const Measured&, std::vector<Peer>*) {}
}  // namespace tintvert::bench

#endif
