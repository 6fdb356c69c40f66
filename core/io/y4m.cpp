#include "io/y4m.h"

#include <algorithm>
#include <charconv>
#include <sstream>

#include "failure.h"

namespace tintvert::core {
namespace {

int64_t number(const InputFile& file, const std::string& text)
{
    int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 1 || value > 1 << 20)
        throw Failure(Exit::no_file, "{}: a Y4M header with a size of '{}'", file.name(), text);
    return value;
}

}  // namespace

int64_t Y4m::frame_bytes() const
{
    const int64_t luma = width * height;
    return is_422() ? luma + (width + 1) / 2 * height * 2 : luma + (width + 1) / 2 * ((height + 1) / 2) * 2;
}

Y4m read_y4m_header(InputFile& file)
{
    const auto head = file.peek(512);
    const std::string line(head.begin(), head.end());
    const size_t end = line.find('\n');
    if (!line.starts_with("YUV4MPEG2") || end == std::string::npos)
        throw Failure(Exit::no_file, "{} is no Y4M clip", file.name());
    Y4m clip;
    clip.header_bytes = static_cast<int64_t>(end) + 1;
    file.skip(clip.header_bytes);
    std::istringstream tags(line.substr(9, end - 9));
    for (std::string tag; tags >> tag;) {
        if (tag[0] == 'W')
            clip.width = number(file, tag.substr(1));
        else if (tag[0] == 'H')
            clip.height = number(file, tag.substr(1));
        else if (tag[0] == 'C')
            clip.chroma = tag.substr(1);
        else if (tag[0] != 'X')
            clip.timing += (clip.timing.empty() ? "" : " ") + tag;
    }
    if (clip.width == 0 || clip.height == 0)
        throw Failure(Exit::no_file, "{}: a Y4M header without a size", file.name());
    for (const char* known : {"420jpeg", "420mpeg2", "420paldv", "420", "422"})
        if (clip.chroma == known) return clip;
    throw Failure(Exit::no_file, "{}: Y4M chroma '{}' is not 8-bit 4:2:0 or 4:2:2", file.name(), clip.chroma);
}

std::string y4m_header(const Y4m& clip)
{
    const std::string timing = clip.timing.empty() ? "F25:1 Ip A1:1" : clip.timing;
    return fmt::format("YUV4MPEG2 W{} H{} {} C{}\n", clip.width, clip.height, timing, clip.chroma);
}

}  // namespace tintvert::core
