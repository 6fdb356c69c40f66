// RGB of 8 bits and fewer: from 32 bits a pixel to 24, and from 24 and 16 to 32.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tntvt_rgba_full = record<RoutineId::tntvt_rgba_full, shapes::strided>({
    .chapter = "rgb", .extents = extents::rgba_full, .refuses = refusals::frame_copy,
    .in_place = {as_apart, in_place_rules::equal_strides},
    .quirks = {"keeps_block_of_pixels", "keeps_division_first", "keeps_words_for_other_sizes"},
    .companions = {"CopyMemoryFast"},
    .summary = "Copies a frame of 3-byte or 4-byte pixels, the pixel size given by each stride."});

constinit const Routine records::tntvt_rgba32_rgb24_inplace =
    record<RoutineId::tntvt_rgba32_rgb24_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::rgb24, .extents = extents::narrowed_frame,
    .in_place = {as_apart, in_place_rules::words_shrink}, .alias_of = &tntvt_rgba32_rgb24,
    .peers = {ffmpeg<"bgra", "bgr24">, libyuv("ARGBToRGB24")},
    .summary = "32-bit pixels cut down to their first three bytes."});

constinit const Routine records::tntvt_rgba32_rgb24 = record<RoutineId::tntvt_rgba32_rgb24, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::rgb24, .extents = extents::narrowed_frame,
    .in_place = {as_apart, in_place_rules::words_shrink}, .peers = {ffmpeg<"bgra", "bgr24">, libyuv("ARGBToRGB24")},
    .steps = {{.rank = 27}},
    .summary = "32-bit pixels cut down to their first three bytes."});

constinit const Routine records::tntvt_rgb32_rgb24_inplace =
    record<RoutineId::tntvt_rgb32_rgb24_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb32, .to = &layout::rgb24, .extents = extents::narrowed_frame,
    .in_place = {as_apart, in_place_rules::words_shrink}, .alias_of = &tntvt_rgba32_rgb24,
    .peers = {ffmpeg<"bgra", "bgr24">, libyuv("ARGBToRGB24")},
    .summary = "32-bit pixels cut down to their first three bytes."});

constinit const Routine records::tntvt_rgb32_rgb24 = record<RoutineId::tntvt_rgb32_rgb24, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb32, .to = &layout::rgb24, .extents = extents::narrowed_frame,
    .in_place = {as_apart, in_place_rules::words_shrink}, .alias_of = &tntvt_rgba32_rgb24,
    .peers = {ffmpeg<"bgra", "bgr24">, libyuv("ARGBToRGB24")},
    .summary = "32-bit pixels cut down to their first three bytes."});

constinit const Routine records::tntvt_rgba32_bgr24_inplace =
    record<RoutineId::tntvt_rgba32_bgr24_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::bgr24, .extents = extents::narrowed_frame,
    .in_place = {fails}, .quirks = {"keeps_guard_of_first_pixel_only"},
    .peers = {ffmpeg<"bgra", "rgb24">, libyuv("ARGBToRAW")},
    .summary = "32-bit pixels cut down to their first three bytes, reversed."});

constinit const Routine records::tntvt_rgb32_bgr24_inplace =
    record<RoutineId::tntvt_rgb32_bgr24_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb32, .to = &layout::bgr24, .extents = extents::narrowed_frame,
    .in_place = {fails}, .alias_of = &tntvt_rgba32_bgr24_inplace, .quirks = {"keeps_guard_of_first_pixel_only"},
    .peers = {ffmpeg<"bgra", "rgb24">, libyuv("ARGBToRAW")}, .steps = {{.rank = 28}},
    .summary = "32-bit pixels cut down to their first three bytes, reversed."});

constinit const Routine records::tntvt_rgba32_rgb24_invert =
    record<RoutineId::tntvt_rgba32_rgb24_invert, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::rgb24, .extents = extents::narrowed_upside_down,
    .in_place = {fails}, .quirks = {"keeps_signed_height_in_addresses"},
    .peers = {ffmpeg<"bgra", "bgr24", " -vf vflip ">, libyuv("ARGBToRGB24, upside down")},
    .summary = "32-bit pixels cut down to their first three bytes, upside down."});

constinit const Routine records::tntvt_rgb24_rgba32_inplace =
    record<RoutineId::tntvt_rgb24_rgba32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb24, .to = &layout::rgba32, .extents = extents::widened_from_24,
    .in_place = {fails}, .alias_of = &tntvt_rgb24_rgba32, .quirks = {"keeps_ascending_writes_in_place"},
    .peers = {ffmpeg<"bgr24", "bgra">, libyuv("RGB24ToARGB")},
    .summary = "24-bit pixels with an alpha of 255 added."});

constinit const Routine records::tntvt_rgb24_rgba32 = record<RoutineId::tntvt_rgb24_rgba32, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb24, .to = &layout::rgba32, .extents = extents::widened_from_24,
    .in_place = {fails}, .quirks = {"keeps_ascending_writes_in_place"},
    .peers = {ffmpeg<"bgr24", "bgra">, libyuv("RGB24ToARGB")},
    .summary = "24-bit pixels with an alpha of 255 added."});

constinit const Routine records::tntvt_rgb24_rgb32_inplace =
    record<RoutineId::tntvt_rgb24_rgb32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb24, .to = &layout::rgb32, .extents = extents::widened_from_24,
    .in_place = {fails}, .alias_of = &tntvt_rgb24_rgba32, .quirks = {"keeps_ascending_writes_in_place"},
    .peers = {ffmpeg<"bgr24", "bgra">, libyuv("RGB24ToARGB")},
    .summary = "24-bit pixels with an alpha of 255 added."});

constinit const Routine records::tntvt_rgb24_rgb32 = record<RoutineId::tntvt_rgb24_rgb32, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb24, .to = &layout::rgb32, .extents = extents::widened_from_24,
    .in_place = {fails}, .alias_of = &tntvt_rgb24_rgba32, .quirks = {"keeps_ascending_writes_in_place"},
    .peers = {ffmpeg<"bgr24", "bgra">, libyuv("RGB24ToARGB")}, .steps = {{.rank = 29}},
    .summary = "24-bit pixels with an alpha of 255 added."});

constinit const Routine records::tntvt_rgb24_bgra32_inplace =
    record<RoutineId::tntvt_rgb24_bgra32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb24, .to = &layout::bgra32, .extents = extents::widened_from_24,
    .in_place = {fails}, .quirks = {"keeps_descending_writes_in_place"},
    .peers = {ffmpeg<"bgr24", "rgba">, libyuv("RAWToARGB")},
    .summary = "24-bit pixels reversed, with an alpha of 255 added."});

constinit const Routine records::tntvt_rgb24_bgr32_inplace =
    record<RoutineId::tntvt_rgb24_bgr32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb24, .to = &layout::bgr32, .extents = extents::widened_from_24,
    .in_place = {fails}, .alias_of = &tntvt_rgb24_bgra32_inplace, .quirks = {"keeps_descending_writes_in_place"},
    .peers = {ffmpeg<"bgr24", "rgba">, libyuv("RAWToARGB")},
    .steps = {{.rank = 30}, {.rank = 31, .from = &layout::bgr24, .to = &layout::rgb32}},
    .summary = "24-bit pixels reversed, with an alpha of 255 added."});

constinit const Routine records::tntvt_rgb16_rgba32_inplace =
    record<RoutineId::tntvt_rgb16_rgba32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb16, .to = &layout::rgba32, .extents = extents::widened_from_16,
    .in_place = {as_apart, in_place_rules::tight_16_to_32}, .alias_of = &tntvt_rgb16_rgba32,
    .quirks = {"keeps_low_bits_of_rgb16_clear"},
    .peers = {near(gstreamer<"rgb15", "BGRA">), near(libyuv("ARGB1555ToARGB"))},
    .summary = "15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255."});

constinit const Routine records::tntvt_rgb16_rgba32 = record<RoutineId::tntvt_rgb16_rgba32, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb16, .to = &layout::rgba32, .extents = extents::widened_from_16,
    .in_place = {as_apart, in_place_rules::tight_16_to_32}, .quirks = {"keeps_low_bits_of_rgb16_clear"},
    .peers = {near(gstreamer<"rgb15", "BGRA">), near(libyuv("ARGB1555ToARGB"))},
    .summary = "15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255."});

constinit const Routine records::tntvt_rgb16_rgb32_inplace =
    record<RoutineId::tntvt_rgb16_rgb32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb16, .to = &layout::rgb32, .extents = extents::widened_from_16,
    .in_place = {as_apart, in_place_rules::tight_16_to_32}, .alias_of = &tntvt_rgb16_rgba32,
    .quirks = {"keeps_low_bits_of_rgb16_clear"},
    .peers = {near(gstreamer<"rgb15", "BGRA">), near(libyuv("ARGB1555ToARGB"))},
    .summary = "15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255."});

constinit const Routine records::tntvt_rgb16_rgb32 = record<RoutineId::tntvt_rgb16_rgb32, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb16, .to = &layout::rgb32, .extents = extents::widened_from_16,
    .in_place = {as_apart, in_place_rules::tight_16_to_32}, .alias_of = &tntvt_rgb16_rgba32,
    .quirks = {"keeps_low_bits_of_rgb16_clear"},
    .peers = {near(gstreamer<"rgb15", "BGRA">), back(gstreamer<"bgra", "RGB15">), near(libyuv("ARGB1555ToARGB"))},
    .steps = {{.rank = 39}},
    .summary = "15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255."});

constinit const Routine records::tntvt_macbgr24_macargb32_inplace =
    record<RoutineId::tntvt_macbgr24_macargb32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::macbgr24, .to = &layout::macargb32, .extents = extents::widened_alpha_first,
    .in_place = {as_apart, in_place_rules::tight_24_to_32}, .peers = {ffmpeg<"rgb24", "argb">},
    .steps = {{.rank = 32, .from = &layout::bgr24, .to = &layout::abgr32}},
    .summary = "24-bit pixels with an alpha of 255 in front."});

constinit const Routine records::tntvt_rgba24_rgb32_invert =
    record<RoutineId::tntvt_rgba24_rgb32_invert, shapes::strided_crossed>({
    .chapter = "rgb", .from = &layout::rgba24, .to = &layout::rgb32, .extents = extents::widened_upside_down,
    .quirks = {"keeps_crossed_pointers"},
    .summary = "24-bit pixels with an alpha of 255 added, upside down, the pointers crossed."});

constinit const Routine records::tntvt_rgb8_rgb32 = record<RoutineId::tntvt_rgb8_rgb32, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rgb8_rgba32 = record<RoutineId::tntvt_rgb8_rgba32, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rgb16_rgb24 = record<RoutineId::tntvt_rgb16_rgb24, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rgb32_rgb16 = record<RoutineId::tntvt_rgb32_rgb16, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rgb32_rgb16_565 =
    record<RoutineId::tntvt_rgb32_rgb16_565, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rgb32_rgb16_dithered =
    record<RoutineId::tntvt_rgb32_rgb16_dithered, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rgb32_rgb16_565_dithered =
    record<RoutineId::tntvt_rgb32_rgb16_565_dithered, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rgb32_rgb32 = record<RoutineId::tntvt_rgb32_rgb32, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rgba32_rgb16 = record<RoutineId::tntvt_rgba32_rgb16, shapes::empty_strided>({
    .chapter = "rgb", .quirks = {"keeps_empty_entries"},
    .summary = "Does nothing."});

}  // namespace tintvert::catalog
