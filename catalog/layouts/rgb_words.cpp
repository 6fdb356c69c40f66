// RGB of other depths than 8 bits: channels in words.
#include "layouts.h"

namespace tintvert::catalog {

namespace {

int64_t rgb12_line(int64_t width) { return (width * 36 + 31) / 32 * 4; }

}  // namespace

constinit const Layout layout::rgb16 = {
    .name = "rgb16", .summary = "5 bits a channel in a little-endian word", .ffmpeg = "rgb555le", .gstreamer = "RGB15",
    .fourcc = "L555", .libyuv = "ARGB1555", .samples = {{.fields = "-:1 R:5 G:5 B:5", .word_bytes = 2}},
    .note = "Bit 15 is 0 when written and ignored when read."};

constinit const Layout layout::rgb48 = {
    .name = "rgb48", .summary = "16-bit channels, little-endian", .ffmpeg = "bgr48le",
    .samples = {{.fields = "B:16 G:16 R:16", .word_bytes = 2}}, .note = "The words go to b0, b1 and b2 of rgba32."};

constinit const Layout layout::bgr48 = {
    .name = "bgr48", .summary = "rgb48 with the channels reversed", .ffmpeg = "rgb48le",
    .samples = {{.fields = "R:16 G:16 B:16", .word_bytes = 2}}, .note = "The words go to b2, b1 and b0 of rgba32."};

constinit const Layout layout::rgb48_12 = {
    .name = "rgb48_12", .summary = "12-bit values in the low bits of 16-bit words",
    .samples = {{.fields = "-:4 R:12 -:4 G:12 -:4 B:12", .word_bytes = 2}}};

constinit const Layout layout::rgba64 = {
    .name = "rgba64", .summary = "16-bit channels, alpha last, blue first", .ffmpeg = "bgra64le",
    .gstreamer = "BGRA64_LE", .libyuv = "AR64", .samples = {{.fields = "B:16 G:16 R:16 A:16", .word_bytes = 2}}};

constinit const Layout layout::bgra64 = {
    .name = "bgra64", .summary = "16-bit channels, alpha last, red first", .ffmpeg = "rgba64le",
    .gstreamer = "RGBA64_LE", .libyuv = "AB64", .samples = {{.fields = "R:16 G:16 B:16 A:16", .word_bytes = 2}}};

constinit const Layout layout::argb64 = {
    .name = "argb64", .summary = "16-bit channels, alpha first, then blue", .gstreamer = "ABGR64_LE",
    .samples = {{.fields = "A:16 B:16 G:16 R:16", .word_bytes = 2}}};

constinit const Layout layout::abgr64 = {
    .name = "abgr64", .summary = "16-bit channels, alpha first, then red", .gstreamer = "ARGB64_LE",
    .samples = {{.fields = "A:16 R:16 G:16 B:16", .word_bytes = 2}}};

constinit const Layout layout::argb64be = {
    .name = "argb64be", .summary = "argb64 with big-endian channels", .gstreamer = "ABGR64_BE",
    .samples = {{.fields = "A:16 B:16 G:16 R:16", .word_bytes = 2, .big_endian = true}}};

constinit const Layout layout::rgb10 = {
    .name = "rgb10", .summary = "10-bit RGB in a word, either byte order", .ffmpeg = "codec r10k (big-endian)",
    .fourcc = "R10k (big-endian)", .libyuv = "AR30 shifted left by 2 (little-endian)",
    .samples = {{.fields = "R:10 G:10 B:10 -:2", .word_bytes = 4, .big_endian = true, .form = "big"},
        {.fields = "R:10 G:10 B:10 -:2", .word_bytes = 4, .form = "little"}}, .note = "Lines have no gap."};

constinit const Layout layout::rgb12 = {
    .name = "rgb12", .summary = "12-bit RGB without gaps, two arrangements",
    .samples = {{.fields = "G0:12 R0:12  R1:12 B0:12  B1:12 G1:12", .across = 2, .word_bytes = 3, .form = "dpx"},
        {.fields = "R0:12 G0:12  B0:12 R1:12  G1:12 B1:12", .across = 2, .word_bytes = 3, .big_endian = true,
        .form = "tiff"}}, .line_rule = rgb12_line,
    .note = "dpx is what the unpackers read: 32-bit words filled from bit 0 upward (packed 12-bit DPX). tiff is what "
        "the " "packers\nwrite: bytes filled from bit 7 downward (12-bit TIFF, RFC 4175 RGB depth 12)."};

}  // namespace tintvert::catalog
