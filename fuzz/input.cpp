#include "input.h"

namespace tintvert::fuzz {
namespace {

constexpr int64_t edges[32] = {
    0x7FFFFFFF, -0x7FFFFFFF, -0x80000000LL, 0x80000000LL, 0xFFFFFFFFLL, 0x100000000LL, 0x7FFFFFFE,    0x40000000,
    0x3FFFFFFF, 0x20000000,  0x10000000,    0x15555555,   0x2AAAAAAB,   0x55555556,    0x10000,       0xFFFF,
    0x8000,     0x7FFF,      -0x8000,       INT64_MAX,    INT64_MIN,    INT64_MAX - 1, 0x1000000,     0x2000000,
    0x4000000,  0x8000000,   0x79757632,    0x30313276,   0x30313272,   0x41524742,    0x800000000LL, 1LL << 47};

}  // namespace

int64_t any_number(Input& input)
{
    const int64_t kind = input.byte();
    if (kind < 160) return kind;
    if (kind < 192) return 159 - kind;
    if (kind < 208) return input.little_endian(2);
    if (kind < 216) return static_cast<int16_t>(input.little_endian(2));
    if (kind < 248) return edges[kind - 216];
    if (kind < 252) return static_cast<int32_t>(input.little_endian(4));
    return input.little_endian(8);
}

}  // namespace tintvert::fuzz
