// Raw frames one after the other; in one file all buffers of a frame, in several files one buffer each.
#include <algorithm>

#include "failure.h"
#include "io/output_file.h"
#include "io/sources.h"

namespace tintvert::core {
namespace {

class RawSource : public FrameSource {
public:
    RawSource(std::vector<InputFile> files, int64_t offset) : files_(std::move(files)), offset_(offset) {}

    int64_t expect(const FrameForm& form, int64_t stride) override
    {
        form_ = form;
        parts_ = form.parts;
        if (files_.size() == 1) parts_ = {static_cast<int64_t>(form.bytes())};
        if (files_.size() != parts_.size())
            throw Failure(Exit::usage, "{} files for the {} buffers that the routine reads", files_.size(),
                          parts_.size());
        const bool is_as_in_file = stride == form.stride && stride * form.height == static_cast<int64_t>(form.bytes());
        if (stride != 0 && !is_as_in_file) {
            if (files_.size() > 1) throw Failure(Exit::usage, "--stride is for frames in one file");
            need_lines(form);
            stride_ = stride;
            parts_ = {stride * form.height};
            lines_.resize(static_cast<size_t>(parts_[0]));
        }
        return whole_frames();
    }

    bool read(std::span<uint8_t> frame) override
    {
        if (stride_ != 0) {
            if (!read_part(0, lines_)) return false;
            take_lines(form_, lines_.data(), stride_, frame);
            return true;
        }
        for (size_t i = 0; i < files_.size(); ++i) {
            const auto bytes = static_cast<size_t>(parts_[i]);
            if (!read_part(i, frame.first(bytes))) return false;
            frame = frame.subspan(bytes);
        }
        return true;
    }

    bool skip() override
    {
        return std::ranges::all_of(files_,
                                   [&, i = size_t{0}](InputFile& file) mutable { return file.skip(parts_[i++]); });
    }

private:
    int64_t whole_frames()
    {
        int64_t count = -1;
        for (size_t i = 0; i < files_.size(); ++i) {
            InputFile& file = files_[i];
            if (file.size() < 0) {
                if (!file.skip(offset_)) throw Failure(Exit::unsafe, "{} ends before the offset", file.name());
                continue;
            }
            const int64_t each = parts_[i], all = std::max<int64_t>(file.size() - offset_, 0);
            if (all < each || all % each != 0)
                throw Failure(Exit::unsafe, "{} has {} bytes, and a frame of this geometry is {}", file.name(), all,
                              each);
            if (count >= 0 && count != all / each)
                throw Failure(Exit::unsafe, "{} has {} frames, the file before it {}", file.name(), all / each, count);
            count = all / each;
            file.skip(offset_);
        }
        return count;
    }

    bool read_part(size_t i, std::span<uint8_t> to)
    {
        const size_t got = files_[i].read_some(to.data(), to.size());
        if (got == 0) return false;
        if (got < to.size())
            throw Failure(Exit::unsafe, "{} ends in the middle of a frame: {} bytes of {}", files_[i].name(), got,
                          to.size());
        return true;
    }

    std::vector<InputFile> files_;
    int64_t offset_, stride_ = 0;  // of lines that are to be taken out of the file, one by one
    FrameForm form_;
    std::vector<int64_t> parts_;  // of a frame in each file
    std::vector<uint8_t> lines_;
};

class RawSink : public FrameSink {
public:
    explicit RawSink(const std::filesystem::path& path) : file_(path) {}
    void write(std::span<const uint8_t> frame) override { file_.write(frame.data(), frame.size()); }
    void commit() override { file_.commit(); }

private:
    OutputFile file_;
};

class PlanesSink : public FrameSink {
public:
    PlanesSink(const FilePaths& paths, const FrameForm& form) : parts_(form.parts)
    {
        if (parts_.size() != paths.size())
            throw Failure(Exit::usage, "{} files for the {} buffers that the routine writes", paths.size(),
                          parts_.size());
        for (const auto& path : paths) files_.push_back(std::make_unique<OutputFile>(path));
    }
    void write(std::span<const uint8_t> frame) override
    {
        for (size_t i = 0; i < parts_.size(); ++i) {
            const auto bytes = static_cast<size_t>(parts_[i]);
            files_[i]->write(frame.data(), bytes);
            frame = frame.subspan(bytes);
        }
    }
    void commit() override { OutputFile::commit_together(files_); }

private:
    std::vector<int64_t> parts_;
    std::vector<std::unique_ptr<OutputFile>> files_;
};

}  // namespace

std::unique_ptr<FrameSource> raw_source(std::vector<InputFile> files, int64_t offset)
{
    return std::make_unique<RawSource>(std::move(files), offset);
}

std::unique_ptr<FrameSink> raw_sink(const std::filesystem::path& path) { return std::make_unique<RawSink>(path); }

std::unique_ptr<FrameSink> planes_sink(const FilePaths& paths, const FrameForm& form)
{
    return std::make_unique<PlanesSink>(paths, form);
}

}  // namespace tintvert::core
