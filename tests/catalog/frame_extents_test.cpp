#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

TEST(Extents, scratch_pair)
{
    catalog::Arguments call;
    call[Arg::size] = 100;
    expect_exact_extents(*catalog::find("malloc_own_cache_lines"), call);
    expect_exact_extents(*catalog::find("free_own_cache_lines"), {});
}

}  // namespace
}  // namespace tintvert::test
