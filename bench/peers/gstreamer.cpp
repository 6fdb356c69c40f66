// GStreamer's video converter, in this process, between the formats that it knows by our layouts' bytes.
#include "peers/peers.h"

#ifdef TINTVERT_PEER_GSTREAMER
#include <gst/video/video.h>

#include <memory>

#include "layouts.h"

namespace tintvert::bench {

using namespace catalog;

namespace {

GstVideoFormat format_of(std::string_view layout)
{
    const Layout* found = find_layout(layout);
    if (found == nullptr || found->gstreamer.empty() || found->planes() == Planes::yuv422)
        return GST_VIDEO_FORMAT_UNKNOWN;
    return gst_video_format_from_string(std::string{found->gstreamer}.c_str());
}

// Frames of its own: the converter asks for lines of its own alignment.
class Converter {
public:
    Converter(GstVideoFormat from, GstVideoFormat to, const Size& size)
        : in_(from, size), out_(to, size), converter_(make(in_.info, out_.info))
    {}
    ~Converter() { gst_video_converter_free(converter_); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    void operator()() { gst_video_converter_frame(converter_, &in_.frame, &out_.frame); }

private:
    struct Mapped {
        GstVideoInfo info;
        GstBuffer* buffer;
        GstVideoFrame frame;

        Mapped(GstVideoFormat format, const Size& size)
        {
            gst_video_info_set_format(&info, format, static_cast<guint>(size.width), static_cast<guint>(size.height));
            buffer = gst_buffer_new_allocate(nullptr, info.size, nullptr);
            gst_buffer_memset(buffer, 0, 0x55, info.size);
            gst_video_frame_map(&frame, &info, buffer, GST_MAP_READWRITE);
        }
        ~Mapped()
        {
            gst_video_frame_unmap(&frame);
            gst_buffer_unref(buffer);
        }
        Mapped(const Mapped&) = delete;
        Mapped& operator=(const Mapped&) = delete;
    };

    static GstVideoConverter* make(GstVideoInfo& in, GstVideoInfo& out)
    {
        GstStructure* options = gst_structure_new("options", GST_VIDEO_CONVERTER_OPT_DITHER_METHOD,
                                                  GST_TYPE_VIDEO_DITHER_METHOD, GST_VIDEO_DITHER_NONE, nullptr);
        return gst_video_converter_new(&in, &out, options);
    }

    Mapped in_, out_;
    GstVideoConverter* converter_;
};

}  // namespace

void offer_gstreamer(const Routine& routine, const Measured& measured, std::vector<Peer>* peers)
{
    static const bool ready = gst_init_check(nullptr, nullptr, nullptr) != FALSE;
    const GstVideoFormat from = format_of(routine.from->name), to = format_of(routine.to->name);
    if (!ready || from == GST_VIDEO_FORMAT_UNKNOWN || to == GST_VIDEO_FORMAT_UNKNOWN || from == to) return;
    const auto converter = std::make_shared<Converter>(from, to, measured.size);
    peers->push_back({"GStreamer", [converter] { (*converter)(); }});
}

}  // namespace tintvert::bench

#else

namespace tintvert::bench {
void offer_gstreamer(const catalog::Routine&, const Measured&, std::vector<Peer>*) {}
}  // namespace tintvert::bench

#endif
