// Bytes that somebody else wrote, and the big-endian numbers among them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tintvert::core::capture {

using Bytes = std::span<const uint8_t>;

// `at` and the bytes after it are inside.
inline uint32_t be16(Bytes bytes, size_t at) { return static_cast<uint32_t>(bytes[at] << 8 | bytes[at + 1]); }
inline uint32_t be32(Bytes bytes, size_t at) { return be16(bytes, at) << 16 | be16(bytes, at + 2); }

// What is left after the first `count` bytes; nothing if there are no more.
inline Bytes after(Bytes bytes, size_t count) { return count < bytes.size() ? bytes.subspan(count) : Bytes(); }

}  // namespace tintvert::core::capture
