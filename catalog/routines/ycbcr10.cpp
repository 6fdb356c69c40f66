// 10-bit YCbCr and packets.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tntvt_rgb32_v210 = record<RoutineId::tntvt_rgb32_v210, shapes::strided>({
    .chapter = "ycbcr10", .from = &layout::rgb32, .to = &layout::v210, .extents = extents::rgb32_v210,
    .refuses = refusals::run_of_pixels,
    .quirks = {"keeps_8_bit_excursion", "keeps_matrix_change_at_962", "keeps_chroma_across_lines",
        "keeps_groups_across_lines"},
    .summary = "RGB to 10-bit 4:2:2 with an 8-bit excursion, BT.601 up to a width of 961, BT.709 above."});

constinit const Routine records::argb_to_v210 = record<RoutineId::argb_to_v210, shapes::line_of_width_alpha>({
    .chapter = "ycbcr10", .from = &layout::ARGB, .to = &layout::v210, .extents = extents::argb_line_to_v210,
    .quirks = {"keeps_half_before_truncation", "keeps_chroma_start_of_512", "keeps_overflow_into_next_field"},
    .summary = "RGB to 10-bit 4:2:2, BT.601 video range, one line."});

constinit const Routine records::bgra_to_v210 = record<RoutineId::bgra_to_v210, shapes::line_of_width>({
    .chapter = "ycbcr10", .from = &layout::BGRA, .to = &layout::v210, .extents = extents::bgra_line_to_v210,
    .quirks = {"keeps_8_bit_excursion"},
    .summary = "RGB to 10-bit 4:2:2 with an 8-bit excursion, BT.601, one line."});

constinit const Routine records::yuv2_to_v210 = record<RoutineId::yuv2_to_v210, shapes::line_of_width>({
    .chapter = "ycbcr10", .from = &layout::yuv2, .to = &layout::_2vuy, .extents = extents::two_bytes_each,
    .in_place = {as_apart, in_place_rules::always},
    .quirks = {"keeps_8_bit_bytes_under_a_v210_name", "keeps_divisors_255_and_254"},
    .summary = "8-bit 4:2:2 with signed chroma to chroma first and video range."});

constinit const Routine records::yuvs_to_v210 = record<RoutineId::yuvs_to_v210, shapes::line_of_width>({
    .chapter = "ycbcr10", .from = &layout::yuvs, .to = &layout::_2vuy, .extents = extents::two_bytes_each,
    .in_place = {as_apart, in_place_rules::always},
    .quirks = {"keeps_8_bit_bytes_under_a_v210_name", "keeps_divisors_255_and_254"},
    .summary = "8-bit 4:2:2 to chroma first and video range."});

constinit const Routine records::tntvt_2vuy_v210 = record<RoutineId::tntvt_2vuy_v210, shapes::packed_to_strided>({
    .chapter = "ycbcr10", .from = &layout::_2vuy, .to = &layout::v210, .extents = extents::widened_2vuy,
    .refuses = refusals::widened_2vuy, .quirks = {"keeps_lines_of_64_bytes", "keeps_last_line_first_without_guard"},
    .peers = {gstreamer<"uyvy", "v210">}, .steps = {{.rank = 24}},
    .summary = "8-bit to 10-bit 4:2:2, samples times 4."});

constinit const Routine records::tntvt_v210_2vuy = record<RoutineId::tntvt_v210_2vuy, shapes::strided_to_packed>({
    .chapter = "ycbcr10", .from = &layout::v210, .to = &layout::_2vuy, .extents = extents::narrowed_v210,
    .refuses = refusals::narrowed_v210, .quirks = {"keeps_unrounded_lines", "keeps_double_length_lines"},
    .peers = {gstreamer<"v210", "UYVY">}, .steps = {{.rank = 25}},
    .summary = "10-bit to 8-bit 4:2:2, low bits dropped; lines run to twice their length."});

constinit const Routine records::tntvt_yuv422_8_yuv422_10 =
    record<RoutineId::tntvt_yuv422_8_yuv422_10, shapes::packed_to_strided>({
    .chapter = "ycbcr10", .from = &layout::_2vuy, .to = &layout::v210, .extents = extents::widened_2vuy,
    .refuses = refusals::widened_2vuy, .alias_of = &tntvt_2vuy_v210, .peers = {gstreamer<"uyvy", "v210">},
    .summary = "tntvt_2vuy_v210 under another name."});

constinit const Routine records::tntvt_yuv422_10_yuv422_8 =
    record<RoutineId::tntvt_yuv422_10_yuv422_8, shapes::strided_to_packed>({
    .chapter = "ycbcr10", .from = &layout::v210, .to = &layout::_2vuy, .extents = extents::narrowed_v210,
    .refuses = refusals::narrowed_v210, .alias_of = &tntvt_v210_2vuy, .peers = {gstreamer<"v210", "UYVY">},
    .summary = "tntvt_v210_2vuy under another name."});

constinit const Routine records::tntvt_4175_to_v210 = record<RoutineId::tntvt_4175_to_v210, shapes::rfc4175_payload>({
    .chapter = "ycbcr10", .from = &layout::pgroups, .to = &layout::v210, .extents = extents::rfc4175_payload,
    .refuses = refusals::payload,
    .peers = {near(command("gst-launch-1.0 udpsrc ! rtpvrawdepay ! videoconvert dither=none ! video/x-raw,format=v210 "
        "! filesink location=out"))},
    .summary = "RFC 4175 payload, a run of pgroups, to v210, bit by bit."});

constinit const Routine records::tntvt_YCbCr10Packed_to_v210 =
    record<RoutineId::tntvt_YCbCr10Packed_to_v210, shapes::packed10>({
    .chapter = "ycbcr10", .from = &layout::pgroups, .to = &layout::v210, .extents = extents::packed10_to_v210,
    .refuses = refusals::packed10, .quirks = {"keeps_pair_past_odd_width"}, .peers = {gstreamer<"uyvp", "v210">},
    .steps = {{.rank = 26}},
    .summary = "A packed 10-bit frame to v210."});

constinit const Routine records::tntvt_v210_frame_to_rtp_4175 =
    record<RoutineId::tntvt_v210_frame_to_rtp_4175, shapes::rfc4175_packet>({
    .chapter = "ycbcr10", .from = &layout::v210, .to = &layout::rtp4175, .extents = extents::rfc4175_packet,
    .refuses = refusals::packets,
    .quirks = {"keeps_or_of_high_bits", "keeps_fixed_length_224", "keeps_place_in_line", "keeps_endless_odd_width",
        "keeps_header_over_line_0"},
    .summary = "An RTP packet for each line, all formed over the head of the frame."});

}  // namespace tintvert::catalog
