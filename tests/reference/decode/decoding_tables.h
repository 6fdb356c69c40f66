// The decoders' tables as bytes in memory, entry after entry.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "reference/decode/v210_decoders.h"

namespace tintvert::reference {

struct Table {
    std::string name;
    std::vector<uint8_t> bytes;
};

inline void put_entry(Table& table, int value)
{
    table.bytes.push_back(static_cast<uint8_t>(value & 255));
    table.bytes.push_back(static_cast<uint8_t>(value >> 8 & 255));
}

inline std::vector<Table> tables_of_2vuy()
{
    Table a{"Atab", {}}, be{"BEtab", {}}, dc{"DCtab", {}}, clip{"clip10to8", {}};
    for (int k = 0; k < 256; ++k) {
        put_entry(a, luma_term(k));
        put_entry(be, green_term_of_cb(k));
        put_entry(be, blue_term(k));
        put_entry(dc, red_term(k));
        put_entry(dc, green_term_of_cr(k));
    }
    for (int k = 0; k < 1024; ++k) clip.bytes.push_back(static_cast<uint8_t>(k > 255 ? 255 : k));
    return {a, be, dc, clip};
}

inline std::vector<Table> tables_of_v210()
{
    Table a{"v210_Atab", {}}, be{"v210_BEtab", {}}, dc{"v210_DCtab", {}}, clip{"v210_clip10to8", {}};
    for (int k = 0; k < 1024; ++k) {
        put_entry(a, luma_term_10(k));
        put_entry(be, green_term_of_cb_10(k));
        put_entry(be, blue_term_10(k));
        put_entry(dc, red_term_10(k));
        put_entry(dc, green_term_of_cr_10(k));
    }
    for (int v = -1024; v < 1024; ++v) clip.bytes.push_back(static_cast<uint8_t>(v < 0 ? 0 : v > 255 ? 255 : v));
    return {a, be, dc, clip};
}

}  // namespace tintvert::reference
