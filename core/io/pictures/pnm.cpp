#include "io/pictures/pnm.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <sstream>

#include "failure.h"
#include "frame/memory.h"
#include "io/clip_options.h"

namespace tintvert::core {
namespace {

struct Header {
    int64_t width = 0, height = 0, depth = 3, highest = 0;
};

Failure broken(const InputFile& file, const std::string& what)
{
    return Failure(Exit::no_file, "cannot read {}: {}", file.name(), what);
}

char next_char(InputFile& file)
{
    uint8_t c = 0;
    if (file.read_some(&c, 1) == 0) throw broken(file, "the header ends too early");
    return static_cast<char>(c);
}

bool is_space(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

int64_t number(const InputFile& file, const std::string& text)
{
    int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 0)
        throw broken(file, fmt::format("'{}' in the header is no number", text.substr(0, 20)));
    return value;
}

// A number and the one space after it; comments run from # to the end of their line.
int64_t ppm_number(InputFile& file)
{
    std::string text;
    for (;;) {
        char c = next_char(file);
        if (c == '#')
            while (c != '\n') c = next_char(file);
        if (!is_space(c))
            text += c;
        else if (!text.empty())
            return number(file, text);
        if (text.size() > 20) throw broken(file, "a header without numbers");
    }
}

Header read_ppm_header(InputFile& file)
{
    Header header;
    header.width = ppm_number(file);
    header.height = ppm_number(file);
    header.highest = ppm_number(file);
    return header;
}

Header read_pam_header(InputFile& file)
{
    Header header;
    for (;;) {
        std::string line;
        for (char c; (c = next_char(file)) != '\n';) {
            line += c;
            if (line.size() > 255) throw broken(file, "a header without lines");
        }
        std::istringstream words(line);
        std::string key, value;
        words >> key >> value;
        if (key == "ENDHDR") return header;
        if (key == "WIDTH") header.width = number(file, value);
        if (key == "HEIGHT") header.height = number(file, value);
        if (key == "DEPTH") header.depth = number(file, value);
        if (key == "MAXVAL") header.highest = number(file, value);
        if (key == "TUPLTYPE" && value != "RGB" && value != "RGB_ALPHA")
            throw broken(file, fmt::format("a PAM of {}, and not of RGB or RGB_ALPHA", value));
    }
}

std::unique_ptr<Picture> read_samples(InputFile& file, const Header& header)
{
    const bool deep = header.highest > 255;
    const size_t sample = deep ? 2 : 1, depth = static_cast<size_t>(header.depth);
    const unsigned highest = static_cast<unsigned>(header.highest), full = deep ? 65535 : 255;
    if (file.is_short_of(header.width * header.height * header.depth * (deep ? 2 : 1)))
        throw broken(file, "the file ends too early");
    auto picture = std::make_unique<Picture>(header.width, header.height, deep ? Picture::bits16 : Picture::bits8);
    std::vector<uint8_t> line(static_cast<size_t>(header.width) * depth * sample);
    for (long y = 0; y < picture->height; ++y) {
        if (file.read_some(line.data(), line.size()) != line.size()) throw broken(file, "the file ends too early");
        const uint8_t* from = line.data();
        uint8_t* to = picture->line(y);
        for (long x = 0; x < picture->width; ++x) {
            for (size_t n = 0; n < 4; ++n, to += sample) {
                unsigned value = highest;
                if (n < depth) {
                    value = std::min(deep ? byte_reverse(load<uint16_t>(from)) : unsigned{*from}, highest);
                    from += sample;
                }
                value = (value * full + highest / 2) / highest;
                deep ? store(to, static_cast<uint16_t>(value)) : store(to, static_cast<uint8_t>(value));
            }
        }
    }
    return picture;
}

void write_samples(OutputFile& file, const Picture& picture, size_t depth)
{
    const size_t sample = picture.depth;
    std::vector<uint8_t> line;
    for (long y = 0; y < picture.height; ++y) {
        line.clear();
        for (long x = 0; x < picture.width; ++x) {
            const uint8_t* pixel = picture.pixel(x, y);
            for (size_t n = 0; n < depth; ++n)
                for (size_t byte = sample; byte-- > 0;) line.push_back(pixel[n * sample + byte]);
        }
        file.write(line.data(), line.size());
    }
}

void write_text(OutputFile& file, const std::string& text) { file.write(text.data(), text.size()); }

int highest_of(const Picture& picture) { return picture.depth == Picture::bits16 ? 65535 : 255; }

}  // namespace

std::unique_ptr<Picture> read_pnm(InputFile& file)
{
    uint8_t magic[2];
    const size_t got = file.read_some(magic, 2);
    if (got == 0) return nullptr;
    if (got != 2 || magic[0] != 'P' || (magic[1] != '6' && magic[1] != '7')) throw broken(file, "it is no PPM or PAM");
    const Header header = magic[1] == '6' ? read_ppm_header(file) : read_pam_header(file);
    if (header.depth < 3 || header.depth > 4)
        throw broken(file, fmt::format("a PAM of {} samples a pixel, and not 3 or 4", header.depth));
    if (header.highest < 1 || header.highest > 65535)
        throw broken(file, fmt::format("a highest value of {}, and not of 1 to 65535", header.highest));
    naming(file.name(), [&] { need_sane_size({header.width, header.height}); });
    return read_samples(file, header);
}

void write_ppm(OutputFile& file, const Picture& picture)
{
    write_text(file, fmt::format("P6\n{} {}\n{}\n", picture.width, picture.height, highest_of(picture)));
    write_samples(file, picture, 3);
}

void write_pam(OutputFile& file, const Picture& picture, bool alpha)
{
    write_text(file, fmt::format("P7\nWIDTH {}\nHEIGHT {}\nDEPTH {}\nMAXVAL {}\nTUPLTYPE {}\nENDHDR\n", picture.width,
                                 picture.height, alpha ? 4 : 3, highest_of(picture), alpha ? "RGB_ALPHA" : "RGB"));
    write_samples(file, picture, alpha ? 4 : 3);
}

}  // namespace tintvert::core
