// What a file of raw frames may contain, by its name, its length and its bytes.
//
//     length, three bytes   length of the name   name   bytes that fill the file, repeated
#include "inspect/guess.h"

#include <stdlib.h>

#include <string>

#include "failure.h"
#include "input.h"
#include "layouts.h"
#include "memory_file.h"
#include "must.h"

namespace {

using namespace tintvert;

struct Folder {
    std::filesystem::path path;
    Folder() : path(std::filesystem::temp_directory_path() / "tintvert-fuzz-XXXXXX")
    {
        std::string name = path.string();
        fuzz::must(mkdtemp(name.data()) != nullptr, "there is a folder");
        path = name;
    }
    ~Folder() { std::filesystem::remove_all(path); }
};

std::string name_of(fuzz::Input& input)
{
    std::string name(input.byte(), '_');
    for (char& c : name) {
        const char given = static_cast<char>(input.byte());
        if (given != 0 && given != '/') c = given;
    }
    return name.empty() || name == "." || name == ".." || name.size() > 250 ? "_" : name;
}

std::vector<uint8_t> bytes_of(fuzz::Input& input, size_t length)
{
    const std::vector<uint8_t> pattern(input.rest().begin(), input.rest().end());
    std::vector<uint8_t> bytes(length);
    for (size_t i = 0; i < length && !pattern.empty(); ++i) bytes[i] = pattern[i % pattern.size()];
    return bytes;
}

void run(fuzz::Input& input)
{
    static const Folder folder;
    const auto length = static_cast<size_t>(input.little_endian(3)) % (1 << 14) + 1;
    const std::filesystem::path path = folder.path / name_of(input);
    std::filesystem::create_symlink(fuzz::memory_file(bytes_of(input, length)), path);
    core::InputFile file(path);
    std::filesystem::remove(path);
    for (const core::Guess& guess : core::guesses(file)) {
        const auto& layout = *catalog::find_layout(guess.form->layout);
        const int64_t bytes = catalog::frame_bytes(layout, guess.width, guess.height);
        fuzz::must(bytes > 0 && guess.frames * bytes == static_cast<int64_t>(length), "a guess makes the whole file");
        fuzz::must(guess.alike >= 0 && guess.alike <= 1 && guess.unused >= 0 && guess.unused <= 1, "shares are shares");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzz::Input input(data, size);
    try {
        run(input);
    } catch (const core::Failure&) {
    }
    return 0;
}
