// Independent programs that do neighbouring work, run on frames of ours.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace tintvert::test {

using Bytes = std::vector<uint8_t>;
using Words = std::vector<std::string>;

// Whether a program of that name is on the path.
bool installed(const std::string& program);

// What `command` makes of `input`. "{in}" and "{in2}" in its words become the names of files with the inputs, and
// "{out}" the start of the name of the file that it writes, all in a folder that is removed afterwards. Throws with
// the program's own words if it fails or leaves no file.
Bytes through(Words command, const Bytes& input, const Bytes& second = {});

struct Picture {
    std::string format;  // in the program's own name
    long width, height;
};

// One or more raw frames from one pixel format to another, by way of filters.
Bytes ffmpeg(const Bytes& frames, const Picture& from, const std::string& filters, const std::string& to);

// One raw frame through videoconvert with `options`. GStreamer rounds lines of its own up to 4 bytes.
Bytes gstreamer(const Bytes& frame, const Picture& from, const Words& options, const std::string& to);

class Ffmpeg : public testing::Test {
protected:
    void SetUp() override;
};

class Gstreamer : public testing::Test {
protected:
    void SetUp() override;
};

class ImageMagick : public testing::Test {
protected:
    void SetUp() override;
    static std::string convert();  // its program, "" for none
};

class OpenImageIo : public testing::Test {
protected:
    void SetUp() override;
};

}  // namespace tintvert::test
