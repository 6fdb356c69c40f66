// Fields, flips and mixing.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tntvt_change_field_rgb =
    record<RoutineId::tntvt_change_field_rgb, shapes::field_change>({
    .chapter = "field", .extents = extents::change_field_rgb, .refuses = refusals::field_change_rgb,
    .in_place = {in_its_way, in_place_rules::field_modes},
    .quirks = {"keeps_line_feed_before_carriage_return", "keeps_source_pitch_on_dst",
        "keeps_scratch_of_destination_pitch", "keeps_flip_without_guard", "keeps_success_after_failure",
        "keeps_even_heights_only", "keeps_average_with_itself", "keeps_low_byte_of_halves", "keeps_entry_copy",
        "keeps_split_asymmetry", "keeps_one_field_in_place"},
    .companions = {"ZKAlloc", "CopyMemoryFast", "ErrFmtOut", "ZKFree"},
    .peers = {near(ffmpeg<"bgra", "bgra", " -vf il=ls=1:cs=1:as=1 ">)},
    .summary = "Rearranges the two fields of a frame, by mode 1 to 14."});

constinit const Routine records::tntvt_change_field_yuv =
    record<RoutineId::tntvt_change_field_yuv, shapes::field_change>({
    .chapter = "field", .extents = extents::change_field_yuv, .refuses = refusals::field_change_yuv,
    .in_place = {as_apart, in_place_rules::field_modes},
    .quirks = {"keeps_line_feed_before_carriage_return", "keeps_samples_uncomputed"},
    .companions = {"ZKAlloc", "CopyMemoryFast", "ErrFmtOut", "ZKFree"},
    .summary = "Rearranges the two fields of a frame and computes no sample."});

constinit const Routine records::tntvt_deinterlace_rgb =
    record<RoutineId::tntvt_deinterlace_rgb, shapes::comb_repair>({
    .chapter = "field", .extents = extents::deinterlace, .in_place = {in_its_way, in_place_rules::always},
    .quirks = {"keeps_eight_byte_elements", "keeps_next_line_for_first_two", "keeps_changed_line_above",
        "keeps_wrapping_squares", "keeps_plain_copy_of_mode_17"}, .companions = {"CopyMemoryFast"},
    .summary = "Replaces combing against the lines above and below."});

constinit const Routine records::tntvt_deinterlace_yuv =
    record<RoutineId::tntvt_deinterlace_yuv, shapes::comb_ignored>({
    .chapter = "field", .quirks = {"keeps_empty_deinterlace_yuv"},
    .summary = "Does nothing and returns -1."});

constinit const Routine records::tntvt_flip_vert = record<RoutineId::tntvt_flip_vert, shapes::flip>({
    .chapter = "field", .extents = extents::flip_vert, .refuses = refusals::flip,
    .in_place = {as_apart, in_place_rules::always},
    .quirks = {"keeps_line_feed_before_carriage_return", "keeps_success_after_failure", "keeps_spare_byte",
        "keeps_unsigned_half_of_height"}, .companions = {"ZKAlloc", "CopyMemoryFast", "ErrFmtOut", "ZKFree"},
    .peers = {ffmpeg<"bgra", "bgra", " -vf vflip ">, libyuv("ARGBCopy, upside down")},
    .summary = "Turns a frame upside down."});

constinit const Routine records::tntvt_flip_vert_flags =
    record<RoutineId::tntvt_flip_vert_flags, shapes::flip_placed>({
    .chapter = "field", .extents = extents::flip_vert_flags, .refuses = refusals::flip_placed,
    .in_place = {in_its_way, in_place_rules::always},
    .quirks = {"keeps_line_feed_before_carriage_return", "keeps_success_after_failure", "keeps_spare_byte",
        "keeps_unsigned_half_of_height", "keeps_lines_unplaced_in_place"},
    .companions = {"ZKAlloc", "CopyMemoryFast", "ErrFmtOut", "ZKFree"},
    .peers = {ffmpeg<"bgra", "bgra", " -vf vflip ">},
    .summary = "Turns a frame upside down and places its lines in wider ones."});

constinit const Routine records::tntvt_flip_horz = record<RoutineId::tntvt_flip_horz, shapes::mirror>({
    .chapter = "field", .extents = extents::flip_horz, .refuses = refusals::mirror,
    .in_place = {in_its_way, in_place_rules::always}, .quirks = {"keeps_mirror_past_the_line"},
    .peers = {near(ffmpeg<"bgra", "bgra", " -vf hflip ">), near(libyuv("ARGBMirror"))},
    .summary = "Mirrors the 4-byte pixels of each line about pixel width / 2."});

constinit const Routine records::tntvt_fld_sep_to_mix32 =
    record<RoutineId::tntvt_fld_sep_to_mix32, shapes::fields_to_frame>({
    .chapter = "field", .extents = extents::fields_to_frame, .refuses = refusals::woven,
    .companions = {"CopyMemoryFast"}, .peers = {ffmpeg<"bgra", "bgra", " -vf il=l=i:c=i:a=i ">},
    .summary = "Weaves two fields of 4-byte pixels into a frame."});

constinit const Routine records::tntvt_fld_mix_to_sep32 =
    record<RoutineId::tntvt_fld_mix_to_sep32, shapes::frame_to_fields>({
    .chapter = "field", .extents = extents::frame_to_fields, .refuses = refusals::woven,
    .companions = {"CopyMemoryFast"}, .peers = {ffmpeg<"bgra", "bgra", " -vf il=l=d:c=d:a=d ">},
    .summary = "Takes a frame of 4-byte pixels apart into two fields."});

constinit const Routine records::tntvt_copy_interleaved =
    record<RoutineId::tntvt_copy_interleaved, shapes::frame_copy>({
    .chapter = "field", .extents = extents::copy_interleaved, .refuses = refusals::interleaved,
    .in_place = {as_apart, in_place_rules::equal_strides}, .quirks = {"keeps_whole_copy_without_guard"},
    .companions = {"CopyMemoryFast"},
    .summary = "Copies a frame between pitches."});

constinit const Routine records::tntvt_copy_dissolve = record<RoutineId::tntvt_copy_dissolve, shapes::dissolve>({
    .chapter = "field", .extents = extents::copy_dissolve,
    .quirks = {"keeps_halves_before_sum", "keeps_two_thirds_of_words"},
    .companions = {"fccIsYCbCr8", "fccIsYCbCr10", "fccIsDPX", "fccIsRGB"},
    .peers = {near(command("ffmpeg -f rawvideo -pix_fmt bgra -s WxH -i one -f rawvideo -pix_fmt bgra -s WxH -i other "
        "-lavfi blend=all_mode=average -f rawvideo -pix_fmt bgra out")), near(libyuv("InterpolatePlane"))},
    .summary = "Mixes half of a frame into half of another, by class of FourCC."});

}  // namespace tintvert::catalog
