// How long a line of v210 is for each routine that has a default, found out by calling it over two lines. Prints:
// routine width bytes.
#include <tintvert.h>

#include <cstdint>
#include <cstdio>
#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;

size_t room(unsigned width) { return (width + 48) * 16; }

// A frame that is written: its second line begins where a call over two lines first differs from one over one.
template <class Write>
void tell_written(const char* name, unsigned width, Write write)
{
    Bytes one(room(width), 0x55), two = one;
    write(one.data(), 1);
    write(two.data(), 2);
    size_t at = 0;
    while (at < two.size() && one[at] == two[at]) ++at;
    std::printf("%s %u %zu\n", name, width, at);
}

// A frame that is read: ones from `at` on give the second line's first pixel as long as `at` is not behind it.
template <class Read>
void tell_read(const char* name, unsigned width, Read read)
{
    const auto first_pixel = [&](size_t at) {
        Bytes frame(room(width), 0);
        for (size_t i = at; i < frame.size(); ++i) frame[i] = 0xFF;
        return read(frame.data());
    };
    const auto ones = first_pixel(0);
    size_t low = 0, high = room(width);
    while (high - low > 1) {
        const size_t middle = (low + high) / 2;
        (first_pixel(middle) == ones ? low : high) = middle;
    }
    std::printf("%s %u %zu\n", name, width, low);
}

void tell(unsigned width)
{
    const long w = width;
    Bytes ones(room(width), 0xFF), pixels(width * 8 + 64), narrow(width * 12 + 64);
    tell_written("tntvt_2vuy_v210", width,
                 [&](uint8_t* dst, unsigned lines) { tntvt_2vuy_v210(dst, ones.data(), width, lines, 0); });
    tell_written("tntvt_yuv422_8_yuv422_10", width,
                 [&](uint8_t* dst, unsigned lines) { tntvt_yuv422_8_yuv422_10(dst, ones.data(), width, lines, 0); });
    tell_written("tntvt_YCbCr10Packed_to_v210", width,
                 [&](uint8_t* dst, unsigned lines) { tntvt_YCbCr10Packed_to_v210(dst, ones.data(), width, lines); });
    if (width >= 6)  // below that it leaves lines out
        tell_written("tntvt_rgb32_v210", width,
                     [&](uint8_t* dst, long lines) { tntvt_rgb32_v210(dst, 0, ones.data(), 0, w, lines); });
    tell_read("tntvt_v210_2vuy", width, [&](uint8_t* src) {
        tntvt_v210_2vuy(narrow.data(), src, width, 2, 0);
        return narrow[width * 2];
    });
    tell_read("tntvt_yuv422_10_yuv422_8", width, [&](uint8_t* src) {
        tntvt_yuv422_10_yuv422_8(narrow.data(), src, width, 2, 0);
        return narrow[width * 2];
    });
    const auto green = [&](long pixel_bytes) { return pixels[static_cast<size_t>(w * pixel_bytes + 1)]; };
    tell_read("tntvt_yuv422_10_rgb24", width, [&](uint8_t* src) {
        tntvt_yuv422_10_rgb24(pixels.data(), w * 3, src, 0, w, 2, 1);
        return green(3);
    });
    tell_read("tntvt_yuv422_10_rgb32", width, [&](uint8_t* src) {
        tntvt_yuv422_10_rgb32(pixels.data(), w * 4, src, 0, w, 2, 1);
        return green(4);
    });
    // The last packet holds the first pgroup of the second line, if that lies behind the packet.
    if (width % 2 == 0 && width >= 576)
        tell_read("tntvt_v210_frame_to_rtp_4175", width, [&](uint8_t* frame) {
            unsigned short seq = 0;
            unsigned int first = 0, second = 0;
            tntvt_v210_frame_to_rtp_4175(frame, 0, &seq, 0, 0, 0, nullptr, width, 2, &first, &second);
            return frame[20] << 8 | frame[21];
        });
}

}  // namespace

int main()
{
    for (unsigned width = 1; width <= 4096; ++width) tell(width);
}
