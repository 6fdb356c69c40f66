// Where frames come from and where they go: raw files, PNG, Y4M.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rgb_layouts.h"

namespace tintvert::tool {

using Buffers = std::vector<std::span<uint8_t>>;
using Paths = std::vector<std::filesystem::path>;

// How one frame lies in its buffers.
struct FrameForm {
    std::string layout;
    int64_t width, height, stride;
    Words words;
};

class FrameSource {
public:
    virtual ~FrameSource() = default;
    virtual int64_t width() const { return 0; }  // 0 if the file does not say
    virtual int64_t height() const { return 0; }
    virtual int64_t frames(const Buffers& into) = 0;  // throws Failure if the last frame is not whole
    virtual void read(int64_t index, const FrameForm& form, const Buffers& into) = 0;
};

class FrameSink {
public:
    virtual ~FrameSink() = default;
    virtual void write(const FrameForm& form, const Buffers& from) = 0;
    virtual void commit() = 0;
};

// By the ending of the name: .png, .y4m, and raw for all others. Several paths are the planes of raw frames.
std::unique_ptr<FrameSource> open_source(const Paths& paths, int64_t offset);
std::unique_ptr<FrameSink> open_sink(const Paths& paths, bool alpha);

bool has_ending(const std::filesystem::path& path, std::string_view ending);

}  // namespace tintvert::tool
