#include "reference/ycbcr8/planes.h"

#include <cstdint>
#include <cstring>

namespace tintvert::reference {
namespace {

// Planes that are read from where they stopped.
struct Planes {
    const unsigned char *y, *cb, *cr;

    void weave(unsigned char*& dst, uint32_t groups)
    {
        for (; groups > 0; --groups) {
            *dst++ = *cb++;
            *dst++ = *y++;
            *dst++ = *cr++;
            *dst++ = *y++;
        }
    }
};

// All four samples of a group are read before any of its bytes is written.
uint32_t line_of_groups(unsigned char* dst, const unsigned char* luma, const unsigned char* cb, const unsigned char* cr,
                        uint32_t width)
{
    uint32_t x = 0;
    for (; x < width; x += 2) {
        const unsigned char group[4] = {cb[x / 2], luma[x], cr[x / 2], luma[x + 1]};
        std::memcpy(dst + 2 * size_t{x}, group, 4);
    }
    return x;
}

uint32_t resolved(uint32_t stride, uint32_t width) { return stride == 0 || stride == 0xFFFFFFFF ? width * 2 : stride; }

void join(unsigned char* dst, const unsigned char* luma, const unsigned char* cb, const unsigned char* cr,
          uint32_t width, uint32_t height, uint32_t stride)
{
    for (uint32_t r = 0; r < height; ++r) {
        const uint32_t line = r * stride, chroma = (r / 2) * width / 2;
        luma += line_of_groups(dst + line, luma, cb + chroma, cr + chroma, width);
    }
}

void join_interlaced(unsigned char* dst, const unsigned char* luma, const unsigned char* cb, const unsigned char* cr,
                     uint32_t width, uint32_t height, uint32_t stride)
{
    const unsigned char* next = luma;
    for (uint32_t r = 0; r < height; ++r) {
        uint32_t chroma;
        if (r == 1) {
            next = luma + 2 * width;
            chroma = width >> 1;
        } else if (r % 2 == 1) {
            next = luma + (r - 1) * width;
            chroma = (r - 1) / 2 * width / 2 - (width >> 1);
        } else {
            chroma = (r / 2) * width / 2;
        }
        next += line_of_groups(dst + r * stride, next, cb + chroma, cr + chroma, width);
    }
}

// Luma, byte 0 and byte 2 of each group, in this order.
void part(unsigned char* luma, unsigned char* plane0, unsigned char* plane2, const unsigned char* src, uint32_t height,
          uint32_t stride)
{
    for (uint32_t r = 0; r < height; ++r) {
        for (uint32_t b = 0; b < stride; b += 4) {
            const unsigned char* const group = src + r * stride + b;
            *luma++ = group[1];
            *luma++ = group[3];
            if (r % 2 != 0) continue;
            *plane0++ = group[0];
            *plane2++ = group[2];
        }
    }
}

}  // namespace

void tntvt_planar_2vuy(unsigned char* dst, unsigned char* y, unsigned char* cb, unsigned char* cr, unsigned int,
                       unsigned int, unsigned int, unsigned int count)
{
    Planes{y, cb, cr}.weave(dst, count / 2);
}

void tntvt_2vuy_planar(unsigned char* y, unsigned char* cb, unsigned char* cr, unsigned int, unsigned int, unsigned int,
                       unsigned char* src, unsigned int count)
{
    for (unsigned int group = 0; group < count / 2; ++group) {
        cb[group] = src[4 * group];
        y[2 * group] = src[4 * group + 1];
        cr[group] = src[4 * group + 2];
        y[2 * group + 1] = src[4 * group + 3];
    }
}

void tntvt_planarfields_2vuy(unsigned char* dst, unsigned char* y1, unsigned char* cb1, unsigned char* cr1,
                             unsigned char* y2, unsigned char* cb2, unsigned char* cr2, unsigned int, unsigned int,
                             unsigned int, unsigned int groups, unsigned int total)
{
    Planes first{y1, cb1, cr1}, second{y2, cb2, cr2};
    for (unsigned int pairs = (total >> 1) / groups; pairs > 0; --pairs) {
        first.weave(dst, groups);
        second.weave(dst, groups);
    }
}

void tntvt_i420_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride)
{
    stride = resolved(stride, width);
    if (height == 0 || width == 0) return;
    const unsigned char* const cb = src + width * height;
    const unsigned char* const cr = cb + (width * height >> 2);
    join(dst, src, cb, cr, width, height, stride);
}

void tntvt_yv12_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride, unsigned char interlaced)
{
    stride = resolved(stride, width);
    if (height == 0) return;
    const unsigned char* const cr = src + width * height;
    const unsigned char* const cb = cr + (width * height >> 2);
    if (interlaced == 0)
        join(dst, src, cb, cr, width, height, stride);
    else
        join_interlaced(dst, src, cb, cr, width, height, stride);
}

void tntvt_2vuy_i420(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride)
{
    stride = resolved(stride, width);
    if (height == 0 || stride == 0) return;
    unsigned char* const cb = dst + width * height;
    part(dst, cb, cb + (width * height >> 2), src, height, stride);
}

void tntvt_2vuy_yv12(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride)
{
    stride = resolved(stride, width);
    if (height == 0 || stride == 0) return;
    unsigned char* const cr = dst + width * height;
    part(dst, cr + (width * height >> 2), cr, src, height, stride);
}

void YUY2toYV12(unsigned char* src, unsigned char* y, unsigned char* cb, unsigned char* cr, int width, int height,
                int srcPitch, int dstPitch)
{
    if (height < 1 || width < 1) return;
    const int q = (width - 1) / 2 + 1;
    for (int l = 0; l < height; l += 2) {
        for (int g = 0; g < q; ++g) {
            const unsigned char* const a = src + 4 * g;
            const unsigned char* const b = a + 2 * srcPitch;
            y[2 * g] = a[0];
            y[2 * g + 1] = a[2];
            y[2 * g + dstPitch] = b[0];
            y[2 * g + dstPitch + 1] = b[2];
            cb[g] = static_cast<unsigned char>((a[1] + b[1] + 1) / 2);
            cr[g] = static_cast<unsigned char>((a[3] + b[3] + 1) / 2);
        }
        const int gap = dstPitch - width;
        const int half = gap >= 0 ? gap / 2 : -((1 - gap) / 2);  // downward
        src += 4 * q + (2 * srcPitch - width) * 2;
        y += 2 * q + gap + dstPitch;
        cb += q + half;
        cr += q + half;
    }
}

}  // namespace tintvert::reference
