// The calling shapes, one record each.
#pragma once

#include <array>

#include "shape.h"

namespace tintvert::catalog::shapes {

template <Arg... arguments>
constexpr std::array<Arg, sizeof...(arguments)> in_order = {arguments...};

using PictureBytes = int64_t(const Routine&, const Arguments&);
// `src_` and `dst_`: by the layout and the strides of that side. The names of the planes are those of their arguments.
PictureBytes src_lines, dst_lines, src_stride_lines, dst_stride_lines;
PictureBytes src_frame, dst_frame, src_line, dst_line, src_run, dst_run;
PictureBytes payload_bytes, stream_bytes, palette_bytes, whole_buffer, packets, v210_run;
PictureBytes run_packed, run_luma, run_chroma, groups_packed, groups_luma, groups_chroma;
PictureBytes pitch_src, pitch_luma, pitch_chroma, first_field, second_field;
int64_t one_src_line_before(const Arguments&);
int64_t one_dst_line_before(const Arguments&);
Arguments plain_in_elements(const Routine&, const Geometry&);

using enum Arg;
inline constexpr Shape open = {.name = "open", .arguments = in_order<ignored, ignored, ignored, ignored>};
inline constexpr Shape scratch_new = {.name = "scratch_new", .arguments = in_order<size, raw, aligned>};
inline constexpr Shape scratch_free = {.name = "scratch_free", .arguments = in_order<raw, aligned>};
inline constexpr Shape line = {
    .name = "line", .arguments = in_order<src, dst, pixels>, .pictures = {{src, src_run}, {dst, dst_run}}};
inline constexpr Shape line_bgra = {
    .name = "line_bgra", .arguments = in_order<src, dst, pixels, bgra>, .pictures = {{src, src_run}, {dst, dst_run}}};
inline constexpr Shape strided = {.name = "strided",
                                  .arguments = in_order<dst, dstStride, src, srcStride, width, height>,
                                  .pictures = {{dst, dst_lines}, {src, src_lines}}};
inline constexpr Shape strided_scale = {.name = "strided_scale",
                                        .arguments = in_order<dst, dstStride, src, srcStride, width, height, scale>,
                                        .pictures = {{dst, dst_lines}, {src, src_lines}}};
inline constexpr Shape pitch_pair = {.name = "pitch_pair",
                                     .arguments = in_order<dst, src, dstStride, srcStride, height>,
                                     .pictures = {{dst, dst_lines}, {src, src_lines}}};
inline constexpr Shape rfc4175_payload = {.name = "rfc4175_payload",
                                          .arguments = in_order<dst, payload, payloadSize, pgroupCount, startPhase>,
                                          .pictures = {{dst, dst_line}, {payload, payload_bytes}}};
inline constexpr Shape packed10 = {.name = "packed10",
                                   .arguments = in_order<dst, src, width, height>,
                                   .pictures = {{dst, dst_frame}, {src, src_frame}}};
inline constexpr Shape rfc4175_packet = {
    .name = "rfc4175_packet",
    .arguments = in_order<packet, packetSize, seq, timestamp, ssrc, extSeq, ignored, width, height, outA, outB>,
    .pictures = {{packet, packets}}};
inline constexpr Shape tight_flags = {
    .name = "tight_flags",
    .arguments = in_order<dst, ignored, src, ignored, width, height, swapBytes, flipLines>,
    .pictures = {{dst, dst_frame}, {src, src_frame}}};
inline constexpr Shape coded_strided = {.name = "coded_strided",
                                        .arguments = in_order<dst, dstStride, src, ignored, ignored, height, palette>,
                                        .pictures = {{dst, dst_lines}, {src, stream_bytes}, {palette, palette_bytes}}};
inline constexpr Shape coded_tight = {.name = "coded_tight",
                                      .arguments = in_order<dst, ignored, src, ignored, ignored, height, palette>,
                                      .pictures = {{dst, dst_frame}, {src, stream_bytes}, {palette, palette_bytes}}};
inline constexpr Shape empty_strided = {.name = "empty_strided",
                                        .arguments = in_order<ignored, ignored, ignored, ignored, ignored, ignored>};
inline constexpr Shape empty_coded = {
    .name = "empty_coded", .arguments = in_order<ignored, ignored, ignored, ignored, ignored, ignored, ignored>};
inline constexpr Shape unstrided = {.name = "unstrided",
                                    .arguments = in_order<dst, src, width, height>,
                                    .pictures = {{dst, dst_frame}, {src, src_frame}}};
inline constexpr Shape packed_run = {.name = "packed_run",
                                     .arguments = in_order<dst, src, width, height, ignored>,
                                     .pictures = {{dst, dst_frame}, {src, src_frame}}};
inline constexpr Shape packed_empty = {.name = "packed_empty",
                                       .arguments = in_order<ignored, ignored, ignored, ignored, ignored>};
inline constexpr Shape packed = {.name = "packed",
                                 .arguments = in_order<dst, src, width, height, stride>,
                                 .pictures = {{dst, dst_stride_lines}, {src, src_stride_lines}}};
inline constexpr Shape packed_interlaced = {.name = "packed_interlaced",
                                            .arguments = in_order<dst, src, width, height, stride, interlaced>,
                                            .pictures = {{dst, dst_stride_lines}, {src, src_stride_lines}}};
inline constexpr Shape join_planes = {
    .name = "join_planes",
    .arguments = in_order<dst, y, cb, cr, ignored, ignored, ignored, count>,
    .pictures = {{dst, run_packed}, {y, run_luma}, {cb, run_chroma}, {cr, run_chroma}}};
inline constexpr Shape part_planes = {
    .name = "part_planes",
    .arguments = in_order<y, cb, cr, ignored, ignored, ignored, src, count>,
    .pictures = {{y, run_luma}, {cb, run_chroma}, {cr, run_chroma}, {src, run_packed}}};
inline constexpr Shape join_fields = {
    .name = "join_fields",
    .arguments = in_order<dst, y1, cb1, cr1, y2, cb2, cr2, ignored, ignored, ignored, groups, total>,
    .pictures = {{dst, groups_packed},
                 {y1, groups_luma},
                 {cb1, groups_chroma},
                 {cr1, groups_chroma},
                 {y2, groups_luma},
                 {cb2, groups_chroma},
                 {cr2, groups_chroma}}};
inline constexpr Shape pitches = {
    .name = "pitches",
    .arguments = in_order<src, y, cb, cr, width, height, srcPitch, dstPitch>,
    .pictures = {{src, pitch_src}, {y, pitch_luma}, {cb, pitch_chroma}, {cr, pitch_chroma}}};
inline constexpr Shape alpha_in = {.name = "alpha_in",
                                   .arguments = in_order<dst, ignored, src, dstStride, width, height>,
                                   .pictures = {{dst, dst_lines}, {src, src_frame}}};
inline constexpr Shape alpha_out = {.name = "alpha_out",
                                    .arguments = in_order<dst, ignored, src, srcStride, width, height>,
                                    .pictures = {{dst, dst_frame}, {src, src_lines}}};
inline constexpr Shape alpha_set = {.name = "alpha_set",
                                    .arguments = in_order<dst, dstStride, alpha, width, height>,
                                    .pictures = {{dst, dst_lines}},
                                    .works_on_dst = true};
inline constexpr Shape alpha_add = {.name = "alpha_add",
                                    .arguments = in_order<src, dst, srcStride, dstStride, alpha, width, height>,
                                    .pictures = {{src, src_lines}, {dst, dst_lines}}};
inline constexpr Shape line_mode = {
    .name = "line_mode", .arguments = in_order<buf, bytes, mode>, .pictures = {{buf, whole_buffer}}};
inline constexpr Shape buffer_up = {
    .name = "buffer_up", .arguments = in_order<buffer, bytes, up>, .pictures = {{buffer, whole_buffer}}};
inline constexpr Shape word_run = {
    .name = "word_run", .arguments = in_order<dst, src, pixels>, .pictures = {{dst, dst_run}, {src, src_run}}};
inline constexpr Shape strided_crossed = {
    .name = "strided_crossed",
    .arguments = in_order<src, dstStride, dst, srcStride, width, height>,
    .pictures = {{src, src_lines, one_src_line_before}, {dst, dst_lines, one_dst_line_before}}};
inline constexpr Shape strided_bits = {.name = "strided_bits",
                                       .arguments = in_order<dst, dstStride, src, srcStride, width, height, bits>,
                                       .pictures = {{dst, dst_lines}, {src, src_lines}}};
inline constexpr Shape strided_order = {
    .name = "strided_order",
    .arguments = in_order<dst, dstStride, src, srcStride, width, height, ignored, order>,
    .pictures = {{dst, dst_lines}, {src, src_lines}}};
inline constexpr Shape strided_bits_order = {
    .name = "strided_bits_order",
    .arguments = in_order<dst, dstStride, src, srcStride, width, height, bits, order>,
    .pictures = {{dst, dst_lines}, {src, src_lines}}};
inline constexpr Shape field_change = {.name = "field_change",
                                       .arguments = in_order<dst, mode, width, height, dstStride, src, srcStride>,
                                       .pictures = {{dst, dst_lines}, {src, src_lines}},
                                       .works_on_dst = true};
inline constexpr Shape comb_repair = {
    .name = "comb_repair",
    .arguments = in_order<dst, src, width, height, stride, threshold, softness, ignored, mode>,
    .pictures = {{dst, dst_stride_lines}, {src, src_stride_lines}},
    .plain = plain_in_elements};
inline constexpr Shape comb_ignored = {
    .name = "comb_ignored",
    .arguments = in_order<ignored, ignored, ignored, ignored, ignored, ignored, ignored, ignored, ignored>};
inline constexpr Shape flip = {.name = "flip",
                               .arguments = in_order<dst, src, ignored, height, stride>,
                               .pictures = {{dst, dst_stride_lines}, {src, src_stride_lines}}};
inline constexpr Shape flip_placed = {
    .name = "flip_placed",
    .arguments = in_order<dst, src, ignored, ignored, height, dstStride, srcStride, flags, keepMargins>,
    .pictures = {{dst, dst_lines}, {src, src_lines}}};
inline constexpr Shape mirror = {.name = "mirror",
                                 .arguments = in_order<dst, src, width, height, stride>,
                                 .pictures = {{dst, dst_stride_lines}, {src, src_stride_lines}}};
inline constexpr Shape fields_to_frame = {
    .name = "fields_to_frame",
    .arguments = in_order<dst, dstStride, firstField, secondField, fieldStride, width, height>,
    .pictures = {{dst, dst_lines}, {firstField, first_field}, {secondField, second_field}}};
inline constexpr Shape frame_to_fields = {
    .name = "frame_to_fields",
    .arguments = in_order<firstField, secondField, fieldStride, src, srcStride, width, height>,
    .pictures = {{firstField, first_field}, {secondField, second_field}, {src, src_lines}}};
inline constexpr Shape frame_copy = {.name = "frame_copy",
                                     .arguments = in_order<dst, dstStride, src, srcStride, ignored, height>,
                                     .pictures = {{dst, dst_lines}, {src, src_lines}}};
inline constexpr Shape dissolve = {.name = "dissolve",
                                   .arguments = in_order<dst, src, stride, width, height, fourcc>,
                                   .pictures = {{dst, dst_stride_lines}, {src, src_stride_lines}},
                                   .works_on_dst = true};
inline constexpr Shape no_arguments = {.name = "no_arguments", .arguments = in_order<>};
inline constexpr Shape split_group = {
    .name = "split_group", .arguments = in_order<src, out>, .pictures = {{src, src_line}}};
inline constexpr Shape run_to_rgb = {.name = "run_to_rgb",
                                     .arguments = in_order<src, dst, width, height, dstStride, bgraOrder>,
                                     .pictures = {{src, v210_run}, {dst, dst_lines}}};
inline constexpr Shape line_of_width = {
    .name = "line_of_width", .arguments = in_order<src, dst, width>, .pictures = {{src, src_line}, {dst, dst_line}}};
inline constexpr Shape line_of_width_alpha = {.name = "line_of_width_alpha",
                                              .arguments = in_order<src, dst, width, hasAlpha>,
                                              .pictures = {{src, src_line}, {dst, dst_line}}};
inline constexpr Shape packed_to_strided = {.name = "packed_to_strided",
                                            .arguments = in_order<dst, src, width, height, dstStride>,
                                            .pictures = {{dst, dst_lines}, {src, src_frame}}};
inline constexpr Shape strided_to_packed = {.name = "strided_to_packed",
                                            .arguments = in_order<dst, src, width, height, srcStride>,
                                            .pictures = {{dst, dst_frame}, {src, src_lines}}};
inline constexpr Shape packed_420 = {.name = "packed_420",
                                     .arguments = in_order<dst, src, width, height, srcStride>,
                                     .pictures = {{dst, dst_frame}, {src, src_frame}}};

}  // namespace tintvert::catalog::shapes
