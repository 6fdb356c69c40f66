#include "y4m.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <sstream>

#include "failure.h"

namespace tintvert::tool {
namespace {

constexpr int64_t mark_bytes = sizeof y4m_frame_mark - 1;

int64_t number(const InputFile& file, const std::string& text)
{
    int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 1 || value > 1 << 20)
        throw Failure(Exit::no_file, "{}: a Y4M header with a size of '{}'", file.path().string(), text);
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
    std::string line(static_cast<size_t>(std::min<int64_t>(file.size(), 512)), '\0');
    file.read(0, reinterpret_cast<uint8_t*>(line.data()), static_cast<int64_t>(line.size()));
    const size_t end = line.find('\n');
    if (!line.starts_with("YUV4MPEG2") || end == std::string::npos)
        throw Failure(Exit::no_file, "{} is no Y4M clip", file.path().string());
    Y4m clip;
    clip.timing.clear();
    clip.header_bytes = static_cast<int64_t>(end) + 1;
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
        throw Failure(Exit::no_file, "{}: a Y4M header without a size", file.path().string());
    for (const char* known : {"420jpeg", "420mpeg2", "420paldv", "420", "422"})
        if (clip.chroma == known) return clip;
    throw Failure(Exit::no_file, "{}: Y4M chroma '{}' is not 8-bit 4:2:0 or 4:2:2", file.path().string(), clip.chroma);
}

std::string y4m_header(const Y4m& clip)
{
    return fmt::format("YUV4MPEG2 W{} H{} {} C{}\n", clip.width, clip.height, clip.timing, clip.chroma);
}

int64_t y4m_frames(const InputFile& file, const Y4m& clip)
{
    const int64_t each = mark_bytes + clip.frame_bytes(), all = file.size() - clip.header_bytes;
    if (all % each != 0)
        throw Failure(Exit::unsafe, "{} ends in the middle of frame {}", file.path().string(), all / each);
    return all / each;
}

// Frames carry no parameters of their own in any clip that we have met; one that does is refused.
int64_t y4m_frame(InputFile& file, const Y4m& clip, int64_t index)
{
    const int64_t at = clip.header_bytes + index * (mark_bytes + clip.frame_bytes());
    uint8_t mark[mark_bytes];
    file.read(at, mark, mark_bytes);
    if (std::memcmp(mark, y4m_frame_mark, mark_bytes) != 0)
        throw Failure(Exit::no_file, "{}: no plain FRAME at byte {}", file.path().string(), at);
    return at + mark_bytes;
}

}  // namespace tintvert::tool
