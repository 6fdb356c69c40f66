// Frames in Y4M clips.
#include <algorithm>

#include "failure.h"
#include "io/output_file.h"
#include "io/sources.h"
#include "io/y4m.h"

namespace tintvert::core {
namespace {

void need_planes(const FrameForm& form, bool is_422)
{
    const bool fits = is_422 ? form.layout == "planar422"
                             : form.layout == "i420" || form.layout == "yv12" || form.layout == "planar420";
    if (!fits) throw Failure(Exit::usage, "a Y4M clip of {} cannot store {}", is_422 ? "4:2:2" : "4:2:0", form.layout);
    if (form.width % 2 != 0 || (!is_422 && form.height % 2 != 0))
        throw Failure(Exit::usage, "Y4M clips go through with even sizes alone");
}

// `yv12` has its chroma planes the other way about.
void exchange_chroma(const FrameForm& form, std::span<uint8_t> frame)
{
    if (form.layout != "yv12") return;
    const auto luma = static_cast<size_t>(form.width * form.height);
    std::ranges::swap_ranges(frame.subspan(luma, luma / 4), frame.subspan(luma + luma / 4, luma / 4));
}

class Y4mSource : public FrameSource {
public:
    explicit Y4mSource(InputFile file) : file_(std::move(file)), clip_(read_y4m_header(file_)) {}

    std::string layout() const override { return clip_.is_422() ? "planar422" : "i420"; }
    Size size() const override { return {clip_.width, clip_.height}; }
    std::string timing() const override { return clip_.timing; }

    int64_t expect(const FrameForm& form, int64_t) override
    {
        need_planes(form, clip_.is_422());
        form_ = form;
        if (file_.size() < 0) return -1;
        const auto each = static_cast<int64_t>(y4m_frame_mark.size()) + clip_.frame_bytes();
        const int64_t all = file_.size() - clip_.header_bytes;
        at_ = all / each;
        need_whole(all % each == 0);
        at_ = 0;
        return all / each;
    }

    bool read(std::span<uint8_t> frame) override
    {
        if (!read_mark()) return false;
        need_whole(file_.read_some(frame.data(), frame.size()) == frame.size());
        exchange_chroma(form_, frame);
        ++at_;
        return true;
    }

    bool skip() override
    {
        if (!read_mark()) return false;
        need_whole(file_.skip(clip_.frame_bytes()));
        ++at_;
        return true;
    }

private:
    void need_whole(bool is_whole) const
    {
        if (!is_whole) throw Failure(Exit::unsafe, "{} ends in the middle of frame {}", file_.name(), at_);
    }

    // Frames carry no parameters of their own in any clip that we have met; one that does is refused.
    bool read_mark()
    {
        char mark[y4m_frame_mark.size()];
        const size_t got = file_.read_some(reinterpret_cast<uint8_t*>(mark), sizeof mark);
        if (got == 0) return false;
        need_whole(got == sizeof mark);
        if (!std::ranges::equal(mark, y4m_frame_mark))
            throw Failure(Exit::no_file, "{}: no plain FRAME before frame {}", file_.name(), at_);
        return true;
    }

    InputFile file_;
    Y4m clip_;
    FrameForm form_;
    int64_t at_ = 0;
};

class Y4mSink : public FrameSink {
public:
    Y4mSink(const std::filesystem::path& path, const FrameForm& form, const std::string& timing)
        : form_(form), is_422_(form.layout == "planar422")
    {
        need_planes(form, is_422_);
        file_ = std::make_unique<OutputFile>(path);
        const std::string header = y4m_header({form.width, form.height, is_422_ ? "422" : "420jpeg", timing});
        file_->write(header.data(), header.size());
    }
    void write(std::span<const uint8_t> frame) override
    {
        planes_.assign(frame.begin(), frame.end());
        exchange_chroma(form_, planes_);
        file_->write(y4m_frame_mark.data(), y4m_frame_mark.size());
        file_->write(planes_.data(), planes_.size());
    }
    void commit() override { file_->commit(); }

private:
    FrameForm form_;
    bool is_422_;
    std::unique_ptr<OutputFile> file_;
    std::vector<uint8_t> planes_;
};

}  // namespace

std::unique_ptr<FrameSource> y4m_source(InputFile file) { return std::make_unique<Y4mSource>(std::move(file)); }

std::unique_ptr<FrameSink> y4m_sink(const std::filesystem::path& path, const FrameForm& form, const std::string& timing)
{
    return std::make_unique<Y4mSink>(path, form, timing);
}

}  // namespace tintvert::core
