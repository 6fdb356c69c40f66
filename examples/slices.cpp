// A frame divided into slices of lines, one thread each. No routine keeps a pointer or holds a lock, so calls over
// different lines may run at once.
//
// Divide only where lines are independent, as in tntvt_2vuy_v210. tntvt_rgb32_2vuy and a few others carry a chroma
// filter from line to line; the header of a routine says so, and such a frame takes one call.
#include <tintvert.h>

#include <algorithm>
#include <cstdio>
#include <thread>
#include <vector>

int main()
{
    const unsigned width = 1920, height = 1080, src_stride = width * 2, dst_stride = width / 48 * 128;
    std::vector<unsigned char> src(src_stride * height), whole(dst_stride * height), sliced(dst_stride * height);
    for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<unsigned char>(i * 2654435761u >> 24);

    tntvt_2vuy_v210(whole.data(), src.data(), width, height, dst_stride);

    const unsigned count = 4, lines = (height + count - 1) / count;
    {
        std::vector<std::jthread> threads;
        for (unsigned first = 0; first < height; first += lines)
            threads.emplace_back([&, first] {
                tntvt_2vuy_v210(&sliced[first * dst_stride], &src[first * src_stride], width,
                                std::min(lines, height - first), dst_stride);
            });
    }  // every thread is joined here

    const bool same = sliced == whole;
    std::printf("%u slices of %u lines: %s\n", count, lines, same ? "the bytes of one call" : "other bytes");
    return same ? 0 : 1;
}
