#include "support/v210.h"

namespace tintvert::test {

Memory v210(std::initializer_list<uint32_t> samples)
{
    Memory bytes(samples.size() / 3 * 4);
    size_t n = 0;
    for (const uint32_t sample : samples) {
        for (uint32_t bit = 0; bit < 10; ++bit) {
            const size_t place = n / 3 * 32 + n % 3 * 10 + bit;
            bytes[place / 8] = static_cast<uint8_t>(bytes[place / 8] | (sample >> bit & 1) << (place % 8));
        }
        ++n;
    }
    return bytes;
}

Memory operator+(Memory left, const Memory& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

Memory operator*(size_t times, const Memory& part)
{
    Memory all;
    for (; times > 0; --times) all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace tintvert::test
