// A little more than 4 GiB of address space, of which only the pages in use take memory.
#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <cstdint>

namespace tintvert::test {

class Sparse {
public:
    Sparse() : map_(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)) {}
    ~Sparse()
    {
        if (*this) munmap(map_, size);
    }
    Sparse(const Sparse&) = delete;
    Sparse& operator=(const Sparse&) = delete;

    explicit operator bool() const { return map_ != MAP_FAILED; }
    uint8_t* data() const { return static_cast<uint8_t*>(map_); }

private:
    static constexpr size_t size = 0x100010000;
    void* map_;
};

}  // namespace tintvert::test
