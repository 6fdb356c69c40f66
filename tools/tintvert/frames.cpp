#include "frames.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "failure.h"
#include "input_file.h"
#include "output_file.h"
#include "png_file.h"
#include "y4m.h"

namespace tintvert::tool {
namespace {

int64_t total(const Buffers& buffers)
{
    return std::accumulate(buffers.begin(), buffers.end(), int64_t{0},
                           [](int64_t sum, auto buffer) { return sum + static_cast<int64_t>(buffer.size()); });
}

// Frames one after the other; in one file all buffers of a frame, in several files one buffer each.
class RawSource : public FrameSource {
public:
    RawSource(const Paths& paths, int64_t offset) : offset_(offset)
    {
        for (const auto& path : paths) files_.emplace_back(path);
    }

    int64_t frames(const Buffers& into) override
    {
        if (files_.size() > 1 && files_.size() != into.size())
            throw Failure(Exit::usage, "{} files for the {} buffers that the routine reads", files_.size(),
                          into.size());
        int64_t count = -1;
        for (size_t i = 0; i < files_.size(); ++i) {
            const int64_t each = files_.size() == 1 ? total(into) : static_cast<int64_t>(into[i].size());
            const int64_t all = files_[i].size() - offset_;
            if (all < each || all % each != 0)
                throw Failure(Exit::unsafe, "{} holds {} bytes, and a frame of this geometry is {}",
                              files_[i].path().string(), std::max<int64_t>(all, 0), each);
            if (count >= 0 && count != all / each)
                throw Failure(Exit::unsafe, "{} holds {} frames, the file before it {}", files_[i].path().string(),
                              all / each, count);
            count = all / each;
        }
        return count;
    }

    void read(int64_t index, const FrameForm&, const Buffers& into) override
    {
        int64_t at = offset_ + index * total(into);
        for (size_t i = 0; i < into.size(); ++i) {
            const auto size = static_cast<int64_t>(into[i].size());
            if (files_.size() == 1) {
                files_[0].read(at, into[i].data(), size);
                at += size;
            } else {
                files_[i].read(offset_ + index * size, into[i].data(), size);
            }
        }
    }

private:
    std::vector<InputFile> files_;
    int64_t offset_;
};

void need_rgb(const FrameForm& form, const char* side)
{
    if (!holds_picture(form.layout))
        throw Failure(Exit::usage, "a PNG holds RGB, and the routine {} {}", side, form.layout);
}

class PngSource : public FrameSource {
public:
    explicit PngSource(const std::filesystem::path& path) : picture_(read_png(path)) {}
    int64_t width() const override { return picture_.width; }
    int64_t height() const override { return picture_.height; }
    int64_t frames(const Buffers&) override { return 1; }

    void read(int64_t, const FrameForm& form, const Buffers& into) override
    {
        need_rgb(form, "reads");
        const std::vector<uint8_t> frame = frame_of_picture(picture_, form.layout, form.stride, form.words);
        if (into.size() != 1 || into[0].size() != frame.size())
            throw Failure(Exit::usage, "a PNG goes in with tight lines, as the only picture");
        std::ranges::copy(frame, into[0].begin());
    }

private:
    Picture picture_;
};

// `yv12` has its chroma planes the other way about.
void exchange_chroma(const FrameForm& form, const Buffers& buffers)
{
    if (form.layout != "yv12") return;
    const auto quarter = static_cast<long>(form.width * form.height / 4);
    auto first = buffers[0].begin() + form.width * form.height;
    std::swap_ranges(first, first + quarter, first + quarter);
}

void need_planes(const FrameForm& form, bool is_422)
{
    const bool fits = is_422 ? form.layout == "planar422"
                             : form.layout == "i420" || form.layout == "yv12" || form.layout == "planar420";
    if (!fits) throw Failure(Exit::usage, "a Y4M clip of {} does not hold {}", is_422 ? "4:2:2" : "4:2:0", form.layout);
    if (form.width % 2 != 0 || form.height % 2 != 0)
        throw Failure(Exit::usage, "Y4M clips go through with even sizes alone");
}

class Y4mSource : public FrameSource {
public:
    explicit Y4mSource(const std::filesystem::path& path) : file_(path), clip_(read_y4m_header(file_)) {}
    int64_t width() const override { return clip_.width; }
    int64_t height() const override { return clip_.height; }
    int64_t frames(const Buffers&) override { return y4m_frames(file_, clip_); }

    void read(int64_t index, const FrameForm& form, const Buffers& into) override
    {
        need_planes(form, clip_.is_422());
        int64_t at = y4m_frame(file_, clip_, index);
        for (const auto& buffer : into) {
            file_.read(at, buffer.data(), static_cast<int64_t>(buffer.size()));
            at += static_cast<int64_t>(buffer.size());
        }
        exchange_chroma(form, into);
    }

private:
    InputFile file_;
    Y4m clip_;
};

class RawSink : public FrameSink {
public:
    explicit RawSink(const std::filesystem::path& path) : file_(path) {}
    void write(const FrameForm&, const Buffers& from) override
    {
        for (const auto& buffer : from) file_.write(buffer.data(), buffer.size());
    }
    void commit() override { file_.commit(); }

private:
    OutputFile file_;
};

// The planes wait in memory, so that the files appear one after the other and whole.
class PlanesSink : public FrameSink {
public:
    explicit PlanesSink(const Paths& paths) : paths_(paths), planes_(paths.size()) {}
    void write(const FrameForm&, const Buffers& from) override
    {
        if (from.size() != paths_.size())
            throw Failure(Exit::usage, "{} files for the {} buffers that the routine writes", paths_.size(),
                          from.size());
        for (size_t i = 0; i < from.size(); ++i) planes_[i].insert(planes_[i].end(), from[i].begin(), from[i].end());
    }
    void commit() override
    {
        for (size_t i = 0; i < paths_.size(); ++i) write_file(paths_[i], planes_[i].data(), planes_[i].size());
    }

private:
    Paths paths_;
    std::vector<std::vector<uint8_t>> planes_;
};

class PngSink : public FrameSink {
public:
    PngSink(const std::filesystem::path& path, bool alpha) : path_(path), alpha_(alpha) {}
    void write(const FrameForm& form, const Buffers& from) override
    {
        need_rgb(form, "writes");
        if (written_) throw Failure(Exit::usage, "a PNG holds one frame: choose it with --frames");
        if (from.size() != 1)
            throw Failure(Exit::usage, "a PNG takes one picture, and the routine writes {}", from.size());
        picture_ =
            picture_of_frame(from[0].data(), form.layout, form.stride, form.width, form.height, form.words, alpha_);
        written_ = true;
    }
    void commit() override { write_png(path_, picture_); }

private:
    std::filesystem::path path_;
    bool alpha_, written_ = false;
    Picture picture_;
};

class Y4mSink : public FrameSink {
public:
    explicit Y4mSink(const std::filesystem::path& path) : file_(path) {}
    void write(const FrameForm& form, const Buffers& from) override
    {
        const bool is_422 = form.layout == "planar422";
        need_planes(form, is_422);
        if (!begun_) {
            const std::string header =
                y4m_header({.width = form.width, .height = form.height, .chroma = is_422 ? "422" : "420jpeg"});
            file_.write(header.data(), header.size());
            begun_ = true;
        }
        file_.write(y4m_frame_mark, sizeof y4m_frame_mark - 1);
        exchange_chroma(form, from);
        for (const auto& buffer : from) file_.write(buffer.data(), buffer.size());
    }
    void commit() override { file_.commit(); }

private:
    OutputFile file_;
    bool begun_ = false;
};

}  // namespace

bool has_ending(const std::filesystem::path& path, std::string_view ending)
{
    std::string own = path.extension().string();
    std::ranges::transform(own, own.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return own == ending;
}

std::unique_ptr<FrameSource> open_source(const Paths& paths, int64_t offset)
{
    if (has_ending(paths[0], ".png")) return std::make_unique<PngSource>(paths[0]);
    if (has_ending(paths[0], ".y4m")) return std::make_unique<Y4mSource>(paths[0]);
    return std::make_unique<RawSource>(paths, offset);
}

std::unique_ptr<FrameSink> open_sink(const Paths& paths, bool alpha)
{
    if (paths.size() > 1) return std::make_unique<PlanesSink>(paths);
    if (has_ending(paths[0], ".png")) return std::make_unique<PngSink>(paths[0], alpha);
    if (has_ending(paths[0], ".y4m")) return std::make_unique<Y4mSink>(paths[0]);
    return std::make_unique<RawSink>(paths[0]);
}

}  // namespace tintvert::tool
