#include "decoders.h"

#include <cstdlib>

namespace tintvert::test {

Twins Decoder::at_scale(long scale) const
{
    const auto work = [scale](auto* function) -> Work {
        return [=](const StridedFrame& f) {
            function(f.dst, f.dst_stride, const_cast<uint8_t*>(f.src), f.src_stride, f.width, f.height, scale);
        };
    };
    return {std::string{name} + " at scale " + std::to_string(scale), {32, 32}, work(routine), work(reference)};
}

void expect_equal_frames(const Decoder& decoder, Random& random, int rounds, long scale)
{
    for (; rounds > 0; --rounds) {
        const long width = random.between(-2, 40), reduced = scale == 0 ? width : width / scale;
        const StridedFrame frame{nullptr, any_stride(random, std::labs(reduced * random.between(2, 4))),
                                 nullptr, any_stride(random, std::labs(decoder.src_line(width))),
                                 width,   scale < 0 ? random.between(-14, 4) : random.between(-4, 14)};
        EXPECT_TRUE(agree(random, decoder.at_scale(scale), frame, apart(frame) + random.between(-8, 8)));
    }
}

void expect_equal_overlapping(const Decoder& decoder, Random& random)
{
    for (long distance = -64; distance <= 64; ++distance)
        for (const long scale : {1L, 2L, 4L})
            for (const long stride : {39L, 52L, 64L}) {
                const StridedFrame frame{nullptr, stride, nullptr, decoder.src_line(13), 13, 8};
                EXPECT_TRUE(agree(random, decoder.at_scale(scale), frame, distance));
            }
}

}  // namespace tintvert::test
