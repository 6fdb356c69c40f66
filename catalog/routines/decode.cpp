// YCbCr to RGB.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tntvt_yuv422_rgb24 = record<RoutineId::tntvt_yuv422_rgb24, shapes::strided_scale>({
    .chapter = "decode", .from = &layout::_2vuy, .to = &layout::rgb24, .extents = extents::yuv422_rgb24,
    .refuses = refusals::no_scale, .quirks = {"keeps_form_by_stride"},
    .peers = {near(zimg("BT.601 of 8 bits"), Peer::within1), near(libyuv("UYVYToARGB"))},
    .steps = {{.rank = 7, .matrix = Matrix::bt601}},
    .summary = "4:2:2 to 24 or 32-bit RGB by tables, reduced by 1, 2 or 4."});

constinit const Routine records::tntvt_yuv422_rgb16 = record<RoutineId::tntvt_yuv422_rgb16, shapes::strided_scale>({
    .chapter = "decode", .from = &layout::_2vuy, .to = &layout::rgb16, .extents = extents::yuv422_rgb16,
    .quirks = {"keeps_first_luma_for_both", "keeps_swapped_line_pairs"}, .peers = {near(libyuv("UYVYToARGB"))},
    .summary = "4:2:2 to 15-bit RGB by tables, neighbouring lines exchanged."});

constinit const Routine records::tntvt_v210_rgb24 = record<RoutineId::tntvt_v210_rgb24, shapes::strided_scale>({
    .chapter = "decode", .from = &layout::v210, .to = &layout::rgb24, .extents = extents::v210_rgb24,
    .refuses = refusals::no_scale, .quirks = {"keeps_form_by_stride"},
    .peers = {near(gstreamer<"v210", "BGRA", " chroma-mode=none chroma-resampler=nearest ">),
        near(zimg("BT.601 of 8 bits"), Peer::within1)}, .steps = {{.rank = 8, .matrix = Matrix::bt601}},
    .summary = "10-bit 4:2:2 to 24 or 32-bit RGB by 8-bit tables, reduced by 1, 2 or 4."});

constinit const Routine records::tntvt_v210_rgb16 = record<RoutineId::tntvt_v210_rgb16, shapes::strided_scale>({
    .chapter = "decode", .from = &layout::v210, .to = &layout::rgb16, .extents = extents::v210_rgb16,
    .quirks = {"keeps_first_luma_of_v210_pairs", "keeps_line_order"},
    .summary = "10-bit 4:2:2 to 15-bit RGB by 8-bit tables, lines in their order."});

constinit const Routine records::init_v210_to_rgb = record<RoutineId::init_v210_to_rgb, shapes::no_arguments>({
    .chapter = "decode", .quirks = {"keeps_filling_on_every_call"},
    .summary = "Fills the tables of _v210_to_rgb."});

constinit const Routine records::_v210_get_next_4words =
    record<RoutineId::_v210_get_next_4words, shapes::split_group>({
    .chapter = "decode", .from = &layout::v210, .extents = extents::one_group,
    .summary = "Splits one group into its twelve samples."});

constinit const Routine records::_v210_to_rgb = record<RoutineId::_v210_to_rgb, shapes::run_to_rgb>({
    .chapter = "decode", .from = &layout::v210, .to = &layout::rgb32, .extents = extents::v210_run_to_rgb,
    .refuses = refusals::run_to_rgb,
    .quirks = {"keeps_254_for_white", "keeps_stride_at_common_multiples", "keeps_whole_last_group"},
    .peers = {near(gstreamer<"v210", "BGRA", " chroma-mode=none chroma-resampler=nearest ">, Peer::within1),
        near(zimg("BT.601 of 10 bits"), Peer::within1)},
    .summary = "10-bit 4:2:2 to 32-bit RGB by 10-bit tables, the frame as one run."});

constinit const Routine records::tntvt_yuv422_10_rgb24 =
    record<RoutineId::tntvt_yuv422_10_rgb24, shapes::strided_scale>({
    .chapter = "decode", .from = &layout::v210, .to = &layout::rgb24, .extents = extents::yuv422_10_rgb24,
    .refuses = refusals::no_scale,
    .summary = "v210 to 24-bit RGB by tables, with default strides."});

constinit const Routine records::tntvt_yuv422_10_rgb32 =
    record<RoutineId::tntvt_yuv422_10_rgb32, shapes::strided_scale>({
    .chapter = "decode", .from = &layout::v210, .to = &layout::rgb32, .extents = extents::yuv422_10_rgb32,
    .refuses = refusals::by_matrix_or_scale, .companions = {"GetMatrixBySize", "cycbcr_012v_to_rgb32"},
    .steps = {{.rank = 4, .matrix = Matrix::by_size}},
    .summary = "v210 to 32-bit RGB, by libycbcr or reduced by tables."});

constinit const Routine records::tntvt_yuv422_8_rgb24 =
    record<RoutineId::tntvt_yuv422_8_rgb24, shapes::strided_scale>({
    .chapter = "decode", .from = &layout::_2vuy, .to = &layout::rgb24, .extents = extents::yuv422_8_rgb24,
    .refuses = refusals::by_matrix_or_scale, .quirks = {"keeps_10_bit_decoder_for_8_bit_data"},
    .companions = {"GetMatrixBySize", "cycbcr_012v_to_rgb32"}, .peers = {near(libyuv("UYVYToARGB"))},
    .summary = "4:2:2 to RGB, by the v210 decoder of libycbcr or reduced by tables."});

constinit const Routine records::tntvt_yuv422_8_rgb32 =
    record<RoutineId::tntvt_yuv422_8_rgb32, shapes::strided_scale>({
    .chapter = "decode", .from = &layout::_2vuy, .to = &layout::rgb32, .extents = extents::yuv422_8_rgb32,
    .refuses = refusals::by_matrix_or_scale, .companions = {"GetMatrixBySize", "cycbcr_uyvy_to_rgb32"},
    .peers = {near(libyuv("UYVYToARGB"))}, .steps = {{.rank = 3, .matrix = Matrix::by_size}},
    .summary = "4:2:2 to 32-bit RGB, by libycbcr or reduced by tables."});

constinit const Routine records::tntvt_i420_rgb32 = record<RoutineId::tntvt_i420_rgb32, shapes::packed_420>({
    .chapter = "decode", .from = &layout::i420, .to = &layout::rgb32, .extents = extents::yuv420_rgb32,
    .refuses = refusals::planes_to_rgb32, .companions = {"GetMatrixBySize", "cycbcr_i420_to_rgb32"},
    .peers = {near(libyuv("I420ToARGB"))}, .steps = {{.rank = 5, .matrix = Matrix::by_size}},
    .summary = "4:2:0 to 32-bit RGB by libycbcr, Cb plane first."});

constinit const Routine records::tntvt_yv12_rgb32 = record<RoutineId::tntvt_yv12_rgb32, shapes::packed_420>({
    .chapter = "decode", .from = &layout::yv12, .to = &layout::rgb32, .extents = extents::yuv420_rgb32,
    .refuses = refusals::planes_to_rgb32, .companions = {"GetMatrixBySize", "cycbcr_yv12_to_rgb32"},
    .steps = {{.rank = 6, .matrix = Matrix::by_size}},
    .summary = "4:2:0 to 32-bit RGB by libycbcr, Cr plane first."});

constinit const Routine records::tntvt_yuvijg_rgb32 = record<RoutineId::tntvt_yuvijg_rgb32, shapes::strided>({
    .chapter = "decode", .from = &layout::yuvijg, .to = &layout::rgb32, .extents = extents::yuvijg_rgb32,
    .quirks = {"keeps_wrap_outside_the_cube", "keeps_alpha_0_of_yuvijg"},
    .peers = {near(ffmpeg<"yuv444p", "bgra", " -vf scale=in_range=full:flags=accurate_rnd ">)},
    .steps = {{.rank = 9, .matrix = Matrix::bt601, .wraps = true, .alpha_0 = true}},
    .summary = "4:4:4 to 32-bit RGB with the JPEG coefficients, unclamped."});

}  // namespace tintvert::catalog
