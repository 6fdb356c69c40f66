#include "picture.h"

namespace tintvert::tool {

Picture with_8_bits(const Picture& picture)
{
    if (picture.depth == Picture::bits8) return picture;
    Picture result(picture.width, picture.height);
    for (size_t i = 0; i < result.bytes.size(); ++i) result.bytes[i] = picture.bytes[2 * i + 1];
    return result;
}

}  // namespace tintvert::tool
