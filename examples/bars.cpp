// bars WIDTH HEIGHT > bars.v210: a frame of eight colour bars, from RGB by way of 2vuy to v210.
#include <tintvert.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

int main(int argc, char** argv)
{
    const int width = argc == 3 ? std::atoi(argv[1]) : 0, height = argc == 3 ? std::atoi(argv[2]) : 0;
    if (width < 1 || height < 1) {
        std::fprintf(stderr, "usage: bars WIDTH HEIGHT > bars.v210\n");
        return 2;
    }
    const size_t pixels = static_cast<size_t>(width), lines = static_cast<size_t>(height);
    const size_t line_2vuy = pixels * 2;                // 2vuy: four bytes for two pixels
    const size_t line_v210 = (pixels + 47) / 48 * 128;  // v210: 128 bytes for each 48 pixels of a line

    // One line: white, yellow, cyan, green, magenta, red, blue, black; bytes B, G, R, unused. A pair is always
    // read whole, so an odd width needs one pixel more.
    std::vector<unsigned char> rgb((pixels + 1) * 4);
    for (size_t x = 0; x < pixels; ++x) {
        const size_t bar = 7 - x * 8 / pixels;
        rgb[x * 4] = bar & 1 ? 255 : 0;
        rgb[x * 4 + 1] = bar & 4 ? 255 : 0;
        rgb[x * 4 + 2] = bar & 2 ? 255 : 0;
    }

    // The line, once for every line of the frame. The last group of a line is read whole: the buffer has 12 bytes
    // past the end of the frame.
    std::vector<unsigned char> bytes(line_2vuy * lines + 12);
    for (size_t y = 0; y < lines; ++y) bgra_to_2vuy(rgb.data(), &bytes[y * line_2vuy], width);

    std::vector<unsigned char> frame(line_v210 * lines);
    tntvt_2vuy_v210(frame.data(), bytes.data(), static_cast<unsigned>(width), static_cast<unsigned>(height),
                    static_cast<unsigned>(line_v210));
    return std::fwrite(frame.data(), 1, frame.size(), stdout) == frame.size() ? 0 : 1;
}
