#include "block.h"

#include <algorithm>
#include <cstring>

namespace tintvert::fuzz {
namespace {

std::vector<uint8_t> filled(size_t size, std::span<const uint8_t> pattern)
{
    std::vector<uint8_t> bytes(size);
    size_t done = std::min(pattern.size(), size);
    std::copy_n(pattern.begin(), done, bytes.begin());
    for (; done > 0 && done < size; done += std::min(done, size - done))
        std::memcpy(bytes.data() + done, bytes.data(), std::min(done, size - done));
    return bytes;
}

}  // namespace

Block::Block(catalog::Range range, size_t lead, std::span<const uint8_t> pattern)
    : range_(range),
      lead_(lead),
      size_(static_cast<size_t>(range.end - range.begin)),
      memory_(new uint8_t[lead_ + size_]),
      before_(filled(lead_ + size_, pattern))
{
    std::ranges::copy(before_, memory_.get());
}

checked::Buffer Block::buffer(int64_t offset) const
{
    return checked::Buffer(memory_.get() + lead_, size_).at(offset - range_.begin);
}

bool Block::is_unchanged_beside(std::span<const catalog::Range> written) const
{
    std::vector<catalog::Range> sorted;
    for (const catalog::Range& range : written)
        if (!range.empty()) sorted.push_back(range);
    std::ranges::sort(sorted, {}, &catalog::Range::begin);
    const auto same = [&](int64_t from, int64_t to) {
        return from >= to ||
               std::memcmp(memory_.get() + from, before_.data() + from, static_cast<size_t>(to - from)) == 0;
    };
    const int64_t origin = static_cast<int64_t>(lead_) - range_.begin;
    int64_t at = 0;
    for (const catalog::Range& range : sorted) {
        if (!same(at, range.begin + origin)) return false;
        at = std::max(at, range.end + origin);
    }
    return same(at, static_cast<int64_t>(lead_ + size_));
}

}  // namespace tintvert::fuzz
