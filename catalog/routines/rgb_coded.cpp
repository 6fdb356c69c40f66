// Run-length coded RGB.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tntvt_rle8_rgb24 = record<RoutineId::tntvt_rle8_rgb24, shapes::coded_tight>({
    .chapter = "rgb", .from = &layout::rle8, .to = &layout::rgb24, .extents = extents::rle8_rgb24,
    .refuses = refusals::counted_down,
    .quirks = {"keeps_delta_as_end", "keeps_lines_end_to_end", "keeps_count_wrap", "keeps_one_pixel_more",
        "keeps_indices_as_codes"},
    .summary = "Run-length coded indices to 24-bit pixels, lines end to end, runs one pixel longer than coded."});

constinit const Routine records::tntvt_rle8_rgba32 = record<RoutineId::tntvt_rle8_rgba32, shapes::coded_strided>({
    .chapter = "rgb", .from = &layout::rle8, .to = &layout::rgba32, .extents = extents::rle8_rgb32,
    .quirks = {"keeps_delta_as_end", "keeps_zero_alpha", "keeps_lines_below_the_frame"},
    .peers = {near(command("ffmpeg -i in.bmp -f rawvideo -pix_fmt bgr0 out"))},
    .summary = "Run-length coded indices to 32-bit pixels of alpha 0, bottom line first."});

constinit const Routine records::tntvt_rle8_rgb32 = record<RoutineId::tntvt_rle8_rgb32, shapes::coded_strided>({
    .chapter = "rgb", .from = &layout::rle8, .to = &layout::rgb32, .extents = extents::rle8_rgb32,
    .alias_of = &tntvt_rle8_rgba32, .quirks = {"keeps_delta_as_end", "keeps_zero_alpha", "keeps_lines_below_the_frame"},
    .peers = {near(command("ffmpeg -i in.bmp -f rawvideo -pix_fmt bgr0 out"))},
    .summary = "Run-length coded indices to 32-bit pixels of alpha 0, bottom line first."});

constinit const Routine records::tntvt_rle4_rgb24 = record<RoutineId::tntvt_rle4_rgb24, shapes::empty_coded>({
    .chapter = "rgb",
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rle4_rgba32 = record<RoutineId::tntvt_rle4_rgba32, shapes::empty_coded>({
    .chapter = "rgb",
    .summary = "Does nothing."});

constinit const Routine records::tntvt_rle4_rgb32 = record<RoutineId::tntvt_rle4_rgb32, shapes::empty_coded>({
    .chapter = "rgb",
    .summary = "Does nothing."});

}  // namespace tintvert::catalog
