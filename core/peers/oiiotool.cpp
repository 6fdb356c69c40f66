// OpenImageIO's program. Samples of 12 bits come to it as a PPM and go from it packed: as DPX or as TIFF.
#include <fmt/format.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "failure.h"
#include "frame/memory.h"
#include "io/input_file.h"
#include "io/interrupt.h"
#include "peers/process.h"

namespace tintvert::core {
namespace {

using Bytes = std::vector<uint8_t>;

// It puts a new file in place of the one that it is to write, so stdout will not do.
class OwnFile {
public:
    OwnFile() : name_((std::filesystem::temp_directory_path() / "tintvert-XXXXXX").string())
    {
        const int descriptor = mkstemp(name_.data());
        if (descriptor < 0) throw Failure(Exit::no_file, "cannot make a file in {}", name_);
        close(descriptor);
        unfinished_.emplace(name_.c_str());
    }
    ~OwnFile() { unlink(name_.c_str()); }
    OwnFile(const OwnFile&) = delete;
    OwnFile& operator=(const OwnFile&) = delete;

    const std::string& name() const { return name_; }
    Bytes read() const { return InputFile(name_).read_rest(); }

private:
    std::string name_;
    std::optional<Unfinished> unfinished_;
};

// Words of 16 bits, three to a pixel. Each has its 12 bits at the top and their upper four again below: OpenImageIO
// divides by 65535 and multiplies by 4095, which gives the 12 bits back.
Bytes ppm_of(const PeerQuestion& question)
{
    const std::string head = fmt::format("P6\n{} {}\n65535\n", question.width, question.height);
    Bytes ppm(head.begin(), head.end());
    for (size_t at = 0; at < question.frame.size(); at += 2) {
        const int word = load<uint16_t>(&question.frame[at]);
        const int code = question.from == "rgb48_12" ? word & 0xFFF : word >> 4;
        ppm.push_back(static_cast<uint8_t>(code >> 4));
        ppm.push_back(static_cast<uint8_t>(code << 4 | code >> 8));
    }
    return ppm;
}

// Where the pixels of a little-endian DPX begin is said at byte 4; a TIFF of one strip says it in the entry 273.
size_t begin_of_pixels(const Bytes& file, bool is_tiff)
{
    const size_t at = load<uint32_t>(&file.at(4));
    if (!is_tiff) return at;
    for (size_t entry = at + 2; entry + 12 <= file.size(); entry += 12)
        if (load<uint16_t>(&file[entry]) == 273) return load<uint32_t>(&file[entry + 8]);
    return file.size();
}

}  // namespace

PeerAnswer answer_of_oiiotool(const PeerQuestion& question)
{
    const OwnFile file;
    const bool is_tiff = question.asked == "tiff";
    std::vector<std::string> command{"oiiotool", "/dev/stdin", "-d", "uint12", "--attrib", "oiio:BitsPerSample", "12"};
    if (is_tiff)
        command.insert(command.end(), {"--compression", "none", "--attrib", "tiff:RowsPerStrip",
                                       std::to_string(question.height), "-o:fileformatname=tiff"});
    else
        command.insert(command.end(), {"--attrib", "dpx:Packing", "Packed", "--attrib", "oiio:Endian", "little",
                                       "-o:fileformatname=dpx"});
    command.push_back(file.name());
    const PeerAnswer answer = answer_of(command, ppm_of(question));
    if (!answer.frame) return answer;
    const Bytes written = file.read();
    const size_t count = static_cast<size_t>(question.width * question.height * 36 / 8);
    const size_t begin = written.size() < 8 ? 0 : begin_of_pixels(written, is_tiff);
    if (written.size() < begin + count) return {.why_none = "oiiotool wrote no such file"};
    return {.frame = Bytes(written.begin() + static_cast<std::ptrdiff_t>(begin),
                           written.begin() + static_cast<std::ptrdiff_t>(begin + count))};
}

}  // namespace tintvert::core
