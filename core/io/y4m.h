// The headers of YUV4MPEG2 clips of 8-bit planes: Y, Cb, Cr.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "io/input_file.h"

namespace tintvert::core {

struct Y4m {
    int64_t width = 0, height = 0;
    std::string chroma = "420jpeg";  // the C tag: 420jpeg, 420mpeg2, 420paldv, 420, 422
    std::string timing;              // the other tags, kept
    int64_t header_bytes = 0;        // where the first frame begins

    bool is_422() const { return chroma == "422"; }
    int64_t frame_bytes() const;
};

Y4m read_y4m_header(InputFile& file);  // throws Failure
std::string y4m_header(const Y4m& clip);

inline constexpr std::string_view y4m_frame_mark = "FRAME\n";

}  // namespace tintvert::core
