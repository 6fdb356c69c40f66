// What another thread can see while the decoders' tables are filled: no entry takes another value than its own, and the
// flag is the last store.
#include <gtest/gtest.h>
#include <tintvert/decode.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <ostream>
#include <vector>

#include "decode/tables.h"
#include "decode/v210_tables.h"
#include "support/store_watch.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Decoder = void (*)(void*, long, void*, long, long, long, long);

struct Variable {
    void* begin;
    size_t bytes;
};

// Four tables with their flag, and what fills them.
struct Case {
    const char* name;
    std::vector<Variable> tables;
    Variable flag;
    std::function<void()> fill;
};

std::ostream& operator<<(std::ostream& out, const Case& one) { return out << one.name; }

template <class Value>
Variable whole(Value& value)
{
    return {&value, sizeof value};
}

Case of_shared(const char* name, Decoder decoder)
{
    return {name, {whole(Atab), whole(BEtab), whole(DCtab), whole(clip10to8)}, whole(fTablesSet), [decoder] {
                decoder(nullptr, 0, nullptr, 0, 0, 0, 1);
            }};
}

Case of_v210(const char* name, void (*fill)())
{
    return {name,
            {whole(v210_Atab), whole(v210_BEtab), whole(v210_DCtab), whole(v210_clip10to8)},
            whole(_v210_to_rgb_initted),
            fill};
}

const Case cases[] = {
    of_shared("tntvt_yuv422_rgb24", tntvt_yuv422_rgb24),
    of_shared("tntvt_yuv422_rgb16", tntvt_yuv422_rgb16),
    of_shared("tntvt_v210_rgb24", tntvt_v210_rgb24),
    of_shared("tntvt_v210_rgb16", tntvt_v210_rgb16),
    of_v210("_v210_to_rgb", [] { _v210_to_rgb(nullptr, nullptr, 0, 0, 0, 1); }),
    of_v210("init_v210_to_rgb", init_v210_to_rgb),
};

class DecodeBuildOrder : public testing::TestWithParam<Case> {
protected:
    void SetUp() override
    {
        if (!can_watch_stores()) GTEST_SKIP() << "no stores to be watched here";
        std::memset(flag.begin, 0, flag.bytes);
        GetParam().fill();
        for (const auto& [begin, bytes] : tables) {
            const auto* const first = static_cast<const uint8_t*>(begin);
            filled.emplace_back(first, first + bytes);
        }
    }
    void TearDown() override
    {
        if (can_watch_stores()) GetParam().fill();
    }

    bool are_filled() const
    {
        for (size_t i = 0; i < tables.size(); ++i)
            if (std::memcmp(tables[i].begin, filled[i].data(), filled[i].size()) != 0) return false;
        return true;
    }
    bool flag_is_up() const { return *static_cast<const uint8_t*>(flag.begin) != 0; }

    // Calls `look` after each store of a call that finds the flag down.
    void fill_again(const std::function<void()>& look)
    {
        std::memset(flag.begin, 0, flag.bytes);
        std::vector<Watched> watched{{flag.begin, flag.bytes}};
        for (const auto& [begin, bytes] : tables) watched.push_back({begin, bytes});
        watch_stores(watched, GetParam().fill, look);
    }

    const std::vector<Variable>& tables = GetParam().tables;
    const Variable& flag = GetParam().flag;
    std::vector<Bytes> filled;
};

TEST_P(DecodeBuildOrder, full_tables_stay_full_from_fault_to_fault)
{
    size_t stores = 0, changed = 0;
    fill_again([&] { ++stores, changed += !are_filled(); });
    EXPECT_GT(stores, 32u);
    EXPECT_EQ(changed, 0u);
}

TEST_P(DecodeBuildOrder, last_fault_is_that_of_the_flag)
{
    for (const auto& [begin, bytes] : tables) std::memset(begin, 0, bytes);
    size_t stores = 0, with_flag = 0;
    fill_again([&] { ++stores, with_flag += flag_is_up(); });
    EXPECT_GT(stores, 32u);
    EXPECT_EQ(with_flag, 1u);
    EXPECT_TRUE(flag_is_up() && are_filled());
}

INSTANTIATE_TEST_SUITE_P(Callers, DecodeBuildOrder, testing::ValuesIn(cases));

}  // namespace
}  // namespace tintvert::test
