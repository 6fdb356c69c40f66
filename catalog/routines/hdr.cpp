// SMPTE ST 2084.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::get_ardwRGB_to_SMPTE2048_8Bit =
    record<RoutineId::get_ardwRGB_to_SMPTE2048_8Bit, shapes::no_arguments>({
    .chapter = "hdr",
    .summary = "The table: 8-bit linear code to ST 2084 code."});

constinit const Routine records::get_ardwRGB_to_SMPTE2048_10Bit =
    record<RoutineId::get_ardwRGB_to_SMPTE2048_10Bit, shapes::no_arguments>({
    .chapter = "hdr",
    .summary = "The table: 10-bit linear code to ST 2084 code."});

constinit const Routine records::get_ardwRGB_to_SMPTE2048_12Bit =
    record<RoutineId::get_ardwRGB_to_SMPTE2048_12Bit, shapes::no_arguments>({
    .chapter = "hdr",
    .summary = "The table: 12-bit linear code to ST 2084 code."});

constinit const Routine records::get_ardwSMPTE2048_to_RGB_8Bit =
    record<RoutineId::get_ardwSMPTE2048_to_RGB_8Bit, shapes::no_arguments>({
    .chapter = "hdr",
    .summary = "The table: 8-bit ST 2084 code to video range, a power curve."});

constinit const Routine records::get_ardwSMPTE2048_to_RGB_10Bit =
    record<RoutineId::get_ardwSMPTE2048_to_RGB_10Bit, shapes::no_arguments>({
    .chapter = "hdr",
    .summary = "The table: 10-bit ST 2084 code to video range, a straight line."});

constinit const Routine records::get_ardwSMPTE2048_to_RGB_12Bit =
    record<RoutineId::get_ardwSMPTE2048_to_RGB_12Bit, shapes::no_arguments>({
    .chapter = "hdr",
    .summary = "The table: 12-bit ST 2084 code to linear code."});

constinit const Routine records::tntvt_rgb_to_st2084 = record<RoutineId::tntvt_rgb_to_st2084, shapes::pitch_pair>({
    .chapter = "hdr", .from = &layout::rgb32, .to = &layout::rgb32, .extents = extents::st2084_bytes,
    .refuses = refusals::pitch_pair, .in_place = {as_apart, in_place_rules::equal_strides},
    .peers = {zimg("linear to ST 2084"), near(libyuv("ARGBColorTable"))},
    .summary = "Every byte through the 8-bit linear to ST 2084 table."});

constinit const Routine records::tntvt_st2084_to_rgb = record<RoutineId::tntvt_st2084_to_rgb, shapes::pitch_pair>({
    .chapter = "hdr", .from = &layout::rgb32, .to = &layout::rgb32, .extents = extents::st2084_bytes,
    .refuses = refusals::pitch_pair, .in_place = {as_apart, in_place_rules::equal_strides},
    .peers = {near(libyuv("ARGBColorTable"))},
    .summary = "Every byte through the 8-bit ST 2084 to video range table."});

constinit const Routine records::tntvt_yuv2_to_st2084 = record<RoutineId::tntvt_yuv2_to_st2084, shapes::pitch_pair>({
    .chapter = "hdr", .from = &layout::yuv2, .to = &layout::yuv2, .extents = extents::yuv2_to_st2084,
    .refuses = refusals::pitch_pair, .in_place = {as_apart, in_place_rules::equal_strides},
    .peers = {near(libyuv("ARGBColorTable"))},
    .summary = "Bytes 1 and 3 of four through the 8-bit linear to ST 2084 table."});

constinit const Routine records::tntvt_st2084_to_yuv2 = record<RoutineId::tntvt_st2084_to_yuv2, shapes::pitch_pair>({
    .chapter = "hdr", .from = &layout::yuv2, .to = &layout::yuv2, .extents = extents::st2084_to_yuv2,
    .refuses = refusals::pitch_pair, .in_place = {as_apart, in_place_rules::equal_strides},
    .quirks = {"keeps_copy_of_bytes_1_to_4"}, .peers = {near(libyuv("ARGBColorTable"))},
    .summary = "Bytes 1 and 3 of four through the 8-bit ST 2084 to video range table."});

constinit const Routine records::tntvt_v210_to_st2084 = record<RoutineId::tntvt_v210_to_st2084, shapes::pitch_pair>({
    .chapter = "hdr", .from = &layout::v210, .to = &layout::v210, .extents = extents::st2084_v210,
    .refuses = refusals::pitch_pair, .in_place = {as_apart, in_place_rules::equal_strides_of_groups},
    .quirks = {"keeps_10_bit_index_into_8_bit_table", "keeps_unmasked_entries", "keeps_words_one_byte_on"},
    .summary = "10-bit fields as indexes from the 8-bit linear to ST 2084 table on."});

constinit const Routine records::tntvt_st2084_to_v210 = record<RoutineId::tntvt_st2084_to_v210, shapes::pitch_pair>({
    .chapter = "hdr", .from = &layout::v210, .to = &layout::v210, .extents = extents::st2084_v210,
    .refuses = refusals::pitch_pair, .in_place = {as_apart, in_place_rules::equal_strides_of_groups},
    .quirks = {"keeps_10_bit_index_into_8_bit_table", "keeps_unmasked_entries", "keeps_words_one_byte_on"},
    .summary = "10-bit fields as indexes from the 8-bit ST 2084 to video range table on."});

}  // namespace tintvert::catalog
