// Other software that does the work of a routine: commands for frames of W x H pixels without slack, and functions of
// libraries.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace tintvert::catalog {

struct Peer {
    enum Agreement { exact, near };  // the same bytes; the same work by other rules, as docs/peers.md explains
    enum Direction { same, back };   // it does what the routine does, or converts the routine's result back
    // What is equal: samples with all their bits, their upper eight, samples give or take 1, or bytes, whatever they
    // are. Peers that are near in no such way are not compared.
    enum Compared { nothing, samples, upper8, within1, bytes };

    std::string_view program;  // the first word of a command, or the name of a library
    std::string_view command;  // or what a library is asked for
    Agreement agreement = exact;
    Direction direction = same;
    Compared compared = samples;
};

namespace peers {

constexpr std::string_view ffmpeg_program = "ffmpeg", gstreamer_program = "gst-launch-1.0";

template <size_t size>
struct Text {
    char characters[size];
    constexpr Text(const char (&text)[size]) { std::copy_n(text, size, characters); }
};

template <Text... parts>
constexpr auto characters = [] {
    std::array<char, (sizeof parts.characters + ...) - sizeof...(parts)> all{};
    auto at = all.begin();
    ((at = std::copy_n(parts.characters, sizeof parts.characters - 1, at)), ...);
    return all;
}();
template <Text... parts>
constexpr std::string_view joined = {characters<parts...>.data(), characters<parts...>.size()};

// Raw frames from one pixel format to another, with options for the output in between.
template <Text from, Text to, Text options = " ">
constexpr Peer ffmpeg = {
    ffmpeg_program,
    joined<"ffmpeg -f rawvideo -pix_fmt ", from, " -s WxH -i in -f rawvideo", options, "-pix_fmt ", to, " out">};
template <Text from, Text to, Text options = " ">
constexpr Peer gstreamer = {
    gstreamer_program,
    joined<"gst-launch-1.0 filesrc location=in ! rawvideoparse format=", from, " width=W height=H ! videoconvert",
           options, "dither=none ! video/x-raw,format=", to, " ! filesink location=out">};

constexpr Peer command(std::string_view words) { return {words.substr(0, words.find(' ')), words}; }
constexpr Peer libyuv(std::string_view function) { return {"libyuv", function}; }
constexpr Peer zimg(std::string_view what) { return {"zimg", what}; }
constexpr Peer oiiotool(std::string_view what) { return {"oiiotool", what}; }

constexpr Peer near(Peer peer, Peer::Compared compared = Peer::nothing)
{
    peer.agreement = Peer::near;
    peer.compared = compared;
    return peer;
}
constexpr Peer back(Peer peer)
{
    peer.direction = Peer::back;
    return peer;
}
constexpr Peer by_bytes(Peer peer)
{
    peer.compared = Peer::bytes;
    return peer;
}

}  // namespace peers
}  // namespace tintvert::catalog
