#include "memory_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <string>

#include "must.h"

namespace tintvert::fuzz {

std::filesystem::path memory_file(std::span<const uint8_t> bytes)
{
    static const int file = memfd_create("case", MFD_CLOEXEC);
    must(file >= 0 && ftruncate(file, 0) == 0, "there is a file in memory");
    must(pwrite(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()), "it takes the bytes");
    return "/proc/self/fd/" + std::to_string(file);
}

}  // namespace tintvert::fuzz
