#include "reference/ycbcr8/scale.h"

#include <tintvert.h>

#include "meeting.h"

namespace tintvert::test {
namespace {

TEST(ScaleReference, buffers_of_any_length)
{
    Random random{1};
    for (unsigned int bytes = 0; bytes <= 400; ++bytes) {
        for (const unsigned int up : {0u, 1u, 0x100u, 0x80000000u}) {
            Arena arena{random, 64, 512};
            ASSERT_TRUE(
                meet(tntvt_2vuy_scale, reference::tntvt_2vuy_scale, arena, At{random.between(0, 7)}, bytes, up));
        }
    }
}

TEST(ScaleExhaustive, every_sample_in_every_place)
{
    for (const unsigned int up : {0u, 1u}) {
        for (int value = 0; value < 256; ++value) {
            const auto sample = static_cast<uint8_t>(value);
            uint8_t group[4] = {sample, sample, sample, sample};
            tntvt_2vuy_scale(group, 4, up);
            const int chroma = up == 0 ? reference::chroma_down(value) : reference::luma_up(value);
            const int luma = up == 0 ? reference::luma_down(value) : reference::chroma_up(value);
            ASSERT_EQ(group[0], chroma) << value;
            ASSERT_EQ(group[1], luma) << value;
            ASSERT_EQ(group[2], chroma) << value;
            ASSERT_EQ(group[3], luma) << value;
        }
    }
}

// The tables run the other way about going up, and a reference that has them straight is caught.
TEST(ScaleReference, a_wrong_reference_is_rejected)
{
    Random random{2};
    Arena arena{random, 64, 512};
    const auto straight = [](unsigned char* buffer, unsigned int bytes, unsigned int) {
        for (unsigned int i = 0; i < bytes; ++i) {
            const int scaled = i % 2 == 0 ? reference::chroma_up(buffer[i]) : reference::luma_up(buffer[i]);
            buffer[i] = static_cast<unsigned char>(scaled);
        }
    };
    EXPECT_FALSE(meet(tntvt_2vuy_scale, +straight, arena, At{0}, 400u, 1u));
}

}  // namespace
}  // namespace tintvert::test
