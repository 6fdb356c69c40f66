#include "io/frames.h"

#include <algorithm>
#include <numeric>

#include "failure.h"
#include "io/pictures/bmp.h"
#include "io/pictures/png_file.h"
#include "io/pictures/pnm.h"
#include "io/sources.h"
#include "layouts.h"

namespace tintvert::core {
namespace {

std::string format_of_head(std::span<const uint8_t> head)
{
    const std::string_view text(reinterpret_cast<const char*>(head.data()), head.size());
    if (text.starts_with("YUV4MPEG2 ")) return "y4m";
    if (text.starts_with("\x89PNG\r\n\x1A\n")) return "png";
    return "raw";
}

// Null after the first.
template <class Read>
NextPicture only(std::shared_ptr<InputFile> file, Read read)
{
    return [file, read, is_read = false]() mutable -> std::unique_ptr<Picture> {
        if (std::exchange(is_read, true)) return nullptr;
        return std::make_unique<Picture>(read(*file));
    };
}

std::unique_ptr<FrameSource> picture_file(InputFile opened, const std::string& format)
{
    auto file = std::make_shared<InputFile>(std::move(opened));
    if (format == "png") return picture_source(file->name(), only(file, read_png));
    if (format == "bmp") return picture_source(file->name(), only(file, read_bmp));
    return picture_source(file->name(), [file] { return read_pnm(*file); });
}

std::unique_ptr<FrameSource> open_source(const ClipOptions& options, const FilePaths& paths)
{
    std::string format = paths.size() == 1 ? format_of(paths[0]) : "raw";
    if (format == "mov" || format == "avi") return clip_source(paths[0]);
    std::vector<InputFile> files(paths.begin(), paths.end());
    if (paths[0] == "-") format = format_of_head(files[0].peek(16));
    if (format == "raw") return raw_source(std::move(files), options.offset);
    if (options.offset != 0) throw Failure(Exit::usage, "--offset is for raw files, and {} is none", files[0].name());
    if (format == "y4m") return y4m_source(std::move(files[0]));
    return picture_file(std::move(files[0]), format);
}

// A size from the file and from --size; they have to agree.
Size size_of_clip(const ClipOptions& options, const FrameSource& source, const std::string& name)
{
    const Size own = source.size();
    if (options.size.empty() && own == Size{})
        throw Failure(Exit::usage, "the size of {} is not known: give --size WIDTHxHEIGHT", name);
    const Size given = options.size.empty() ? own : size_of(options.size);
    if (own != Size{} && own != given)
        throw Failure(Exit::usage, "{} is {}x{}, and not {}", name, own.width, own.height, options.size);
    need_sane_size(given);
    return given;
}

}  // namespace

size_t FrameForm::bytes() const { return static_cast<size_t>(std::accumulate(parts.begin(), parts.end(), int64_t{0})); }

FrameForm scalar_version(std::string_view layout, Size size)
{
    const catalog::Layout& about = *catalog::find_layout(layout);
    FrameForm form;
    form.layout = layout;
    form.width = size.width;
    form.height = size.height;
    form.stride = about.line_bytes(size.width);
    form.parts = {catalog::frame_bytes(about, size.width, size.height)};
    return form;
}

Clip::Clip(const ClipOptions& options, const FilePaths& paths)
    : options_(options),
      name_(paths[0] == "-" ? "standard input" : paths[0].string()),
      range_(frame_range_of(options.frames)),
      source_(open_source(options, paths)),
      size_(size_of_clip(options, *source_, name_))
{}

void Clip::expect(const FrameForm& form)
{
    form_ = form;
    const int64_t stride = stride_of(options_.stride, form.layout, size_);
    const int64_t all = source_->expect(form, stride);
    if (all >= 0 && range_.end > all)
        throw Failure(Exit::unsafe, "{} has {} frames, and not {}", name_, all, range_.end);
    if (all >= 0 && range_.end < 0 && range_.first >= all)
        throw Failure(Exit::unsafe, "{} has {} frames, and none from {} on", name_, all, range_.first);
    const int64_t end = range_.end < 0 ? all : range_.end;
    frames_ = end < 0 ? -1 : end - range_.first;
}

void Clip::skip_to_first()
{
    for (; at_ < range_.first; ++at_)
        if (!source_->skip()) throw Failure(Exit::unsafe, "{} has {} frames, and not {}", name_, at_, range_.first + 1);
}

bool Clip::next(std::span<uint8_t> frame)
{
    skip_to_first();
    if (range_.end >= 0 && at_ == range_.end) return false;
    if (!source_->read(frame)) {
        if (range_.end >= 0) throw Failure(Exit::unsafe, "{} has {} frames, and not {}", name_, at_, range_.end);
        return false;
    }
    ++at_;
    return true;
}

std::string format_of(const std::filesystem::path& path)
{
    std::string ending = path.extension().string();
    std::ranges::transform(ending, ending.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    for (const char* format : {"y4m", "png", "ppm", "pam", "bmp", "mov", "avi"})
        if (ending == std::string(".") + format) return format;
    return "raw";
}

std::unique_ptr<FrameSink> open_sink(const FilePaths& paths, const FrameForm& form, const SinkOptions& options)
{
    if (paths.size() > 1) return planes_sink(paths, form);
    SinkOptions settled = options;
    if (settled.format.empty()) settled.format = format_of(paths[0]);
    if (settled.format == "mov" || settled.format == "avi")
        throw Failure(Exit::usage, "{} files are read, and not written", settled.format);
    if (settled.format == "raw") return raw_sink(paths[0]);
    if (settled.format == "y4m") return y4m_sink(paths[0], form, settled.timing);
    return picture_sink(paths[0], form, settled);
}

std::vector<std::string_view> layouts_of_format(std::string_view format)
{
    if (format == "raw") return {};
    if (format == "y4m") return {"planar422", "i420", "yv12", "planar420"};
    std::vector<std::string_view> layouts;
    for (const catalog::Layout& layout : catalog::layouts())
        if (stores_picture(layout.name) && (format != "bmp" || !is_deep(layout.name))) layouts.push_back(layout.name);
    return layouts;
}

}  // namespace tintvert::core
