// The same call over a buffer that is large enough, one that is not, and with an argument that would divide by
// zero. A checked call does what the routine does, or it touches nothing and says why.
#include <tintvert/checked.h>

#include <cstdio>
#include <vector>

namespace checked = tintvert::checked;

static void print(const checked::Status& done) { std::puts(done.ok() ? "done" : done.message().c_str()); }

int main()
{
    const long width = 1280, height = 720, v210_line = 3456;  // 128 bytes for each 48 pixels of a line
    std::vector<unsigned char> v210(v210_line * height), rgb(width * height * 3);

    print(checked::tntvt_v210_rgb24(rgb, width * 3, v210, v210_line, width, height, 1));

    // Lines of 1280 x 16 / 6 bytes, as if v210 had no padding: this is too little.
    v210.resize(static_cast<size_t>(width * 16 / 6 * height));
    print(checked::tntvt_v210_rgb24(rgb, width * 3, v210, v210_line, width, height, 1));

    print(checked::tntvt_v210_rgb24(rgb, width * 3, v210, v210_line, width, height, 0));
}
