#include "inspect/test_card.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tintvert::core {
namespace {

struct Rgb {
    int r, g, b;
};

constexpr int width = 1920, height = 1080;

constexpr Rgb grey(int level) { return {level, level, level}; }

// White, yellow, cyan, green, magenta, red, blue, black: green weighs 4, red 2, blue 1 in 7 - n.
constexpr Rgb bar(int n, int level)
{
    const int lit = 7 - n;
    return {lit & 2 ? level : 0, lit & 4 ? level : 0, lit & 1 ? level : 0};
}

bool stripe(int position, int stripe_width) { return position / stripe_width % 2 != 0; }

// Blocks of 150 pixels with stripes of 8, 4, 2 and 1.
int block_of(int x) { return x / 150; }
int stripe_width_of(int x) { return 8 >> block_of(x) % 4; }

Rgb bars(int x, int y) { return bar(x / 150, y < 90 ? 191 : 255); }
Rgb grey_steps(int x, int) { return grey(x / 100 * 255 / 11); }
Rgb grey_ramp(int x, int) { return grey(x * 256 / 1200); }

Rgb colour_ramps(int x, int y)
{
    const int level = x * 256 / 1200;
    return {y / 20 == 0 ? level : 0, y / 20 == 1 ? level : 0, y / 20 == 2 ? level : 0};
}

// Upright lines, then level ones.
Rgb luma_lines(int x, int y)
{
    const int along = block_of(x) < 4 ? x % 150 : y;
    return stripe(along, stripe_width_of(x)) ? grey(255) : grey(0);
}

// Red and cyan, then blue and yellow. 4:2:2 keeps one chroma for two pixels, so the finest pair melts.
Rgb chroma_lines(int x, int)
{
    const bool first = stripe(x % 150, stripe_width_of(x));
    if (block_of(x) < 4) return first ? Rgb{191, 0, 0} : Rgb{0, 191, 191};
    return first ? Rgb{0, 0, 191} : Rgb{191, 191, 0};
}

// 0, 8, 16, 24 on black, 231, 239, 247, 255 on white.
Rgb near_black_and_white(int x, int y)
{
    const int n = block_of(x);
    const bool inside = y >= 10 && y < 50 && x % 150 >= 20 && x % 150 < 130;
    if (n < 4) return grey(inside ? n * 8 : 0);
    return grey(inside ? 231 + (n - 4) * 8 : 255);
}

// Rings that narrow to two pixels at the edge of 240; the colour form has them apart by a third of a ring.
int zone_plate(int x, int y, double turn)
{
    constexpr double pi = 3.14159265358979323846;
    const double dx = x - 119.5, dy = y - 119.5;
    return static_cast<int>(std::lround(127.5 + 127.5 * std::cos(pi * (dx * dx + dy * dy) / 240 + turn)));
}

Rgb grey_zone_plate(int x, int y) { return grey(zone_plate(x, y, 0)); }
Rgb colour_zone_plate(int x, int y)
{
    return {zone_plate(x, y, 0), zone_plate(x, y, 2.0943951), zone_plate(x, y, 4.1887902)};
}

// Letters of 5 x 7, drawn with squares of 6 pixels.
Rgb title(int x, int y)
{
    struct Letter {
        char letter;
        std::string_view rows[7];
    };
    static constexpr Letter letters[] = {
        {'T', {"#####", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  "}},
        {'I', {" ### ", "  #  ", "  #  ", "  #  ", "  #  ", "  #  ", " ### "}},
        {'N', {"#   #", "##  #", "# # #", "# # #", "# # #", "#  ##", "#   #"}},
        {'V', {"#   #", "#   #", "#   #", "#   #", " # # ", " # # ", "  #  "}},
        {'E', {"#####", "#    ", "#    ", "#### ", "#    ", "#    ", "#####"}},
        {'R', {"#### ", "#   #", "#   #", "#### ", "# #  ", "#  # ", "#   #"}},
    };
    constexpr std::string_view word = "TINTVERT";
    constexpr int left = 39, top = 9, square = 6;
    const int column = (x - left) / square, row = (y - top) / square;
    if (x < left || y < top || row > 6 || column / 6 >= static_cast<int>(word.size()) || column % 6 == 5)
        return grey(0);
    for (const Letter& letter : letters)
        if (letter.letter == word[static_cast<size_t>(column / 6)])
            return letter.rows[row][static_cast<size_t>(column % 6)] == '#' ? grey(235) : grey(0);
    return grey(0);
}

struct Panel {
    int x, y, w, h;
    Rgb (*paint)(int x, int y);  // from the panel's own corner
};

constexpr Panel panels[] = {
    {780, 120, 360, 60, title},           {360, 240, 1200, 180, bars},
    {360, 420, 1200, 60, grey_steps},     {360, 480, 1200, 60, grey_ramp},
    {360, 540, 1200, 60, colour_ramps},   {360, 600, 1200, 120, luma_lines},
    {360, 720, 1200, 120, chroma_lines},  {360, 840, 1200, 60, near_black_and_white},
    {60, 420, 240, 240, grey_zone_plate}, {1620, 420, 240, 240, colour_zone_plate},
};

// Black and white teeth of 60 pixels all round, a grid every 60, and the panels.
Rgb ground(int x, int y)
{
    for (const Panel& panel : panels)
        if (x >= panel.x && x < panel.x + panel.w && y >= panel.y && y < panel.y + panel.h)
            return panel.paint(x - panel.x, y - panel.y);
    if (x < 20 || x >= width - 20 || y < 20 || y >= height - 20) return grey((x / 60 + y / 60) % 2 == 0 ? 235 : 16);
    return (x + 1) % 60 < 2 || (y + 1) % 60 < 2 ? grey(170) : grey(96);
}

struct Circle {
    double x, y, radius;
};

constexpr Circle circles[] = {{960, 540, 510}, {180, 180, 120}, {1740, 180, 120}, {180, 900, 120}, {1740, 900, 120}};

// How much of a pixel a ring of 4 pixels covers, 0 to 1.
double covered(int x, int y, const Circle& circle)
{
    const double off = std::abs(std::hypot(x + 0.5 - circle.x, y + 0.5 - circle.y) - circle.radius);
    return off < 1.5 ? 1 : off > 2.5 ? 0 : 2.5 - off;
}

uint8_t mixed(int under, double ring) { return static_cast<uint8_t>(std::lround(under + (235 - under) * ring)); }

}  // namespace

Picture test_card()
{
    Picture card(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            double ring = 0;
            for (const Circle& circle : circles) ring = std::max(ring, covered(x, y, circle));
            const Rgb under = ground(x, y);
            uint8_t* const pixel = card.pixel(x, y);
            pixel[0] = mixed(under.r, ring);
            pixel[1] = mixed(under.g, ring);
            pixel[2] = mixed(under.b, ring);
            pixel[3] = 255;
        }
    }
    return card;
}

}  // namespace tintvert::core
