#include "io/pictures/picture.h"

namespace tintvert::core {

Picture with_8_bits(const Picture& picture)
{
    if (picture.depth == Picture::bits8) return picture;
    Picture result(picture.width, picture.height);
    for (size_t i = 0; i < result.bytes.size(); ++i) result.bytes[i] = picture.bytes[2 * i + 1];
    return result;
}

bool is_opaque(const Picture& picture)
{
    const size_t sample = picture.depth;
    for (size_t alpha = 3 * sample; alpha < picture.bytes.size(); alpha += 4 * sample)
        for (size_t byte = 0; byte < sample; ++byte)
            if (picture.bytes[alpha + byte] != 255) return false;
    return true;
}

}  // namespace tintvert::core
