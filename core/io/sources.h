// The kinds of files that frames are read from and written to.
#pragma once

#include <functional>
#include <memory>

#include "io/frames.h"
#include "io/input_file.h"
#include "io/pictures/picture.h"

namespace tintvert::core {

std::unique_ptr<FrameSource> raw_source(std::vector<InputFile> files, int64_t offset);
std::unique_ptr<FrameSource> y4m_source(InputFile file);
std::unique_ptr<FrameSource> clip_source(const std::filesystem::path& path);  // MOV and AVI
bool reads_clips();                                                           // whether built with libavformat

// Pictures one after the other: null after the last one.
using NextPicture = std::function<std::unique_ptr<Picture>()>;
std::unique_ptr<FrameSource> picture_source(std::string name, NextPicture next);

std::unique_ptr<FrameSink> raw_sink(const std::filesystem::path& path);
std::unique_ptr<FrameSink> planes_sink(const FilePaths& paths, const FrameForm& form);
std::unique_ptr<FrameSink> y4m_sink(const std::filesystem::path& path, const FrameForm& form,
                                    const std::string& timing);
std::unique_ptr<FrameSink> picture_sink(const std::filesystem::path& path, const FrameForm& form,
                                        const SinkOptions& options);

// A frame as a file has it, with lines `stride` bytes apart, to a frame in memory.
void take_lines(const FrameForm& form, const uint8_t* file, int64_t stride, std::span<uint8_t> frame);

// Whether the frames of a form have lines that take_lines can place.
void need_lines(const FrameForm& form);

}  // namespace tintvert::core
