#include "shapes.h"

#include <algorithm>
#include <cstdlib>

#include "catalog.h"
#include "geometry.h"
#include "layouts.h"

namespace tintvert::catalog::shapes {
namespace {

int64_t lines_of(const Arguments& call) { return std::abs(call[height]); }
int64_t frame_of(const Layout& layout, const Arguments& call)
{
    return frame_bytes(layout, call[width], lines_of(call));
}

// Of a pair of layouts, the packed one has lines `stride` apart.
int64_t stride_lines(const Layout& layout, const Arguments& call)
{
    return layout.planes() == Planes::packed ? call[stride] * lines_of(call) : frame_of(layout, call);
}

}  // namespace

int64_t src_lines(const Routine&, const Arguments& call) { return std::abs(call[srcStride]) * lines_of(call); }
int64_t dst_lines(const Routine&, const Arguments& call)
{
    return std::abs(call[dstStride]) * (lines_of(call) / std::max<int64_t>(call[scale], 1));
}

int64_t src_stride_lines(const Routine& routine, const Arguments& call) { return stride_lines(*routine.from, call); }
int64_t dst_stride_lines(const Routine& routine, const Arguments& call) { return stride_lines(*routine.to, call); }

int64_t src_frame(const Routine& routine, const Arguments& call) { return frame_of(*routine.from, call); }
int64_t dst_frame(const Routine& routine, const Arguments& call) { return frame_of(*routine.to, call); }

int64_t src_line(const Routine& routine, const Arguments& call) { return routine.from->line_bytes(call[width]); }
int64_t dst_line(const Routine& routine, const Arguments& call) { return routine.to->line_bytes(call[width]); }

int64_t src_run(const Routine& routine, const Arguments& call) { return routine.from->line_bytes(call[pixels]); }
int64_t dst_run(const Routine& routine, const Arguments& call) { return routine.to->line_bytes(call[pixels]); }

int64_t payload_bytes(const Routine&, const Arguments& call) { return call[payloadSize]; }
int64_t stream_bytes(const Routine&, const Arguments& call) { return call[streamSize]; }
int64_t whole_buffer(const Routine&, const Arguments& call) { return call[bytes]; }

int64_t palette_bytes(const Routine& routine, const Arguments&) { return 256 * routine.to->line_bytes(1); }

// A frame of fewer bytes than the packets that are formed over its head take.
int64_t packets(const Routine& routine, const Arguments& call)
{
    return std::max<int64_t>(frame_of(*routine.from, call), 1395);
}

int64_t v210_run(const Routine&, const Arguments& call) { return v210_groups_bytes(call[width] * lines_of(call)); }

int64_t run_packed(const Routine&, const Arguments& call) { return call[count] / 2 * 4; }
int64_t run_luma(const Routine&, const Arguments& call) { return call[count] / 2 * 2; }
int64_t run_chroma(const Routine&, const Arguments& call) { return call[count] / 2; }

int64_t groups_packed(const Routine&, const Arguments& call) { return call[total] * 4; }
int64_t groups_luma(const Routine&, const Arguments& call) { return call[total] / 2 * 2; }
int64_t groups_chroma(const Routine&, const Arguments& call) { return call[total] / 2; }

int64_t pitch_src(const Routine&, const Arguments& call) { return call[srcPitch] * 2 * lines_of(call); }
int64_t pitch_luma(const Routine&, const Arguments& call) { return call[dstPitch] * lines_of(call); }
int64_t pitch_chroma(const Routine&, const Arguments& call) { return call[dstPitch] / 2 * ((lines_of(call) + 1) / 2); }

int64_t first_field(const Routine&, const Arguments& call) { return call[fieldStride] * ((lines_of(call) + 1) / 2); }
int64_t second_field(const Routine&, const Arguments& call) { return call[fieldStride] * (lines_of(call) / 2); }

int64_t one_src_line_before(const Arguments& call) { return -call[srcStride]; }
int64_t one_dst_line_before(const Arguments& call) { return -call[dstStride]; }

// The width counts elements of 8 bytes.
Arguments plain_in_elements(const Routine& routine, const Geometry& geometry)
{
    Arguments call = plain_arguments(routine, geometry);
    call[width] = call[stride] / 8;
    return call;
}

}  // namespace tintvert::catalog::shapes
