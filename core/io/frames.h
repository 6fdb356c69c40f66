// Where frames come from and where they go, one after the other: raw files, PNG, PPM, PAM, BMP, Y4M, and clips in
// MOV and AVI. A command that reads frames makes a Clip:
//
//     Clip clip(options, {path});                         // --size, --stride, --offset, --frames
//     clip.expect(scalar_version("v210", clip.size()));       // what the command wants to have in memory
//     std::vector<uint8_t> frame(clip.form().bytes());
//     while (clip.next(frame)) ...
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "io/clip_options.h"
#include "io/pictures/rgb_layouts.h"

namespace tintvert::core {

using FilePaths = std::vector<std::filesystem::path>;  // `-` is standard input or output

// How a frame lies in memory: buffers without a gap, one after the other.
struct FrameForm {
    std::string layout;
    int64_t width = 0, height = 0;
    int64_t stride = 0;  // of the lines of pictures
    Words words;
    std::vector<int64_t> parts;  // the bytes of each buffer
    bool unbroken = false;       // groups of v210 run on from line to line

    size_t bytes() const;
};

// A frame without padding, in one buffer, as the layout's arithmetic has it.
FrameForm scalar_version(std::string_view layout, Size size);

class FrameSource {
public:
    virtual ~FrameSource() = default;

    // What the file says of itself: empty or 0 for what it leaves open.
    virtual std::string layout() const { return {}; }
    virtual Size size() const { return {}; }
    virtual std::string timing() const { return {}; }  // as the header of a Y4M clip has it
    virtual bool opaque() const { return false; }      // whether its alpha says nothing

    // Settles how frames come, with lines `stride` apart in the file if that is not 0. How many there are, or -1 if
    // that is known at their end only. Throws Failure if the file cannot give such frames, or not whole ones.
    virtual int64_t expect(const FrameForm& form, int64_t stride) = 0;

    // The next frame; false after the last one.
    virtual bool read(std::span<uint8_t> frame) = 0;
    virtual bool skip() = 0;
};

class FrameSink {
public:
    virtual ~FrameSink() = default;
    virtual void write(std::span<const uint8_t> frame) = 0;
    virtual void commit() = 0;
};

// The frames of --frames, from one file, or from a file for each buffer.
class Clip {
public:
    Clip(const ClipOptions& options, const FilePaths& paths);

    const std::string& name() const { return name_; }
    std::string layout() const { return source_->layout(); }
    std::string timing() const { return source_->timing(); }
    bool opaque() const { return source_->opaque(); }
    Size size() const { return size_; }  // throws Failure if neither the file nor --size gives it

    void expect(const FrameForm& form);
    const FrameForm& form() const { return form_; }
    int64_t frames() const { return frames_; }  // -1 if that is not known before their end

    bool next(std::span<uint8_t> frame);

private:
    void skip_to_first();

    ClipOptions options_;
    std::string name_;
    FrameRange range_;
    std::unique_ptr<FrameSource> source_;
    Size size_;
    FrameForm form_;
    int64_t frames_ = -1, at_ = 0;
};

// raw, y4m, png, ppm, pam, bmp, mov or avi: by the ending of a name, and of what comes through standard input by its
// first bytes.
std::string format_of(const std::filesystem::path& path);

struct SinkOptions {
    std::string format;  // of a single file; empty: by the ending of its name
    std::string timing;  // of a Y4M clip; empty: 25 progressive frames a second
    bool alpha = false;  // keep alpha in pictures
};

// Several paths are the files of the buffers.
std::unique_ptr<FrameSink> open_sink(const FilePaths& paths, const FrameForm& form, const SinkOptions& options);

// The layouts that a format can store; none for formats that store any.
std::vector<std::string_view> layouts_of_format(std::string_view format);

}  // namespace tintvert::core
