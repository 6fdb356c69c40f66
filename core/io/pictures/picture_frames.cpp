// Frames in files of pictures: PNG, PPM, PAM, BMP.
#include <algorithm>

#include "failure.h"
#include "io/output_file.h"
#include "io/pictures/bmp.h"
#include "io/pictures/png_file.h"
#include "io/pictures/pnm.h"
#include "io/sources.h"

namespace tintvert::core {
namespace {

void need_rgb(const FrameForm& form)
{
    if (!stores_picture(form.layout)) throw Failure(Exit::usage, "a picture file stores RGB, and not {}", form.layout);
    if (form.parts.size() != 1 || static_cast<int64_t>(form.bytes()) != form.stride * form.height)
        throw Failure(Exit::usage, "a picture file stores one picture, which is not what this routine's {} is",
                      form.layout);
}

class PictureSource : public FrameSource {
public:
    PictureSource(std::string name, NextPicture next)
        : name_(std::move(name)), next_(std::move(next)), picture_(next_())
    {
        if (!picture_) throw Failure(Exit::no_file, "cannot read {}: the file is empty", name_);
        size_ = {picture_->width, picture_->height};
        deep_ = picture_->depth == Picture::bits16;
        opaque_ = is_opaque(*picture_);
    }
    std::string layout() const override { return deep_ ? "rgba64" : "rgb32"; }
    Size size() const override { return size_; }
    bool opaque() const override { return opaque_; }

    int64_t expect(const FrameForm& form, int64_t) override
    {
        need_rgb(form);
        form_ = form;
        return -1;
    }

    bool read(std::span<uint8_t> frame) override
    {
        const std::unique_ptr<Picture> picture = take();
        if (!picture) return false;
        if (Size{picture->width, picture->height} != size_)
            throw Failure(Exit::no_file, "{}: a picture of {}x{} after one of {}x{}", name_, picture->width,
                          picture->height, size_.width, size_.height);
        std::ranges::copy(frame_of_picture(*picture, form_.layout, form_.stride, form_.words), frame.begin());
        return true;
    }
    bool skip() override { return take() != nullptr; }

private:
    std::unique_ptr<Picture> take() { return picture_ ? std::move(picture_) : next_(); }

    std::string name_;
    NextPicture next_;
    std::unique_ptr<Picture> picture_;  // the first one, until it is read
    Size size_;
    bool deep_ = false, opaque_ = false;
    FrameForm form_;
};

class PictureSink : public FrameSink {
public:
    PictureSink(const std::filesystem::path& path, const FrameForm& form, const SinkOptions& options)
        : path_(path), form_(form), format_(options.format), alpha_(options.alpha)
    {
        need_rgb(form);
        const auto fitting = layouts_of_format(format_);
        if (std::ranges::find(fitting, form.layout) == fitting.end())
            throw Failure(Exit::usage, "a {} file stores 8 bits a channel, and {} has more", format_, form.layout);
        if (format_ != "png") file_ = std::make_unique<OutputFile>(path);
    }

    void write(std::span<const uint8_t> frame) override
    {
        const bool is_one = format_ == "png" || format_ == "bmp";
        if (written_ && is_one)
            throw Failure(Exit::usage, "a {} file stores one frame: choose it with --frames", format_);
        written_ = true;
        picture_ =
            picture_of_frame(frame.data(), form_.layout, form_.stride, form_.width, form_.height, form_.words, alpha_);
        if (format_ == "ppm") write_ppm(*file_, picture_);
        if (format_ == "pam") write_pam(*file_, picture_, alpha_);
        if (format_ == "bmp") write_bmp(*file_, picture_, alpha_);
    }

    void commit() override { file_ ? file_->commit() : write_png(path_, picture_); }

private:
    std::filesystem::path path_;
    FrameForm form_;
    std::string format_;
    bool alpha_, written_ = false;
    std::unique_ptr<OutputFile> file_;
    Picture picture_;
};

}  // namespace

std::unique_ptr<FrameSource> picture_source(std::string name, NextPicture next)
{
    return std::make_unique<PictureSource>(std::move(name), std::move(next));
}

std::unique_ptr<FrameSink> picture_sink(const std::filesystem::path& path, const FrameForm& form,
                                        const SinkOptions& options)
{
    return std::make_unique<PictureSink>(path, form, options);
}

}  // namespace tintvert::core
