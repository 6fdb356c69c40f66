// RGB of 10 and 12 bits, packed.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tntvt_rgb10_rgba64 = record<RoutineId::tntvt_rgb10_rgba64, shapes::tight_flags>({
    .chapter = "rgb", .from = &layout::rgb10, .to = &layout::rgba64, .extents = extents::rgb10_rgba64,
    .quirks = {"keeps_mask_and_shifts", "keeps_opposite_channel_orders", "keeps_flip_sense_by_byte_order",
        "keeps_start_one_line_below"},
    .summary = "10-bit words to 16-bit channels, masked with 0xFF30, opaque alpha."});

constinit const Routine records::tntvt_rgb10_rgb48 = record<RoutineId::tntvt_rgb10_rgb48, shapes::tight_flags>({
    .chapter = "rgb", .from = &layout::rgb10, .to = &layout::rgb48, .extents = extents::rgb10_rgb48,
    .quirks = {"keeps_mask_and_shifts", "keeps_opposite_channel_orders", "keeps_flip_sense_by_byte_order",
        "keeps_start_one_line_below"},
    .summary = "10-bit words to 16-bit channels, masked with 0xFF30."});

constinit const Routine records::tntvt_rgb10_rgba32 = record<RoutineId::tntvt_rgb10_rgba32, shapes::tight_flags>({
    .chapter = "rgb", .from = &layout::rgb10, .to = &layout::rgba32, .extents = extents::rgb10_rgba32,
    .quirks = {"keeps_flip_sense_by_byte_order"},
    .peers = {near(command("ffmpeg -f rawvideo -c:v r10k -s WxH -i in -f rawvideo -pix_fmt bgra out")),
        near(libyuv("AR30ToARGB"))}, .steps = {{.rank = 41}},
    .summary = "10-bit words to the top 8 bits of each field, opaque alpha."});

constinit const Routine records::tntvt_rgb12_bgr48 = record<RoutineId::tntvt_rgb12_bgr48, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb12, .to = &layout::bgr48, .extents = extents::rgb12_bgr48,
    .peers = {back(oiiotool("dpx"))}, .steps = {{.rank = 42}},
    .summary = "Packed 12-bit samples to 16-bit words, in the order of the stream."});

constinit const Routine records::tntvt_rgb12_rgb48 = record<RoutineId::tntvt_rgb12_rgb48, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb12, .to = &layout::rgb48, .extents = extents::rgb12_rgb48,
    .quirks = {"keeps_triple_rounds"},
    .summary = "Packed 12-bit samples to 16-bit words, reversed in each pixel, over three times the width."});

constinit const Routine records::tntvt_rgb12_rgba32 = record<RoutineId::tntvt_rgb12_rgba32, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb12, .to = &layout::rgba32, .extents = extents::rgb12_rgba32,
    .quirks = {"keeps_red_in_one_blue_byte"},
    .summary = "Packed 12-bit samples to their upper 8 bits, opaque alpha."});

constinit const Routine records::tntvt_rgb48_12_rgb12 = record<RoutineId::tntvt_rgb48_12_rgb12, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb48_12, .to = &layout::rgb12, .extents = extents::rgb48_rgb12,
    .refuses = refusals::packed_lines, .quirks = {"keeps_bits_behind_the_limit", "keeps_two_bit_orders"},
    .peers = {by_bytes(oiiotool("tiff"))}, .steps = {{.rank = 44}},
    .summary = "The low 12 bits of 16-bit words to packed samples, highest bit first."});

constinit const Routine records::tntvt_rgb48_rgb12 = record<RoutineId::tntvt_rgb48_rgb12, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb48, .to = &layout::rgb12, .extents = extents::rgb48_rgb12,
    .refuses = refusals::packed_lines, .quirks = {"keeps_bits_behind_the_limit", "keeps_two_bit_orders"},
    .peers = {by_bytes(oiiotool("tiff"))}, .steps = {{.rank = 43}},
    .summary = "The upper 12 bits of 16-bit words to packed samples, highest bit first."});

constinit const Routine records::tntvt_rgb48_12_rgba32 = record<RoutineId::tntvt_rgb48_12_rgba32, shapes::strided>({
    .chapter = "rgb", .from = &layout::rgb48_12, .to = &layout::rgba32, .extents = extents::rgb48_12_rgba32,
    .quirks = {"keeps_one_byte_a_line"},
    .summary = "One byte a line: bits 4 to 11 of the line's last word."});

constinit const Routine records::tntvt_rgb12_rgb48_sse4 =
    record<RoutineId::tntvt_rgb12_rgb48_sse4, shapes::empty_strided>({
    .chapter = "rgb",
    .summary = "Does nothing."});

}  // namespace tintvert::catalog
