// How many rounds of eight a line of packed 12-bit RGB takes: the last round is a whole one.
#pragma once

namespace tintvert {

constexpr long rounds_of_eight(unsigned long count) { return static_cast<long>((count + 7) / 8); }

constexpr long rounds_of_pixels(long width)
{
    return width < 1 ? 0 : rounds_of_eight(static_cast<unsigned long>(width));
}

constexpr long rounds_of_samples(long width)
{
    return width < 1 ? 0 : rounds_of_eight(3 * static_cast<unsigned long>(width));
}

}  // namespace tintvert
