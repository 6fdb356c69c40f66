#include "peer_checks.h"

#include <fmt/format.h>

#include <algorithm>

#include "conversion.h"
#include "peer_program.h"
#include "samples.h"

namespace tintvert::tool {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr std::string_view ffmpeg = "ffmpeg", gstreamer = "gst-launch-1.0";

// FFmpeg moves lines of any pixels as gray ones, four to a pixel.
constexpr PeerCheck checks[] = {
    {"tntvt_2vuy_v210", gstreamer, "uyvy", "v210"},
    {"tntvt_v210_2vuy", gstreamer, "v210", "UYVY"},
    {"tntvt_YCbCr10Packed_to_v210", gstreamer, "uyvp", "v210"},
    {"tntvt_i420_2vuy", gstreamer, "i420", "UYVY", "chroma-mode=none"},
    {"tntvt_yv12_2vuy", gstreamer, "yv12", "UYVY", "chroma-mode=none"},
    {"tntvt_planar_2vuy", ffmpeg, "yuv422p", "uyvy422"},
    {"tntvt_2vuy_planar", ffmpeg, "uyvy422", "yuv422p"},
    {"tntvt_rgba32_bgra32_inplace", ffmpeg, "bgra", "rgba"},
    {"tntvt_rgba32_bgra32_inplace", gstreamer, "bgra", "RGBA"},
    {"tntvt_rgba32_abgr32_inplace", ffmpeg, "bgra", "argb"},
    {"tntvt_rgba32_argb32", ffmpeg, "abgr", "bgra"},
    {"tntvt_rgb32_rgb24", ffmpeg, "bgra", "bgr24"},
    {"tntvt_rgb32_rgb24", gstreamer, "bgra", "BGR"},
    {"tntvt_rgb32_bgr24_inplace", ffmpeg, "bgra", "rgb24"},
    {"tntvt_rgb24_rgb32", ffmpeg, "bgr24", "bgra"},
    {"tntvt_rgb24_bgra32_inplace", ffmpeg, "bgr24", "rgba"},
    {"tntvt_macbgr24_macargb32_inplace", ffmpeg, "bgr24", "abgr"},
    {"tntvt_rgb16_rgb32", gstreamer, "bgra", "RGB15", "", PeerCheck::back},
    {"tntvt_rgba64_rgba32", gstreamer, "bgra64-le", "BGRA"},
    {"tntvt_bgra64_rgba32", gstreamer, "rgba64-le", "BGRA"},
    {"tntvt_argb64_rgba32", gstreamer, "abgr64-le", "BGRA"},
    {"tntvt_abgr64_rgba32", gstreamer, "argb64-le", "BGRA"},
    {"tntvt_argb64be_rgba32", gstreamer, "abgr64-be", "BGRA"},
    {"tntvt_rgba32_rgba64", gstreamer, "bgra", "BGRA64_LE", "", PeerCheck::same, PeerCheck::upper8},
    {"tntvt_flip_vert", ffmpeg, "gray", "gray", "vflip"},
    {"tntvt_fld_mix_to_sep32", ffmpeg, "gray", "gray", "il=l=d"},
    {"tntvt_fld_sep_to_mix32", ffmpeg, "gray", "gray", "il=l=i"},
};

// GStreamer's lines have no slack at this width, and groups of v210 fill them.
constexpr int64_t noise_width = 192, noise_height = 64;

Bytes noise(size_t count)
{
    Bytes bytes(count);
    uint32_t state = 1;
    for (uint8_t& byte : bytes) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<uint8_t>(state >> 24);
    }
    return bytes;
}

std::vector<catalog::PlacedPlane> planes_of(std::string_view layout)
{
    const int64_t line = catalog::find_layout(layout)->line_bytes(noise_width);
    return catalog::place_planes(*catalog::find_samples(layout), noise_width, noise_height, line);
}

// Nothing where no sample stands.
void clear_unused(std::string_view layout, Bytes* frame)
{
    for (const catalog::PlacedPlane& placed : planes_of(layout))
        for (int64_t at = placed.offset; at < placed.offset + placed.stride * placed.lines;
             at += placed.plane->unit_bytes)
            for (const catalog::Sample& field : placed.plane->fields)
                if (field.component.empty()) catalog::store_sample(*placed.plane, field, frame->data() + at, 0);
}

Bytes joined(const std::vector<std::span<uint8_t>>& buffers)
{
    Bytes bytes;
    for (const auto& buffer : buffers) bytes.insert(bytes.end(), buffer.begin(), buffer.end());
    return bytes;
}

struct Frames {
    Bytes in, out;
};

Frames through_routine(const catalog::Routine& routine)
{
    Conversion conversion(routine, catalog::plain_call(routine, {noise_width, noise_height}));
    Frames frames;
    frames.in = noise(joined(conversion.inputs()).size());
    if (routine.from != "none") clear_unused(routine.from, &frames.in);
    auto from = frames.in.begin();
    for (const auto& buffer : conversion.inputs()) {
        std::copy_n(from, buffer.size(), buffer.begin());
        from += static_cast<std::ptrdiff_t>(buffer.size());
    }
    conversion.run();
    frames.out = joined(conversion.outputs());
    return frames;
}

std::string first_difference(std::string_view layout, const Bytes& ours, const Bytes& theirs, PeerCheck::Depth depth)
{
    if (ours.size() != theirs.size()) return fmt::format("{} bytes, and ours are {}", theirs.size(), ours.size());
    if (layout == "none") {
        const auto [a, b] = std::ranges::mismatch(ours, theirs);
        return a == ours.end() ? "" : fmt::format("byte {} is {}, and ours {}", a - ours.begin(), *b, *a);
    }
    std::string where;
    catalog::each_sample(
        planes_of(layout), noise_width,
        [&](const catalog::PlacedPlane& placed, const catalog::Sample& sample, int64_t x, int64_t y, int64_t offset) {
            const int drop = depth == PeerCheck::upper8 ? sample.bits - 8 : 0;
            const int64_t a = catalog::load_sample(*placed.plane, sample, &ours[static_cast<size_t>(offset)]);
            const int64_t b = catalog::load_sample(*placed.plane, sample, &theirs[static_cast<size_t>(offset)]);
            if (where.empty() && a >> drop != b >> drop)
                where = fmt::format("line {}, pixel {}, {} is {}, and ours {}", y, x, sample.component, b, a);
        });
    return where;
}

std::string first_line(const std::string& words) { return words.substr(0, words.find('\n')); }

}  // namespace

std::span<const PeerCheck> peer_checks() { return checks; }

std::vector<std::string> peer_command(const PeerCheck& check, int64_t width, int64_t height)
{
    const std::string from(check.from), to(check.to), filter(check.filter);
    if (check.program == ffmpeg) {
        const std::string size = fmt::format("{}x{}", from == "gray" ? width * 4 : width, height);
        std::vector<std::string> command{"ffmpeg", "-v", "error", "-f", "rawvideo", "-pix_fmt",
                                         from,     "-s", size,    "-i", "pipe:0"};
        if (!filter.empty()) command.insert(command.end(), {"-vf", filter});
        command.insert(command.end(), {"-f", "rawvideo", "-pix_fmt", to, "pipe:1"});
        return command;
    }
    std::vector<std::string> command{"gst-launch-1.0",
                                     "-q",
                                     "fdsrc",
                                     "fd=0",
                                     "!",
                                     "rawvideoparse",
                                     "format=" + from,
                                     fmt::format("width={}", width),
                                     fmt::format("height={}", height),
                                     "!",
                                     "videoconvert",
                                     "dither=none"};
    if (!filter.empty()) command.push_back(filter);
    command.insert(command.end(), {"!", "video/x-raw,format=" + to, "!", "fdsink", "fd=1"});
    return command;
}

PeerVerdict verify_by_peer(const PeerCheck& check)
{
    const std::string program(check.program);
    if (!is_installed(program)) return {PeerVerdict::skipped, program + " not found"};
    const catalog::Routine& routine = *catalog::find(check.routine);
    const Frames ours = through_routine(routine);
    const bool back = check.direction == PeerCheck::back;
    const PeerOutput theirs = run_peer(peer_command(check, noise_width, noise_height), back ? ours.out : ours.in);
    if (theirs.code != 0)
        return {PeerVerdict::skipped,
                fmt::format("{} ended with {}: {}", program, theirs.code, first_line(theirs.words))};
    const std::string where =
        first_difference(back ? routine.from : routine.to, back ? ours.in : ours.out, theirs.bytes, check.depth);
    return where.empty() ? PeerVerdict{PeerVerdict::equal, ""} : PeerVerdict{PeerVerdict::differs, where};
}

}  // namespace tintvert::tool
