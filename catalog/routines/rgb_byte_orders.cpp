// 32-bit RGB: orders of the bytes.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::rgba2argb = record<RoutineId::rgba2argb, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::argb32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .peers = {ffmpeg<"argb", "rgba">, libyuv("RGBAToARGB")},
    .summary = "Words rotated right by 8 bits: b1, b2, b3, b0."});

constinit const Routine records::bgra2abgr = record<RoutineId::bgra2abgr, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::argb32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .alias_of = &rgba2argb,
    .peers = {ffmpeg<"argb", "rgba">, libyuv("RGBAToARGB")},
    .summary = "Words rotated right by 8 bits: b1, b2, b3, b0."});

constinit const Routine records::bgra2abgrMMX = record<RoutineId::bgra2abgrMMX, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::argb32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .alias_of = &rgba2argb,
    .peers = {ffmpeg<"argb", "rgba">, libyuv("RGBAToARGB")},
    .summary = "Words rotated right by 8 bits: b1, b2, b3, b0."});

constinit const Routine records::abgr2bgraMMX = record<RoutineId::abgr2bgraMMX, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::argb32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .alias_of = &rgba2argb,
    .quirks = {"keeps_kernels_that_rotate_apart"}, .peers = {ffmpeg<"argb", "rgba">, libyuv("RGBAToARGB")},
    .summary = "Words rotated right by 8 bits: b1, b2, b3, b0."});

constinit const Routine records::argb2rgba = record<RoutineId::argb2rgba, shapes::word_run>({
    .chapter = "rgb", .from = &layout::argb32, .to = &layout::rgba32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .peers = {ffmpeg<"rgba", "argb">, libyuv("ARGBToRGBA")},
    .steps = {{.rank = 38}},
    .summary = "Words rotated left by 8 bits: b3, b0, b1, b2."});

constinit const Routine records::abgr2bgra = record<RoutineId::abgr2bgra, shapes::word_run>({
    .chapter = "rgb", .from = &layout::argb32, .to = &layout::rgba32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .alias_of = &argb2rgba,
    .quirks = {"keeps_kernels_that_rotate_apart"}, .peers = {ffmpeg<"rgba", "argb">, libyuv("ARGBToRGBA")},
    .summary = "Words rotated left by 8 bits: b3, b0, b1, b2."});

constinit const Routine records::bgra2argb = record<RoutineId::bgra2argb, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::abgr32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .peers = {ffmpeg<"bgra", "argb">, libyuv("ARGBToBGRA")},
    .summary = "Words with their bytes reversed: b3, b2, b1, b0."});

constinit const Routine records::argb2bgra = record<RoutineId::argb2bgra, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::abgr32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .alias_of = &bgra2argb,
    .peers = {ffmpeg<"bgra", "argb">, libyuv("ARGBToBGRA")},
    .summary = "Words with their bytes reversed: b3, b2, b1, b0."});

constinit const Routine records::abgr2argb = record<RoutineId::abgr2argb, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::bgra32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .peers = {ffmpeg<"bgra", "rgba">, libyuv("ARGBToABGR")},
    .summary = "Words with bytes 0 and 2 exchanged: b2, b1, b0, b3."});

constinit const Routine records::argb2abgr = record<RoutineId::argb2abgr, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::bgra32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .alias_of = &abgr2argb,
    .peers = {ffmpeg<"bgra", "rgba">, libyuv("ARGBToABGR")},
    .summary = "Words with bytes 0 and 2 exchanged: b2, b1, b0, b3."});

constinit const Routine records::bgra2rgba = record<RoutineId::bgra2rgba, shapes::word_run>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::bgra32, .extents = extents::words_run,
    .in_place = {as_apart, in_place_rules::always}, .alias_of = &abgr2argb,
    .peers = {ffmpeg<"bgra", "rgba">, libyuv("ARGBToABGR")},
    .summary = "Words with bytes 0 and 2 exchanged: b2, b1, b0, b3."});

constinit const Routine records::tntvt_rgba32_bgra32_inplace =
    record<RoutineId::tntvt_rgba32_bgra32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::bgra32, .extents = extents::words_frame,
    .in_place = {as_apart, in_place_rules::words}, .peers = {ffmpeg<"bgra", "rgba">, libyuv("ARGBToABGR")},
    .steps = {{.rank = 33}, {.rank = 34, .from = &layout::bgra32, .to = &layout::rgb32}},
    .summary = "Bytes 0 and 2 exchanged."});

constinit const Routine records::tntvt_rgb32_bgr32_inplace =
    record<RoutineId::tntvt_rgb32_bgr32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb32, .to = &layout::bgr32, .extents = extents::words_frame,
    .in_place = {as_apart, in_place_rules::words}, .alias_of = &tntvt_rgba32_bgra32_inplace,
    .peers = {ffmpeg<"bgra", "rgba">, libyuv("ARGBToABGR")},
    .summary = "Bytes 0 and 2 exchanged."});

constinit const Routine records::tntvt_rgba32_abgr32_inplace =
    record<RoutineId::tntvt_rgba32_abgr32_inplace, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::abgr32, .extents = extents::words_frame,
    .in_place = {as_apart, in_place_rules::words}, .peers = {ffmpeg<"bgra", "argb">, libyuv("ARGBToBGRA")},
    .steps = {{.rank = 35}, {.rank = 36, .from = &layout::abgr32, .to = &layout::rgb32}},
    .summary = "The four bytes reversed."});

constinit const Routine records::tntvt_rgba32_argb32 = record<RoutineId::tntvt_rgba32_argb32, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::argb32, .extents = extents::words_frame,
    .in_place = {as_apart, in_place_rules::words}, .peers = {ffmpeg<"argb", "rgba">, libyuv("RGBAToARGB")},
    .steps = {{.rank = 37}},
    .summary = "Words rotated right by 8 bits."});

constinit const Routine records::tntvt_argb32_rgba32 = record<RoutineId::tntvt_argb32_rgba32, shapes::strided>({
    .chapter = "rgb", .from = &layout::argb32, .to = &layout::rgba32, .extents = extents::words_frame,
    .in_place = {as_apart, in_place_rules::words}, .quirks = {"keeps_counted_alpha"},
    .summary = "The alpha as a 32-bit number; the colours are lost."});

}  // namespace tintvert::catalog
