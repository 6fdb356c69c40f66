// A page amid address space that is closed for more than 2^34 bytes on either side: a walk of 2^32 pixels that begins
// in it ends in a fault, whichever way it goes. Two of them are so far apart that no such frames overlap.
#pragma once

#include <sys/mman.h>

#include <cstdint>
#include <new>

namespace tintvert::test {

class LonePage {
public:
    static constexpr int64_t bytes = 4096;

    LonePage() : map_(mmap(nullptr, 2 * around, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0))
    {
        if (map_ == MAP_FAILED) throw std::bad_alloc();
        mprotect(begin(), bytes, PROT_READ | PROT_WRITE);
    }
    ~LonePage() { munmap(map_, 2 * around); }
    LonePage(const LonePage&) = delete;
    LonePage& operator=(const LonePage&) = delete;

    uint8_t* begin() const { return static_cast<uint8_t*>(map_) + around; }
    uint8_t* closed() const { return begin() + 2 * bytes; }

private:
    static constexpr int64_t around = (int64_t{1} << 34) + 65536;
    void* map_;
};

}  // namespace tintvert::test
