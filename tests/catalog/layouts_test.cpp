// What the samples of a layout imply, and the lines that are longer than their samples.
#include "layouts.h"

#include <gtest/gtest.h>

namespace tintvert::test {
namespace {

using namespace catalog;

void expect(const Layout& layout, int bits, Chroma chroma, bool alpha, Planes planes)
{
    EXPECT_EQ(layout.bits(), bits) << layout.name;
    EXPECT_EQ(layout.chroma(), chroma) << layout.name;
    EXPECT_EQ(layout.alpha(), alpha) << layout.name;
    EXPECT_EQ(layout.planes(), planes) << layout.name;
}

TEST(Layouts, samples_imply_depth_chroma_alpha_and_planes)
{
    expect(layout::_2vuy, 8, Chroma::c422, false, Planes::packed);
    expect(layout::yuv444, 8, Chroma::c444, false, Planes::packed);
    expect(layout::planar422, 8, Chroma::c422, false, Planes::yuv422);
    expect(layout::field_planes, 8, Chroma::c422, false, Planes::fields422);
    expect(layout::yv12, 8, Chroma::c420, false, Planes::yuv420);
    expect(layout::alpha, 8, Chroma::none, false, Planes::packed);
    expect(layout::alphay, 8, Chroma::none, false, Planes::packed);
    expect(layout::v210, 10, Chroma::c422, false, Planes::packed);
    expect(layout::rgb32, 8, Chroma::c444, true, Planes::packed);
    expect(layout::BGRA, 8, Chroma::c444, false, Planes::packed);
    expect(layout::rgb16, 5, Chroma::c444, false, Planes::packed);
    expect(layout::rgb48_12, 12, Chroma::c444, false, Planes::packed);
    expect(layout::argb64be, 16, Chroma::c444, true, Planes::packed);
    expect(layout::rgb12, 12, Chroma::c444, false, Planes::packed);
    expect(layout::rle8, 8, Chroma::c444, false, Planes::packed);
}

TEST(Layouts, lines_take_the_bytes_of_their_samples_or_of_their_rule)
{
    EXPECT_EQ(layout::yuv444.line_bytes(5), 15);
    EXPECT_EQ(layout::pgroups.line_bytes(1920), 4800);
    EXPECT_EQ(layout::rgb12.line_bytes(9), 44);
    EXPECT_EQ(layout::v210.line_bytes(100), 384);
    EXPECT_EQ(layout::v210.tight_line_bytes(100), 272);
    EXPECT_EQ(layout::rgb32.tight_line_bytes(100), 400);
    EXPECT_EQ(layout::rle8.line_bytes(100), 0);
}

TEST(Layouts, several_names_of_one_arrangement_lead_to_one)
{
    EXPECT_EQ(&layout::rgba.bytes(), &layout::rgb32);
    EXPECT_EQ(&layout::rgb32.bytes(), &layout::rgb32);
    for (const Layout& layout : layouts()) EXPECT_EQ(layout.bytes().same_bytes_as, nullptr) << layout.name;
}

}  // namespace
}  // namespace tintvert::test
