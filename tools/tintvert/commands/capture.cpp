// tintvert capture: RTP packets with 10-bit video to `v210` frames.
#include <fmt/format.h>

#include <memory>

#include "capture/missing_picture.h"
#include "capture_report.h"
#include "commands.h"
#include "diagnostics.h"
#include "io/clip_options.h"
#include "io/output_file.h"
#include "io/pictures/png_file.h"
#include "json.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string input, output, size, missing, interlaced;
    uint16_t port = 0;  // 0 for any
    bool keeps_incomplete = false, json = false;
};

// Lines and offsets have 15 bits in the payload header, and there are two fields to a frame.
capture::FrameSize parse_size(const std::string& size, capture::Scan scan)
{
    const auto [width, height] = size_of(size);
    if (width > 32768 || height > (scan == capture::Scan::by_field ? 65536 : 32768))
        throw Refusal("refused: --size {}: more than a payload header can number", size);
    if (width % 2 != 0)
        throw Refusal("refused: --size {}: RFC 4175 sends 4:2:2 in pairs of pixels, so no odd width", size);
    return {width, height};
}

// The frames on their way into the file, which is made for the first of them.
class Frames {
public:
    explicit Frames(const Options& options) : options_(options) {}

    void take(const capture::Frame& frame)
    {
        ++(frame.is_whole() ? counts_.whole : counts_.incomplete);
        const long whole_lines = frame.whole_lines();
        counts_.whole_lines += static_cast<uint64_t>(whole_lines);
        counts_.broken_lines += static_cast<uint64_t>(frame.size().height - whole_lines);
        counts_.missing_pixels += static_cast<uint64_t>(frame.missing_pixels());
        if (!options_.missing.empty() && frame.missing_pixels() > (worst_ ? worst_->missing_pixels() : 0)) {
            worst_ = frame;
            worst_number_ = counts_.whole + counts_.incomplete;
        }
        if (!frame.is_whole() && !options_.keeps_incomplete) return;
        if (!file_) file_ = std::make_unique<OutputFile>(options_.output);
        file_->write(frame.bytes().data(), frame.bytes().size());
        ++counts_.written;
    }

    // One file is open at a time, so the picture comes after the frames.
    void commit(capture::Report& report)
    {
        if (file_) file_->commit();
        file_.reset();
        report.frames = counts_;
        if (!worst_) return;
        write_png(options_.missing, capture::missing_picture(*worst_));
        report.missing_picture = options_.missing;
        report.missing_picture_of = worst_number_;
    }

private:
    const Options& options_;
    std::unique_ptr<OutputFile> file_;
    capture::FrameCounts counts_;
    std::optional<capture::Frame> worst_;
    uint64_t worst_number_ = 0;
};

capture::Scan scan_of(const std::string& interlaced)
{
    if (interlaced.empty()) return capture::Scan::progressive;
    return interlaced == "frame" ? capture::Scan::by_frame : capture::Scan::by_field;
}

capture::Report walk(const Options& options)
{
    const capture::Scan scan = scan_of(options.interlaced);
    const capture::FrameSize size = parse_size(options.size, scan);
    capture::Input input(options.input);
    const std::unique_ptr<capture::Source> source = capture::open_source(input);
    capture::WalkerOptions walker_options{size, scan};
    if (options.port != 0) walker_options.port = options.port;
    if (walker_options.port && !source->has_ports())
        throw Failure(Exit::usage, "{} has RFC 4571 framing, which has no ports: leave out --port", options.input);

    Frames frames(options);
    capture::Walker walker(walker_options, [&](const capture::Frame& frame) { frames.take(frame); });
    capture::Datagram datagram;
    while (source->next(datagram)) walker.take(datagram);
    walker.finish();

    capture::Report report;
    report.file = options.input;
    report.format = source->format();
    report.ends_early = source->ends_early();
    report.skipped = source->skipped();
    report.fragments = source->fragments();
    report.size = size;
    report.scan = scan;
    report.stream = walker.stream();
    report.packets = walker.packets();
    report.segments = walker.segments();
    frames.commit(report);
    return report;
}

Exit run(const Options& options)
{
    const capture::Report report = walk(options);
    if (options.json)
        write_json(to_json(report));
    else
        print_error_lines(to_text(report));
    if (!report.stream) throw Failure(Exit::no_file, "{} has no RTP packet with 10-bit video", options.input);
    if (report.frames.written == 0)
        throw Failure(Exit::no_file, "{} has no {}frame of {}; nothing is written", options.input,
                      options.keeps_incomplete ? "" : "whole ", options.size);
    return report.is_complete() ? Exit::done : Exit::differs;
}

}  // namespace

Command add_capture(CLI::App& tool)
{
    CLI::App* const app = tool.add_subcommand("capture", "RTP packets with 10-bit 4:2:2 (RFC 4175) to v210 frames.");
    const auto options = std::make_shared<Options>();
    app->add_option("capture", options->input, "a pcap, or RTP packets with RFC 4571 framing")->required();
    app->add_option("output", options->output, "the v210 frames, one after the other")->required();
    app->add_option("-s,--size", options->size, "width and height of a frame, such as 1920x1080")->required();
    app->add_option("--port", options->port, "in a pcap, the UDP port that the video was sent to")
        ->check(CLI::Range(1, 65535));
    app->add_flag("--interlaced{field}", options->interlaced,
                  "weave two fields into a frame; =frame if lines are numbered through the frame, not by field")
        ->check(CLI::IsMember({"field", "frame"}))
        ->option_text("[=field|frame]");
    app->add_flag("--keep-incomplete", options->keeps_incomplete,
                  "write frames with missing samples too, which are 0 there");
    app->add_option("--missing", options->missing,
                    "a PNG of the frame that misses most, in grey, with magenta where samples are missing");
    app->add_flag("--json", options->json, "the report on stdout as JSON instead of text on stderr");
    return {app, [options] { return naming(options->input, [&] { return run(*options); }); }};
}

}  // namespace tintvert::tool
