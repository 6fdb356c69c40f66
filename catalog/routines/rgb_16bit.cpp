// RGB of 16 bits a channel.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tntvt_rgb48_rgba32 = record<RoutineId::tntvt_rgb48_rgba32, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::rgb48, .to = &layout::rgba32, .extents = extents::reduced_from_48,
    .quirks = {"keeps_wrap_of_wide_values", "keeps_shift_modulo_32", "keeps_transparent_alpha"},
    .steps = {{.rank = 45, .alpha_0 = true}},
    .summary = "16 bits a channel reduced to 8, alpha 0."});

constinit const Routine records::tntvt_bgr48_rgba32 = record<RoutineId::tntvt_bgr48_rgba32, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::bgr48, .to = &layout::rgba32, .extents = extents::reduced_from_48_one_line_off,
    .quirks = {"keeps_wrap_of_wide_values", "keeps_shift_modulo_32", "keeps_transparent_alpha",
        "keeps_flip_one_line_off", "keeps_signed_32_bit_count"}, .steps = {{.rank = 46, .alpha_0 = true}},
    .summary = "16 bits a channel reduced to 8, alpha 0."});

constinit const Routine records::tntvt_rgba64_rgba32 = record<RoutineId::tntvt_rgba64_rgba32, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::rgba64, .to = &layout::rgba32, .extents = extents::reduced_from_64,
    .quirks = {"keeps_wrap_of_wide_values", "keeps_shift_modulo_32"},
    .peers = {gstreamer<"bgra64-le", "BGRA">, libyuv("AR64ToARGB")}, .steps = {{.rank = 47}},
    .summary = "16 bits a channel reduced to 8."});

constinit const Routine records::tntvt_argb64_rgba32 = record<RoutineId::tntvt_argb64_rgba32, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::argb64, .to = &layout::rgba32, .extents = extents::reduced_from_64,
    .quirks = {"keeps_wrap_of_wide_values", "keeps_shift_modulo_32"}, .peers = {gstreamer<"abgr64-le", "BGRA">},
    .steps = {{.rank = 48}},
    .summary = "16 bits a channel reduced to 8."});

constinit const Routine records::tntvt_abgr64_rgba32 = record<RoutineId::tntvt_abgr64_rgba32, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::abgr64, .to = &layout::rgba32, .extents = extents::reduced_from_64,
    .quirks = {"keeps_wrap_of_wide_values", "keeps_shift_modulo_32"}, .peers = {gstreamer<"argb64-le", "BGRA">},
    .steps = {{.rank = 49}},
    .summary = "16 bits a channel reduced to 8."});

constinit const Routine records::tntvt_bgra64_rgba32 = record<RoutineId::tntvt_bgra64_rgba32, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::bgra64, .to = &layout::rgba32, .extents = extents::reduced_from_64,
    .quirks = {"keeps_wrap_of_wide_values", "keeps_shift_modulo_32"},
    .peers = {gstreamer<"rgba64-le", "BGRA">, libyuv("AB64ToARGB")}, .steps = {{.rank = 50}},
    .summary = "16 bits a channel reduced to 8."});

constinit const Routine records::tntvt_rgba32_rgb48 = record<RoutineId::tntvt_rgba32_rgb48, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::rgb48, .extents = extents::widened_to_48,
    .quirks = {"keeps_shift_modulo_32", "keeps_low_bits_of_deep_channels_clear"}, .steps = {{.rank = 51}},
    .summary = "8 bits a channel widened to 16."});

constinit const Routine records::tntvt_rgba32_bgr48 = record<RoutineId::tntvt_rgba32_bgr48, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::bgr48, .extents = extents::widened_to_48_one_line_off,
    .quirks = {"keeps_shift_modulo_32", "keeps_flip_one_line_off", "keeps_signed_32_bit_count",
        "keeps_low_bits_of_deep_channels_clear"}, .steps = {{.rank = 52}},
    .summary = "8 bits a channel widened to 16."});

constinit const Routine records::tntvt_rgba32_rgba64 = record<RoutineId::tntvt_rgba32_rgba64, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::rgba64, .extents = extents::widened_to_64,
    .quirks = {"keeps_shift_modulo_32", "keeps_low_bits_of_deep_channels_clear"},
    .peers = {near(gstreamer<"bgra", "BGRA64_LE">, Peer::upper8), near(libyuv("ARGBToAR64"), Peer::upper8)},
    .steps = {{.rank = 53}},
    .summary = "8 bits a channel widened to 16."});

constinit const Routine records::tntvt_rgba32_argb64 = record<RoutineId::tntvt_rgba32_argb64, shapes::strided_bits>({
    .chapter = "rgb", .from = &layout::rgba32, .to = &layout::argb64, .extents = extents::widened_to_64,
    .quirks = {"keeps_shift_modulo_32", "keeps_low_bits_of_deep_channels_clear"},
    .peers = {near(gstreamer<"bgra", "ABGR64_LE">, Peer::upper8)}, .steps = {{.rank = 54}},
    .summary = "8 bits a channel widened to 16."});

constinit const Routine records::tntvt_bgra32_rgba64 = record<RoutineId::tntvt_bgra32_rgba64, shapes::strided>({
    .chapter = "rgb", .from = &layout::bgra32, .to = &layout::rgba64, .extents = extents::widened_to_64,
    .quirks = {"keeps_low_bits_of_deep_channels_clear"},
    .peers = {near(gstreamer<"rgba", "BGRA64_LE">, Peer::upper8), near(libyuv("ARGBToAB64"), Peer::upper8)},
    .steps = {{.rank = 55}},
    .summary = "8 bits a channel times 256."});

constinit const Routine records::tntvt_argb64be_rgba64 =
    record<RoutineId::tntvt_argb64be_rgba64, shapes::strided_order>({
    .chapter = "rgb", .from = &layout::argb64be, .to = &layout::rgba64, .extents = extents::swapped_to_64,
    .steps = {{.rank = 56}},
    .summary = "Big-endian channels in a chosen order."});

constinit const Routine records::tntvt_argb64be_rgb48 =
    record<RoutineId::tntvt_argb64be_rgb48, shapes::strided_order>({
    .chapter = "rgb", .from = &layout::argb64be, .to = &layout::rgb48, .extents = extents::swapped_to_48,
    .quirks = {"keeps_orders_that_write_nothing"}, .steps = {{.rank = 57}},
    .summary = "Big-endian channels in a chosen order, without alpha."});

constinit const Routine records::tntvt_argb64be_rgba32 =
    record<RoutineId::tntvt_argb64be_rgba32, shapes::strided_bits_order>({
    .chapter = "rgb", .from = &layout::argb64be, .to = &layout::rgba32, .extents = extents::swapped_to_32,
    .quirks = {"keeps_wrap_of_wide_values", "keeps_shift_modulo_32"}, .peers = {gstreamer<"abgr64-be", "BGRA">},
    .steps = {{.rank = 58}},
    .summary = "Big-endian channels reduced to 8 bits in a chosen order."});

constinit const Routine records::tntvt_argb64be_rgb24 =
    record<RoutineId::tntvt_argb64be_rgb24, shapes::strided_bits_order>({
    .chapter = "rgb", .from = &layout::argb64be, .to = &layout::rgb24, .extents = extents::swapped_to_24,
    .quirks = {"keeps_wrap_of_wide_values", "keeps_shift_modulo_32", "keeps_orders_that_write_nothing"},
    .steps = {{.rank = 59}},
    .summary = "Big-endian channels reduced to 8 bits in a chosen order, without alpha."});

}  // namespace tintvert::catalog
