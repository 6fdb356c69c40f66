// The 10-bit terms by rows of 32 codes, for processors that look up 32 words in 32 entries at once.
//
// A term grows by the same amount from code to code, so it is the term at the head of its row, the whole steps
// from there, and one more where the two fractions fill another whole. Codes below the middle count up to zero,
// one more than down; 64 and 512, where that changes, begin rows.
#pragma once

#include <array>

#include "decode/planes.h"
#include "decode/v210_tables.h"

namespace tintvert {

struct RowTable {
    alignas(64) std::array<int16_t, 32> head, step;
    alignas(64) std::array<uint16_t, 32> head_room, step_fraction;  // in parts of 64000

    constexpr int term(int code) const
    {
        const auto row = static_cast<size_t>(code) / 32, place = static_cast<size_t>(code) % 32;
        return head[row] + step[place] + (step_fraction[place] > head_room[row] ? 1 : 0);
    }
};

constexpr int whole_below(double value)
{
    const int whole = truncate(value);
    return whole > value ? whole - 1 : whole;
}

// Weights have three decimals, so that their 64th parts are whole numbers of parts of 64000.
constexpr uint16_t parts(double fraction) { return static_cast<uint16_t>(truncate(fraction * 64000 + 0.5)); }

constexpr RowTable row_table(int middle, double weight)
{
    RowTable result{};
    for (int i = 0; i < 32; ++i) {
        const double head = (i * 32 - middle) * weight * 0.015625, step = i * weight * 0.015625;
        const int whole_head = whole_below(head), whole_step = whole_below(step), below_zero = head < 0 ? 1 : 0;
        const auto at = static_cast<size_t>(i);
        result.head[at] = static_cast<int16_t>(whole_head + below_zero);
        result.head_room[at] = static_cast<uint16_t>(63999 - parts(head - whole_head) + below_zero);
        result.step[at] = static_cast<int16_t>(whole_step);
        result.step_fraction[at] = parts(step - whole_step);
    }
    return result;
}

// The shares of green fall from code to code. They are kept as what they take away.
struct RowTables {
    RowTable luma, green_of_cb, blue, red, green_of_cr;
};
inline constexpr RowTables row_terms = {row_table(64, 1192.328), row_table(512, 401.164), row_table(512, 2065.644),
                                        row_table(512, 1634.332), row_table(512, 832.48)};

constexpr bool rows_hold_the_terms()
{
    for (int code = 0; code < 1024; ++code) {
        const V210Terms b = v210_cb_terms(code), d = v210_cr_terms(code);
        if (row_terms.luma.term(code) != v210_luma_term(code) || row_terms.green_of_cb.term(code) != -b.first ||
            row_terms.blue.term(code) != b.second || row_terms.red.term(code) != d.first ||
            row_terms.green_of_cr.term(code) != -d.second)
            return false;
    }
    return true;
}
static_assert(rows_hold_the_terms());

#if defined(__x86_64__)

// Of 32 codes. A lookup takes the low five bits of each word, whatever is above them.
struct Rows {
    __m512i row, place;
};

template <class Entry>
TNTVT_AVX512 inline __m512i look_up(const std::array<Entry, 32>& entries, __m512i at)
{
    return _mm512_permutexvar_epi16(at, _mm512_loadu_si512(&entries));
}

TNTVT_AVX512 inline __m512i terms(const RowTable& table, const Rows& at)
{
    const __m512i steps = _mm512_add_epi16(look_up(table.head, at.row), look_up(table.step, at.place));
    const __mmask32 one_more =
        _mm512_cmpgt_epu16_mask(look_up(table.step_fraction, at.place), look_up(table.head_room, at.row));
    return _mm512_mask_sub_epi16(steps, one_more, steps, _mm512_set1_epi16(-1));
}

#endif

}  // namespace tintvert
