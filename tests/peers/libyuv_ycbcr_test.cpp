// 8-bit YCbCr against libyuv, byte for byte.
#include <gtest/gtest.h>
#include <tintvert.h>

#ifndef TINTVERT_PEER_LIBYUV
TEST(LibyuvYCbCr, all) { GTEST_SKIP() << "skipped: libyuv is not installed"; }
#else

#include <libyuv.h>

#include "peers/compare.h"
#include "peers/frames.h"

namespace tintvert::test {
namespace {

constexpr Size sizes[] = {{2, 2}, {16, 4}, {190, 6}, {722, 34}, {1280, 720}};

int line(const Size& size) { return static_cast<int>(size.width); }
int lines(const Size& size) { return static_cast<int>(size.height); }

struct Planes {
    Bytes y, cb, cr;
    Planes(uint64_t seed, size_t luma, size_t chroma)
        : y(noise(seed, luma)), cb(noise(seed + 1, chroma)), cr(noise(seed + 2, chroma))
    {}
};

TEST(LibyuvYCbCr, planes_to_2vuy)
{
    for (const Size& size : sizes) {
        Planes planes(1, size.pixels(), size.pixels() / 2);
        Bytes ours(size.pixels() * 2), theirs = ours;
        tntvt_planar_2vuy(ours.data(), planes.y.data(), planes.cb.data(), planes.cr.data(), 0, 0, 0,
                          static_cast<unsigned int>(size.pixels()));
        libyuv::I422ToUYVY(planes.y.data(), line(size), planes.cb.data(), line(size) / 2, planes.cr.data(),
                           line(size) / 2, theirs.data(), line(size) * 2, line(size), lines(size));
        EXPECT_TRUE(same(ours, theirs)) << size.width;
    }
}

TEST(LibyuvYCbCr, planes_from_2vuy)
{
    for (const Size& size : sizes) {
        Bytes frame = noise(4, size.pixels() * 2);
        Planes ours(5, size.pixels(), size.pixels() / 2), theirs(8, size.pixels(), size.pixels() / 2);
        tntvt_2vuy_planar(ours.y.data(), ours.cb.data(), ours.cr.data(), 0, 0, 0, frame.data(),
                          static_cast<unsigned int>(size.pixels()));
        libyuv::UYVYToI422(frame.data(), line(size) * 2, theirs.y.data(), line(size), theirs.cb.data(), line(size) / 2,
                           theirs.cr.data(), line(size) / 2, line(size), lines(size));
        EXPECT_TRUE(same(ours.y, theirs.y)) << size.width;
        EXPECT_TRUE(same(ours.cb, theirs.cb)) << size.width;
        EXPECT_TRUE(same(ours.cr, theirs.cr)) << size.width;
    }
}

TEST(LibyuvYCbCr, i420_and_yv12_to_2vuy)
{
    for (const Size& size : sizes)
        for (const int slack : {0, 12}) {
            const unsigned int width = static_cast<unsigned int>(size.width);
            const unsigned int height = static_cast<unsigned int>(size.height);
            const int stride = line(size) * 2 + slack;
            Bytes frame = noise(11, size.pixels() * 3 / 2);
            const uint8_t* first = frame.data() + size.pixels();
            const uint8_t* second = first + size.pixels() / 4;
            Bytes ours = noise(12, static_cast<size_t>(stride * lines(size))), theirs = ours;
            tntvt_i420_2vuy(ours.data(), frame.data(), width, height, static_cast<unsigned int>(stride));
            libyuv::I420ToUYVY(frame.data(), line(size), first, line(size) / 2, second, line(size) / 2, theirs.data(),
                               stride, line(size), lines(size));
            EXPECT_TRUE(same(ours, theirs)) << size.width;
            tntvt_yv12_2vuy(ours.data(), frame.data(), width, height, static_cast<unsigned int>(stride), 0);
            libyuv::I420ToUYVY(frame.data(), line(size), second, line(size) / 2, first, line(size) / 2, theirs.data(),
                               stride, line(size), lines(size));
            EXPECT_TRUE(same(ours, theirs)) << size.width;
        }
}

// libyuv averages the chroma of two lines where ours drops that of the odd ones, so it gets the even lines alone.
TEST(LibyuvYCbCr, i420_and_yv12_from_2vuy)
{
    for (const Size& size : sizes) {
        const unsigned int width = static_cast<unsigned int>(size.width);
        const unsigned int height = static_cast<unsigned int>(size.height);
        Bytes frame = noise(13, size.pixels() * 2);
        Bytes i420(size.pixels() * 3 / 2), yv12 = i420, theirs_i420 = i420, theirs_yv12 = i420;
        tntvt_2vuy_i420(i420.data(), frame.data(), width, height, 0);
        tntvt_2vuy_yv12(yv12.data(), frame.data(), width, height, width * 2);
        for (Bytes* theirs : {&theirs_i420, &theirs_yv12}) {
            uint8_t* first = theirs->data() + size.pixels();
            uint8_t* second = first + size.pixels() / 4;
            if (theirs == &theirs_yv12) std::swap(first, second);
            Bytes even_luma(size.pixels() / 2);
            libyuv::UYVYToI422(frame.data(), line(size) * 4, even_luma.data(), line(size), first, line(size) / 2,
                               second, line(size) / 2, line(size), lines(size) / 2);
            libyuv::UYVYToY(frame.data(), line(size) * 2, theirs->data(), line(size), line(size), lines(size));
        }
        EXPECT_TRUE(same(i420, theirs_i420)) << size.width;
        EXPECT_TRUE(same(yv12, theirs_yv12)) << size.width;
    }
}

TEST(LibyuvYCbCr, YUY2_to_420_planes)
{
    for (const Size& size : sizes)
        for (const int slack : {0, 8}) {
            const int pitch = line(size) + slack;
            const size_t luma = static_cast<size_t>(pitch * lines(size));
            Bytes frame = noise(14, luma * 2);
            Planes ours(15, luma, luma / 4);
            Planes theirs = ours;
            YUY2toYV12(frame.data(), ours.y.data(), ours.cb.data(), ours.cr.data(), line(size), lines(size), pitch,
                       pitch);
            libyuv::YUY2ToI420(frame.data(), pitch * 2, theirs.y.data(), pitch, theirs.cb.data(), pitch / 2,
                               theirs.cr.data(), pitch / 2, line(size), lines(size));
            EXPECT_TRUE(same(ours.y, theirs.y)) << size.width;
            EXPECT_TRUE(same(ours.cb, theirs.cb)) << size.width;
            EXPECT_TRUE(same(ours.cr, theirs.cr)) << size.width;
        }
}

TEST(LibyuvYCbCr, luma_alone)
{
    for (const Size& size : sizes) {
        const int stride = line(size) * 2 + 4, pitch = line(size) + 6;
        Bytes frame = noise(18, static_cast<size_t>(stride * lines(size)));
        Bytes ours = noise(19, static_cast<size_t>(pitch * lines(size))), theirs = ours;
        // It does one line more than its `height` says.
        tntvt_2yuv_to_alphay(ours.data(), pitch, frame.data(), stride, size.width, size.height - 1);
        libyuv::UYVYToY(frame.data(), stride, theirs.data(), pitch, line(size), lines(size));
        EXPECT_TRUE(same(ours, theirs)) << size.width;
    }
}

}  // namespace
}  // namespace tintvert::test

#endif
