// YUV4MPEG2 clips of 8-bit planes: Y, Cb, Cr.
#pragma once

#include <cstdint>
#include <string>

#include "input_file.h"

namespace tintvert::tool {

struct Y4m {
    int64_t width = 0, height = 0;
    std::string chroma = "420jpeg";        // the C tag: 420jpeg, 420mpeg2, 420, 422
    std::string timing = "F25:1 Ip A1:1";  // the other tags, kept
    int64_t header_bytes = 0;              // where the first frame begins

    bool is_422() const { return chroma == "422"; }
    int64_t frame_bytes() const;
};

Y4m read_y4m_header(InputFile& file);  // throws Failure
std::string y4m_header(const Y4m& clip);

// Where frame `index` has its planes. Throws Failure if no frame begins there.
int64_t y4m_frame(InputFile& file, const Y4m& clip, int64_t index);
int64_t y4m_frames(const InputFile& file, const Y4m& clip);

inline constexpr char y4m_frame_mark[] = "FRAME\n";

}  // namespace tintvert::tool
