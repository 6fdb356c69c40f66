#include "capture_report.h"

#include <fmt/format.h>

namespace tintvert::tool {

using namespace core::capture;

namespace {

// Keys of the JSON, and the same in words; in the order of Refusal.
struct Name {
    const char *key, *words;
};
constexpr Name refusal_names[] = {
    {nullptr, nullptr},
    {"header", "with headers that run past the packet"},
    {"length", "longer than the packet"},
    {"cut", "cut off by the capture"},
    {"partial_pgroup", "with a length that is no multiple of 5"},
    {"odd_offset", "with an odd offset"},
    {"second_field", "of a second field (--interlaced weaves them in)"},
    {"line", "on lines outside the frame"},
    {"width", "beyond the end of the line"},
};
static_assert(std::size(refusal_names) == static_cast<size_t>(Refusal::count));

// In the order of Scan.
constexpr const char* scan_names[] = {"progressive", "interlaced_by_field", "interlaced_by_frame"};

Json stream_to_json(const std::optional<Stream>& stream)
{
    if (!stream) return {};
    return {{"port", stream->port ? Json(*stream->port) : Json()},
            {"ssrc", stream->ssrc},
            {"payload_type", stream->payload_type}};
}

// A part of a list that is left out if there is nothing to report.
std::string if_any(uint64_t count, std::string_view words)
{
    return count == 0 ? "" : fmt::format(", {} {}", count, words);
}

}  // namespace

Json to_json(const Report& report)
{
    const PacketCounts& packets = report.packets;
    const SegmentCounts& segments = report.segments;
    const FrameCounts& frames = report.frames;
    Json refused = {{"all", segments.all_refused()}};
    for (size_t i = 1; i < std::size(refusal_names); ++i) refused[refusal_names[i].key] = segments.refused[i];
    const bool has_picture = !report.missing_picture.empty();
    return {
        {"schema", json_schema},
        {"complete", report.is_complete()},
        {"capture",
         {{"file", report.file},
          {"format", report.format},
          {"ends_early", report.ends_early},
          {"skipped", report.skipped},
          {"fragments", report.fragments}}},
        {"stream", stream_to_json(report.stream)},
        {"size",
         {{"width", report.size.width},
          {"height", report.size.height},
          {"scan", scan_names[static_cast<size_t>(report.scan)]}}},
        {"packets",
         {{"read", packets.read},
          {"taken", packets.taken},
          {"missing", packets.order.missing},
          {"reordered", packets.order.reordered},
          {"late", packets.order.late},
          {"duplicate", packets.order.duplicate},
          {"stray", packets.order.stray},
          {"restarts", packets.order.restarts},
          {"cut", packets.cut},
          {"malformed", packets.malformed},
          {"other", packets.other}}},
        {"segments",
         {{"taken", segments.taken},
          {"phase_0", segments.at_phase[0]},
          {"phase_2", segments.at_phase[1]},
          {"phase_4", segments.at_phase[2]},
          {"empty", segments.empty},
          {"refused", refused}}},
        {"frames", {{"whole", frames.whole}, {"incomplete", frames.incomplete}, {"written", frames.written}}},
        {"lines", {{"whole", frames.whole_lines}, {"broken", frames.broken_lines}}},
        {"missing_pixels", frames.missing_pixels},
        {"missing_picture",
         has_picture ? Json{{"file", report.missing_picture}, {"frame", report.missing_picture_of}} : Json()},
    };
}

std::string to_text(const Report& report)
{
    const PacketCounts& packets = report.packets;
    const OrderCounts& order = packets.order;
    const SegmentCounts& segments = report.segments;
    const FrameCounts& frames = report.frames;
    std::string text = fmt::format("{}: {}", report.file, report.format);
    if (report.stream) {
        if (report.stream->port) text += fmt::format(", port {}", *report.stream->port);
        text += fmt::format(", SSRC {:#010x}, payload type {}", report.stream->ssrc, report.stream->payload_type);
    }
    text += report.ends_early ? "; it breaks off inside a packet\n" : "\n";
    text += fmt::format("packets   {} taken, {} missing", packets.taken, order.missing);
    text += if_any(order.reordered, "put back in order") + if_any(order.late, "too late") +
            if_any(order.duplicate, "twice") + if_any(order.stray, "with a stray sequence number") +
            if_any(order.restarts, "new starts of the numbering") + if_any(packets.cut, "cut by the capture") +
            if_any(packets.malformed, "malformed") + if_any(packets.other, "of other streams") +
            if_any(report.fragments, "IP fragments") + if_any(report.skipped, "without UDP") + "\n";
    text += fmt::format("segments  {} taken (at pixel 0, 2, 4 of a group: {}, {}, {})", segments.taken,
                        segments.at_phase[0], segments.at_phase[1], segments.at_phase[2]);
    text += if_any(segments.empty, "empty") + if_any(segments.all_refused(), "refused") + "\n";
    for (size_t i = 1; i < std::size(refusal_names); ++i)
        if (segments.refused[i] > 0)
            text += fmt::format("refused   {} {}\n", segments.refused[i], refusal_names[i].words);
    text += fmt::format("lines     {} whole, {} not\n", frames.whole_lines, frames.broken_lines);
    text += fmt::format("frames    {} whole, {} incomplete{}; {} written\n", frames.whole, frames.incomplete,
                        if_any(frames.missing_pixels, "pixels missing"), frames.written);
    if (!report.missing_picture.empty())
        text += fmt::format("picture   {}: frame {}\n", report.missing_picture, report.missing_picture_of);
    return text;
}

}  // namespace tintvert::tool
