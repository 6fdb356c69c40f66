#include <gtest/gtest.h>
#include <tintvert/frame.h>

#include <cstring>

namespace tintvert::test {
namespace {

TEST(Scratch, has_its_size_at_a_32_byte_boundary)
{
    for (int size = 0; size <= 300; ++size) {
        void *raw = nullptr, *aligned = nullptr;
        malloc_own_cache_lines(size, &raw, &aligned);
        ASSERT_NE(raw, nullptr);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(aligned) % 32, 0u);
        EXPECT_GE(aligned, raw);
        EXPECT_LE(static_cast<char*>(aligned) - static_cast<char*>(raw), 31);
        std::memset(aligned, 0xEE, static_cast<size_t>(size));
        free_own_cache_lines(&raw, &aligned);
        EXPECT_EQ(raw, nullptr);
        EXPECT_EQ(aligned, nullptr);
    }
}

TEST(Scratch, may_be_freed_twice)
{
    void *raw, *aligned;
    malloc_own_cache_lines(100, &raw, &aligned);
    free_own_cache_lines(&raw, &aligned);
    free_own_cache_lines(&raw, &aligned);
    EXPECT_EQ(raw, nullptr);
    EXPECT_EQ(aligned, nullptr);
}

}  // namespace
}  // namespace tintvert::test
