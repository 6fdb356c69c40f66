// Much address space in little memory.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

#include "support/fence.h"

namespace tintvert::test {

// `bytes` of addresses, whole pages, that are one MiB of memory again and again, but for one page, and a fence after
// them.
class Repeated {
public:
    Repeated(int64_t bytes, int64_t own_page) : bytes_({0, bytes}, bytes, Side::above, Closed::wholly)
    {
        constexpr int64_t mebibyte = 1 << 20;
        const int file = memfd_create("repeated", 0);
        EXPECT_EQ(ftruncate(file, mebibyte), 0);
        for (int64_t at = 0; at < bytes; at += mebibyte) map(at, std::min(mebibyte, bytes - at), MAP_SHARED, file);
        close(file);
        map(own_page, 4096, MAP_PRIVATE | MAP_ANONYMOUS, -1);
    }
    uint8_t* begin() const { return bytes_.pointer(); }

private:
    void map(int64_t at, int64_t bytes, int flags, int file) const
    {
        EXPECT_NE(mmap(begin() + at, static_cast<size_t>(bytes), PROT_READ | PROT_WRITE, flags | MAP_FIXED, file, 0),
                  MAP_FAILED);
    }
    FencedBuffer bytes_;
};

}  // namespace tintvert::test
