// Frames in MOV and AVI, taken out of their packets by libavformat. The packets are raw frames; no codec has a part
// in it.
#include "io/sources.h"

#ifdef TINTVERT_LIBAVFORMAT

extern "C" {
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <cstring>

#include "failure.h"
#include "names.h"

namespace tintvert::core {
namespace {

std::string reason(int error)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return text;
}

std::string text_of(uint32_t fourcc)
{
    std::string text;
    for (int i = 0; i < 4; ++i, fourcc >>= 8) {
        const auto c = static_cast<char>(fourcc);
        text += c >= ' ' && c <= '~' ? c : '.';
    }
    return text;
}

// Empty if it is none that has a layout here. `raw ` and no code at all are RGB, distinguished by bits: red first and
// alpha before it in MOV, blue first in AVI.
std::string layout_of(const AVCodecParameters& about)
{
    if (about.codec_id == AV_CODEC_ID_V210) return "v210";
    if (about.codec_id != AV_CODEC_ID_RAWVIDEO) return {};
    const std::string code = text_of(about.codec_tag);
    const int bits = about.bits_per_coded_sample;
    if (code == "raw ") return bits == 24 ? "bgr24" : bits == 32 ? "abgr32" : "";
    if (about.codec_tag == 0) return bits == 24 ? "rgb24" : bits == 32 ? "rgb32" : bits == 16 ? "rgb16" : "";
    constexpr std::string_view known[][2] = {{"2vuy", "2vuy"},  {"UYVY", "2vuy"},   {"yuvs", "yuvs"},  {"YUY2", "YUY2"},
                                             {"BGRA", "rgb32"}, {"RGBA", "bgra32"}, {"ARGB", "abgr32"}};
    for (const auto& [fourcc, layout] : known)
        if (code == fourcc) return std::string{layout};
    return {};
}

// libavformat says so of DIBs with the bottom line first.
bool is_bottom_up(const AVCodecParameters& about)
{
    constexpr char mark[] = "BottomUp";
    return about.extradata_size >= static_cast<int>(sizeof mark) &&
           std::memcmp(about.extradata + about.extradata_size - sizeof mark, mark, sizeof mark) == 0;
}

// Layouts of the same bytes. A file does not give the range and the sign of `yuvs`.
bool is_alike(std::string_view one, std::string_view other)
{
    const auto bytes = [](std::string_view layout) {
        const std::string_view name = layout_named(layout).bytes().name;
        return name == "YUY2" || name == "yuv2" ? std::string_view("yuvs") : name;
    };
    return bytes(one) == bytes(other);
}

class ClipSource : public FrameSource {
public:
    explicit ClipSource(const std::filesystem::path& path) : name_(path.string())
    {
        InputFile{path};  // says why in the same words as for other files
        av_log_set_level(AV_LOG_QUIET);
        const std::string format = format_of(path);
        AVFormatContext* opened = nullptr;
        const int error =
            avformat_open_input(&opened, ("file:" + name_).c_str(), av_find_input_format(format.c_str()), nullptr);
        if (error < 0) throw Failure(Exit::no_file, "cannot read {}: {}", name_, reason(error));
        clip_.reset(opened);
        if (!packet_) throw std::bad_alloc();
        choose_stream();
    }

    std::string layout() const override { return layout_; }
    Size size() const override { return {about().width, about().height}; }
    std::string timing() const override
    {
        const AVRational rate = stream().avg_frame_rate.num > 0 ? stream().avg_frame_rate : stream().r_frame_rate;
        return rate.num > 0 && rate.den > 0 ? fmt::format("F{}:{} Ip A1:1", rate.num, rate.den) : std::string();
    }

    int64_t expect(const FrameForm& form, int64_t stride) override
    {
        if (!is_alike(form.layout, layout_))
            throw Failure(Exit::usage, "{} has frames of {}, and not of {}", name_, layout_, form.layout);
        need_lines(form);
        form_ = form;
        stride_ = stride;
        least_ = stride_of("packed", layout_, {form.width, form.height});
        return stream().nb_frames > 0 ? stream().nb_frames : -1;
    }

    bool read(std::span<uint8_t> frame) override
    {
        if (!next_packet()) return false;
        const int64_t stride = stride_ != 0 ? stride_ : packet_->size / form_.height;
        if (stride < least_ || stride * form_.height > packet_->size)
            throw Failure(Exit::no_file, "{}: frame {} has {} bytes, too few for {}x{} of {}", name_, at_,
                          packet_->size, form_.width, form_.height, layout_);
        take_lines(form_, packet_->data, stride, frame);
        if (is_bottom_up(about())) reverse_lines(frame);
        ++at_;
        return true;
    }

    bool skip() override
    {
        if (!next_packet()) return false;
        ++at_;
        return true;
    }

private:
    struct Close {
        void operator()(AVFormatContext* clip) const { avformat_close_input(&clip); }
        void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    };

    void reverse_lines(std::span<uint8_t> frame) const
    {
        for (int64_t y = 0; y < form_.height / 2; ++y) {
            const auto line = frame.begin() + y * form_.stride;
            std::swap_ranges(line, line + form_.stride, frame.begin() + (form_.height - 1 - y) * form_.stride);
        }
    }

    const AVStream& stream() const { return *clip_->streams[stream_]; }
    const AVCodecParameters& about() const { return *stream().codecpar; }

    void choose_stream()
    {
        for (unsigned i = 0; i < clip_->nb_streams; ++i) {
            if (clip_->streams[i]->codecpar->codec_type != AVMEDIA_TYPE_VIDEO) continue;
            stream_ = i;
            layout_ = layout_of(about());
            if (layout_.empty())
                throw Failure(Exit::no_file, "{} has video of '{}' with {} bits, which is no layout here", name_,
                              text_of(about().codec_tag), about().bits_per_coded_sample);
            return;
        }
        throw Failure(Exit::no_file, "{} has no video", name_);
    }

    bool next_packet()
    {
        for (;;) {
            av_packet_unref(packet_.get());
            const int error = av_read_frame(clip_.get(), packet_.get());
            if (error == AVERROR_EOF) break;
            if (error < 0) throw Failure(Exit::no_file, "cannot read {}: {}", name_, reason(error));
            if (packet_->stream_index == static_cast<int>(stream_)) return true;
        }
        if (stream().nb_frames > at_) throw Failure(Exit::no_file, "{} ends after frame {}", name_, at_ - 1);
        return false;
    }

    std::string name_;
    std::unique_ptr<AVFormatContext, Close> clip_;
    std::unique_ptr<AVPacket, Close> packet_{av_packet_alloc()};
    unsigned stream_ = 0;
    std::string layout_;
    FrameForm form_;
    int64_t stride_ = 0, least_ = 0, at_ = 0;
};

}  // namespace

bool reads_clips() { return true; }

std::unique_ptr<FrameSource> clip_source(const std::filesystem::path& path)
{
    return std::make_unique<ClipSource>(path);
}

}  // namespace tintvert::core

#else

#include "failure.h"

namespace tintvert::core {

bool reads_clips() { return false; }

std::unique_ptr<FrameSource> clip_source(const std::filesystem::path& path)
{
    throw Failure(Exit::no_file, "cannot read {}: tintvert is built without libavformat, which reads MOV and AVI",
                  path.string());
}

}  // namespace tintvert::core

#endif
