// 8-bit YCbCr: planes, and alpha.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tntvt_planar_2vuy = record<RoutineId::tntvt_planar_2vuy, shapes::join_planes>({
    .chapter = "ycbcr8", .from = &layout::planar422, .to = &layout::_2vuy, .extents = extents::join_planes,
    .quirks = {"keeps_planes_without_lines"}, .peers = {ffmpeg<"yuv422p", "uyvy422">, libyuv("I422ToUYVY")},
    .steps = {{.rank = 14}},
    .summary = "4:2:2 planes to packed 4:2:2, unbroken runs."});

constinit const Routine records::tntvt_2vuy_planar = record<RoutineId::tntvt_2vuy_planar, shapes::part_planes>({
    .chapter = "ycbcr8", .from = &layout::_2vuy, .to = &layout::planar422, .extents = extents::part_planes,
    .quirks = {"keeps_planes_without_lines"}, .peers = {ffmpeg<"uyvy422", "yuv422p">, libyuv("UYVYToI422")},
    .steps = {{.rank = 15}},
    .summary = "Packed 4:2:2 to planes, unbroken runs."});

constinit const Routine records::tntvt_planarfields_2vuy =
    record<RoutineId::tntvt_planarfields_2vuy, shapes::join_fields>({
    .chapter = "ycbcr8", .from = &layout::field_planes, .to = &layout::_2vuy, .extents = extents::join_fields,
    .refuses = refusals::no_groups, .quirks = {"keeps_planes_without_lines", "keeps_fault_of_no_groups"},
    .steps = {{.rank = 16}},
    .summary = "Two fields of 4:2:2 planes woven into one packed frame."});

constinit const Routine records::tntvt_i420_2vuy = record<RoutineId::tntvt_i420_2vuy, shapes::packed>({
    .chapter = "ycbcr8", .from = &layout::i420, .to = &layout::_2vuy, .extents = extents::planes_420_to_2vuy,
    .refuses = refusals::planes_420, .quirks = {"keeps_long_luma_lines_of_odd_width"},
    .peers = {gstreamer<"i420", "UYVY", " chroma-mode=none ">, libyuv("I420ToUYVY")}, .steps = {{.rank = 17}},
    .summary = "4:2:0 to 4:2:2, chroma lines repeated."});

constinit const Routine records::tntvt_2vuy_i420 = record<RoutineId::tntvt_2vuy_i420, shapes::packed>({
    .chapter = "ycbcr8", .from = &layout::_2vuy, .to = &layout::i420, .extents = extents::planes_420_from_2vuy,
    .refuses = refusals::planes_420, .quirks = {"keeps_slack_as_pixels"}, .peers = {near(libyuv("UYVYToI420"))},
    .steps = {{.rank = 18, .chroma = ChromaLoss::dropped}},
    .summary = "4:2:2 to 4:2:0, the chroma of odd lines dropped."});

constinit const Routine records::tntvt_yv12_2vuy = record<RoutineId::tntvt_yv12_2vuy, shapes::packed_interlaced>({
    .chapter = "ycbcr8", .from = &layout::yv12, .to = &layout::_2vuy, .extents = extents::planes_420_to_2vuy,
    .refuses = refusals::planes_420, .quirks = {"keeps_long_luma_lines_of_odd_width", "keeps_interlaced_line_order"},
    .peers = {gstreamer<"yv12", "UYVY", " chroma-mode=none ">, libyuv("I420ToUYVY, Cr first")}, .steps = {{.rank = 19}},
    .summary = "4:2:0, Cr first, to 4:2:2, in order or in the interlaced line order."});

constinit const Routine records::tntvt_2vuy_yv12 = record<RoutineId::tntvt_2vuy_yv12, shapes::packed>({
    .chapter = "ycbcr8", .from = &layout::_2vuy, .to = &layout::yv12, .extents = extents::planes_420_from_2vuy,
    .refuses = refusals::planes_420, .quirks = {"keeps_slack_as_pixels"},
    .steps = {{.rank = 20, .chroma = ChromaLoss::dropped}},
    .summary = "4:2:2 to 4:2:0, Cr first, the chroma of odd lines dropped."});

constinit const Routine records::YUY2toYV12 = record<RoutineId::YUY2toYV12, shapes::pitches>({
    .chapter = "ycbcr8", .from = &layout::YUY2, .to = &layout::planar420, .extents = extents::yuy2_to_planes,
    .refuses = refusals::pitches, .quirks = {"keeps_drift_of_odd_width"}, .peers = {libyuv("YUY2ToI420")},
    .steps = {{.rank = 21, .to = &layout::i420, .chroma = ChromaLoss::averaged}},
    .summary = "4:2:2 to three 4:2:0 planes, chroma averaged over two lines."});

constinit const Routine records::tntvt_alphay_to_2yuv = record<RoutineId::tntvt_alphay_to_2yuv, shapes::strided>({
    .chapter = "ycbcr8", .from = &layout::alphay, .to = &layout::_2yuv, .extents = extents::alphay_to_2yuv,
    .in_place = {as_apart, in_place_rules::luma_grows}, .quirks = {"keeps_lines_at_end_of_stride"},
    .steps = {{.rank = 22, .to = &layout::_2vuy}},
    .summary = "A luma plane to 4:2:2 with neutral chroma; may run in place."});

constinit const Routine records::tntvt_2yuv_to_alphay = record<RoutineId::tntvt_2yuv_to_alphay, shapes::strided>({
    .chapter = "ycbcr8", .from = &layout::_2yuv, .to = &layout::alphay, .extents = extents::alphay_from_2yuv,
    .in_place = {as_apart, in_place_rules::luma_shrinks}, .quirks = {"keeps_one_line_more"},
    .peers = {near(ffmpeg<"uyvy422", "gray">)},
    .steps = {{.rank = 23, .from = &layout::_2vuy, .chroma = ChromaLoss::dropped}},
    .summary = "The luma of 4:2:2 as a plane, height + 1 lines."});

constinit const Routine records::tntvt_alpha_to_rgba = record<RoutineId::tntvt_alpha_to_rgba, shapes::alpha_in>({
    .chapter = "ycbcr8", .from = &layout::alpha, .to = &layout::rgba, .extents = extents::alpha_to_rgba,
    .in_place = {fails}, .peers = {near(libyuv("ARGBCopyYToAlpha"))}, .steps = {{.rank = 40}},
    .summary = "An alpha plane in all four bytes of each pixel."});

constinit const Routine records::tntvt_rgba_to_alpha = record<RoutineId::tntvt_rgba_to_alpha, shapes::alpha_out>({
    .chapter = "ycbcr8", .from = &layout::rgba, .to = &layout::alpha, .extents = extents::rgba_to_alpha,
    .in_place = {as_apart, in_place_rules::words_to_plane}, .quirks = {"keeps_first_byte_as_alpha"},
    .peers = {near(libyuv("ARGBExtractAlpha"))},
    .summary = "Byte 0 of each pixel as an alpha plane."});

constinit const Routine records::tntvt_rgba_setalpha = record<RoutineId::tntvt_rgba_setalpha, shapes::alpha_set>({
    .chapter = "ycbcr8", .from = &layout::rgba, .to = &layout::rgba, .extents = extents::rgba_setalpha,
    .summary = "One alpha in byte 3 of each pixel."});

constinit const Routine records::tntvt_rgba_addalpha = record<RoutineId::tntvt_rgba_addalpha, shapes::alpha_add>({
    .chapter = "ycbcr8", .from = &layout::rgb24, .to = &layout::rgba, .extents = extents::rgba_addalpha,
    .refuses = refusals::negative_width, .in_place = {fails}, .quirks = {"keeps_negative_width_as_unsigned"},
    .summary = "24 to 32 bits with one alpha in byte 3."});

}  // namespace tintvert::catalog
