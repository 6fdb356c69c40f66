// Runs a target over files and folders of cases, where there is no libFuzzer.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

// In memory of its own size, so that a sanitizer sees the end.
void run(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<uint8_t> bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

}  // namespace

int main(int argc, char** argv)
{
    int cases = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            run(entry.path());
            ++cases;
        }
    std::printf("%d cases\n", cases);
    return cases == 0 ? 1 : 0;
}
