// 8-bit YCbCr, packed.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::argb_to_2vuy = record<RoutineId::argb_to_2vuy, shapes::line>({
    .chapter = "ycbcr8", .from = &layout::ARGB, .to = &layout::_2vuy, .extents = extents::argb_run_to_2vuy,
    .in_place = {as_apart, in_place_rules::always}, .quirks = {"keeps_truncation_of_grey"},
    .steps = {{.rank = 2, .from = &layout::abgr32, .matrix = Matrix::bt601, .chroma = ChromaLoss::filtered}},
    .summary = "RGB to 4:2:2, BT.601 video range, one run of pixels."});

constinit const Routine records::bgra_to_2vuy = record<RoutineId::bgra_to_2vuy, shapes::line>({
    .chapter = "ycbcr8", .from = &layout::BGRA, .to = &layout::_2vuy, .extents = extents::bgra_run_to_2vuy,
    .in_place = {as_apart, in_place_rules::always}, .quirks = {"keeps_truncation_of_grey"},
    .peers = {near(gstreamer<"bgra", "UYVY">), near(libyuv("ARGBToUYVY"))},
    .summary = "RGB to 4:2:2, BT.601 video range, one run of pixels."});

constinit const Routine records::hd_rgb_to_2vuy = record<RoutineId::hd_rgb_to_2vuy, shapes::line_bgra>({
    .chapter = "ycbcr8", .from = &layout::BGRA, .to = &layout::_2vuy, .extents = extents::either_run_to_2vuy,
    .in_place = {as_apart, in_place_rules::always},
    .quirks = {"keeps_wrap_of_pure_blue_and_red", "keeps_chroma_start_without_half"},
    .peers = {near(libyuv("ARGBToUYVY"))},
    .summary = "RGB to 4:2:2, BT.709 full range, one run of pixels."});

constinit const Routine records::tntvt_rgb32_2vuy = record<RoutineId::tntvt_rgb32_2vuy, shapes::strided>({
    .chapter = "ycbcr8", .from = &layout::rgb32, .to = &layout::_2vuy, .extents = extents::bgra_frame_to_2vuy,
    .refuses = refusals::run_of_pixels, .in_place = {as_apart, in_place_rules::always},
    .quirks = {"keeps_one_run_whatever_the_strides"},
    .peers = {near(gstreamer<"bgra", "UYVY">), near(libyuv("ARGBToUYVY"))},
    .steps = {{.rank = 1, .matrix = Matrix::bt601, .chroma = ChromaLoss::filtered}},
    .summary = "RGB to 4:2:2, BT.601 video range, the frame as one run."});

constinit const Routine records::yuv2_to_2vuy = record<RoutineId::yuv2_to_2vuy, shapes::line>({
    .chapter = "ycbcr8", .from = &layout::yuv2, .to = &layout::_2vuy, .extents = extents::pixel_run_to_2vuy,
    .in_place = {as_apart, in_place_rules::always}, .quirks = {"keeps_zero_chroma_like_one"},
    .summary = "Full-range 4:2:2 with signed chroma to video range, one run of pixels."});

constinit const Routine records::yuvs_to_2vuy = record<RoutineId::yuvs_to_2vuy, shapes::line>({
    .chapter = "ycbcr8", .from = &layout::yuvs, .to = &layout::_2vuy, .extents = extents::pixel_run_to_2vuy,
    .in_place = {as_apart, in_place_rules::always}, .quirks = {"keeps_zero_chroma_like_one"},
    .summary = "Full-range 4:2:2 to video range, one run of pixels."});

constinit const Routine records::tntvt_yuv2_2vuy = record<RoutineId::tntvt_yuv2_2vuy, shapes::unstrided>({
    .chapter = "ycbcr8", .from = &layout::yuv2, .to = &layout::_2vuy, .extents = extents::pixel_frame_to_2vuy,
    .refuses = refusals::run_of_pixels, .in_place = {as_apart, in_place_rules::always},
    .quirks = {"keeps_zero_chroma_like_one"}, .steps = {{.rank = 10}},
    .summary = "Full-range 4:2:2 with signed chroma to video range, the frame as one run."});

constinit const Routine records::tntvt_yuvu_2vuy = record<RoutineId::tntvt_yuvu_2vuy, shapes::unstrided>({
    .chapter = "ycbcr8", .from = &layout::yuvu, .to = &layout::_2vuy, .extents = extents::pixel_frame_to_2vuy,
    .refuses = refusals::run_of_pixels, .in_place = {as_apart, in_place_rules::always}, .alias_of = &tntvt_yuv2_2vuy,
    .quirks = {"keeps_zero_chroma_like_one"},
    .summary = "Full-range 4:2:2 with signed chroma to video range, the frame as one run."});

constinit const Routine records::tntvt_yuvs_2vuy = record<RoutineId::tntvt_yuvs_2vuy, shapes::unstrided>({
    .chapter = "ycbcr8", .from = &layout::yuvs, .to = &layout::_2vuy, .extents = extents::pixel_frame_to_2vuy,
    .refuses = refusals::run_of_pixels, .in_place = {as_apart, in_place_rules::always},
    .quirks = {"keeps_zero_chroma_like_one"}, .steps = {{.rank = 11}},
    .summary = "Full-range 4:2:2 to video range, the frame as one run."});

constinit const Routine records::tntvt_yuv444_yuv422_8 = record<RoutineId::tntvt_yuv444_yuv422_8, shapes::packed_run>({
    .chapter = "ycbcr8", .from = &layout::yuv444, .to = &layout::_2vuy, .extents = extents::yuv444_to_422,
    .refuses = refusals::run_of_triples, .in_place = {fails},
    .quirks = {"keeps_frames_of_444_unbroken", "keeps_store_before_load_of_444"},
    .peers = {gstreamer<"v308", "UYVY", " chroma-mode=none ">}, .steps = {{.rank = 12, .chroma = ChromaLoss::dropped}},
    .summary = "4:4:4 to 4:2:2, the chroma of odd pixels dropped."});

constinit const Routine records::tntvt_yuv422_yuv444_8 = record<RoutineId::tntvt_yuv422_yuv444_8, shapes::packed_run>({
    .chapter = "ycbcr8", .from = &layout::_2vuy, .to = &layout::yuv444, .extents = extents::yuv422_to_444,
    .refuses = refusals::run_of_triples, .in_place = {fails},
    .quirks = {"keeps_frames_of_444_unbroken", "keeps_store_before_load_of_444"},
    .peers = {gstreamer<"uyvy", "v308", " chroma-mode=none ">}, .steps = {{.rank = 13}},
    .summary = "4:2:2 to 4:4:4, chroma repeated."});

constinit const Routine records::tntvt_yuv411_yuv422_8 =
    record<RoutineId::tntvt_yuv411_yuv422_8, shapes::packed_empty>({
    .chapter = "ycbcr8", .quirks = {"keeps_empty_subsampled_entries"},
    .summary = "Empty."});

constinit const Routine records::tntvt_yuv422_yuv411_8 =
    record<RoutineId::tntvt_yuv422_yuv411_8, shapes::packed_empty>({
    .chapter = "ycbcr8", .quirks = {"keeps_empty_subsampled_entries"},
    .summary = "Empty."});

constinit const Routine records::tntvt_yuv420_yuv422_8 =
    record<RoutineId::tntvt_yuv420_yuv422_8, shapes::packed_empty>({
    .chapter = "ycbcr8", .quirks = {"keeps_empty_subsampled_entries"},
    .summary = "Empty."});

constinit const Routine records::tntvt_yuv422_yuv420_8 =
    record<RoutineId::tntvt_yuv422_yuv420_8, shapes::packed_empty>({
    .chapter = "ycbcr8", .quirks = {"keeps_empty_subsampled_entries"},
    .summary = "Empty."});

constinit const Routine records::tntvt_yuv420_yuv411_8 =
    record<RoutineId::tntvt_yuv420_yuv411_8, shapes::packed_empty>({
    .chapter = "ycbcr8", .quirks = {"keeps_empty_subsampled_entries"},
    .summary = "Empty."});

constinit const Routine records::tntvt_yuv411_yuv420_8 =
    record<RoutineId::tntvt_yuv411_yuv420_8, shapes::packed_empty>({
    .chapter = "ycbcr8", .quirks = {"keeps_empty_subsampled_entries"},
    .summary = "Empty."});

constinit const Routine records::tntvt_2yuv_strip_chroma =
    record<RoutineId::tntvt_2yuv_strip_chroma, shapes::strided>({
    .chapter = "ycbcr8", .from = &layout::_2yuv, .to = &layout::_2yuv, .extents = extents::strip_chroma,
    .in_place = {as_apart, in_place_rules::luma_shrinks}, .quirks = {"keeps_one_line_more"},
    .summary = "4:2:2 with its chroma made neutral, height + 1 lines."});

constinit const Routine records::tntvt_2yuv_average_2y = record<RoutineId::tntvt_2yuv_average_2y, shapes::line_mode>({
    .chapter = "ycbcr8", .from = &layout::_2yuv, .to = &layout::_2yuv, .extents = extents::average_2y,
    .quirks = {"keeps_round_past_the_end"},
    .summary = "Isolated errors in the second luma of pairs, removed in place."});

constinit const Routine records::tntvt_2vuy_scale = record<RoutineId::tntvt_2vuy_scale, shapes::buffer_up>({
    .chapter = "ycbcr8", .from = &layout::_2vuy, .to = &layout::_2vuy, .extents = extents::scaled_groups,
    .quirks = {"keeps_divisors_one_above_the_span", "keeps_241_for_chroma_255", "keeps_exchanged_tables_going_up"},
    .peers = {near(libyuv("ARGBColorTable"))},
    .summary = "4:2:2 between video and full range by tables, in place."});

}  // namespace tintvert::catalog
