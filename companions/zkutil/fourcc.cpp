#include <cstddef>

#include "zkutil.h"

namespace {

struct Code {
    char letters[5];
};

constexpr Code ycbcr8[] = {{"2vuy"}, {"2Vuy"}, {"UYVY"}, {"UYNV"}, {"HDYC"}, {"Y422"}, {"yuv2"}, {"yuvs"},
                           {"yuvu"}, {"YUY2"}, {"YUYV"}, {"YUNV"}, {"V422"}, {"VYUY"}, {"YVYU"}};
constexpr Code ycbcr10[] = {{"v210"}, {"V210"}};
constexpr Code dpx[] = {{"r210"}, {"R10k"}, {"R10g"}, {"R10b"}, {"R10l"}, {"AVrp"}};
constexpr Code rgb[] = {{"BGRA"}, {"ARGB"}, {"RGBA"}, {"ABGR"}, {"BGRX"}, {"XRGB"},
                        {"RGBX"}, {"XBGR"}, {"rgba"}, {"abgr"}, {"RGB4"}, {"BGR4"}};

constexpr unsigned int first_letter_lowest(const Code& code)
{
    unsigned int number = 0;
    for (int i = 3; i >= 0; --i) number = number << 8 | static_cast<unsigned char>(code.letters[i]);
    return number;
}
static_assert(first_letter_lowest({"2vuy"}) == 0x79757632);

template <size_t count>
int is_one_of(const Code (&codes)[count], unsigned int fourcc)
{
    for (const Code& code : codes) {
        const unsigned int number = first_letter_lowest(code);
        if (fourcc == number || fourcc == __builtin_bswap32(number)) return 1;
    }
    return 0;
}

}  // namespace

int fccIsYCbCr8(unsigned int fourcc) { return is_one_of(ycbcr8, fourcc); }
int fccIsYCbCr10(unsigned int fourcc) { return is_one_of(ycbcr10, fourcc); }
int fccIsDPX(unsigned int fourcc) { return is_one_of(dpx, fourcc); }
int fccIsRGB(unsigned int fourcc) { return is_one_of(rgb, fourcc); }
