// The alpha and luma plane routines touch exactly the bytes that their rules tell.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

TEST(Extents, alpha)
{
    Random random(40);
    for (const char* name :
         {"tntvt_alphay_to_2yuv", "tntvt_2yuv_to_alphay", "tntvt_2yuv_strip_chroma", "tntvt_alpha_to_rgba",
          "tntvt_rgba_to_alpha", "tntvt_rgba_setalpha", "tntvt_rgba_addalpha"}) {
        const bool unsigned_width = name == std::string_view{"tntvt_rgba_addalpha"};
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(unsigned_width ? 0 : -3, 70);
            call[Arg::height] = random.between(-2, 24);
            call[Arg::dstStride] = random.between(-400, 400);
            call[Arg::srcStride] = random.between(-400, 400);
            call[Arg::alpha] = random.between(0, 255);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

}  // namespace
}  // namespace tintvert::test
