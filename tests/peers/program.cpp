#include "peers/program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace tintvert::test {

namespace {

namespace fs = std::filesystem;

class Folder {
public:
    Folder() : path_(fresh()) {}
    ~Folder() { fs::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string file(const std::string& name) const { return (path_ / name).string(); }

    // The file whose name starts with "out", whatever the program has hung on it.
    std::string result() const
    {
        for (const auto& entry : fs::directory_iterator(path_))
            if (entry.path().filename().string().starts_with("out")) return entry.path().string();
        return {};
    }

private:
    static std::string fresh()
    {
        std::string name = (fs::temp_directory_path() / "tintvert-peers-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for " + name);
        return name;
    }

    fs::path path_;
};

Bytes load(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void save(const std::string& name, const Bytes& bytes)
{
    std::ofstream(name, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void replace(std::string& word, const std::string& mark, const std::string& name)
{
    if (const size_t at = word.find(mark); at != std::string::npos) word.replace(at, mark.size(), name);
}

// The exit code, with everything the program says in the file `words`.
int run(Words& command, const std::string& words)
{
    std::vector<char*> arguments;
    for (std::string& word : command) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const pid_t pid = fork();
    if (pid == 0) {
        const int nothing = open("/dev/null", O_RDONLY), said = open(words.c_str(), O_WRONLY | O_CREAT, 0600);
        dup2(nothing, STDIN_FILENO);
        dup2(said, STDOUT_FILENO);
        dup2(said, STDERR_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

int run(Words command)
{
    const Folder folder;
    return run(command, folder.file("words"));
}

std::string size_of(const Picture& picture)
{
    return std::to_string(picture.width) + "x" + std::to_string(picture.height);
}

}  // namespace

bool installed(const std::string& program)
{
    const char* path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');)
        if (access((fs::path(folder) / program).c_str(), X_OK) == 0) return true;
    return false;
}

Bytes through(Words command, const Bytes& input, const Bytes& second)
{
    const Folder folder;
    save(folder.file("in"), input);
    save(folder.file("in2"), second);
    for (std::string& word : command) {
        replace(word, "{in}", folder.file("in"));
        replace(word, "{in2}", folder.file("in2"));
        replace(word, "{out}", folder.file("out"));
    }
    const int code = run(command, folder.file("words"));
    const std::string result = folder.result();
    if (code != 0 || result.empty()) {
        const Bytes words = load(folder.file("words"));
        throw std::runtime_error(command[0] + " ended with " + std::to_string(code) + ": " +
                                 std::string(words.begin(), words.end()));
    }
    return load(result);
}

Bytes ffmpeg(const Bytes& frames, const Picture& from, const std::string& filters, const std::string& to)
{
    return through({"ffmpeg", "-v", "error", "-f", "rawvideo", "-pix_fmt", from.format, "-s", size_of(from), "-i",
                    "{in}", "-vf", filters, "-f", "rawvideo", "-pix_fmt", to, "{out}"},
                   frames);
}

Bytes gstreamer(const Bytes& frame, const Picture& from, const Words& options, const std::string& to)
{
    Words command = {"gst-launch-1.0",
                     "-q",
                     "filesrc",
                     "location={in}",
                     "!",
                     "rawvideoparse",
                     "format=" + from.format,
                     "width=" + std::to_string(from.width),
                     "height=" + std::to_string(from.height),
                     "!",
                     "videoconvert",
                     "dither=none"};
    command.insert(command.end(), options.begin(), options.end());
    for (const std::string& word : Words{"!", "video/x-raw,format=" + to, "!", "filesink", "location={out}"})
        command.push_back(word);
    return through(command, frame);
}

void Ffmpeg::SetUp()
{
    if (!installed("ffmpeg")) GTEST_SKIP() << "skipped: ffmpeg is not installed";
}

void Gstreamer::SetUp()
{
    if (!installed("gst-launch-1.0")) GTEST_SKIP() << "skipped: gst-launch-1.0 is not installed";
    for (const std::string element : {"rawvideoparse", "videoconvert"})
        if (run({"gst-inspect-1.0", "--exists", element}) != 0)
            GTEST_SKIP() << "skipped: GStreamer's " << element << " is not installed";
}

// Debian's own name first: plain `convert` may be another program.
std::string ImageMagick::convert()
{
    for (const std::string name : {"convert-im6.q16", "magick"})
        if (installed(name)) return name;
    return {};
}

void ImageMagick::SetUp()
{
    if (convert().empty()) GTEST_SKIP() << "skipped: ImageMagick is not installed";
}

void OpenImageIo::SetUp()
{
    if (!installed("oiiotool")) GTEST_SKIP() << "skipped: oiiotool is not installed";
}

}  // namespace tintvert::test
