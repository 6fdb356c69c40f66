#include "decode/v210_tables.h"

#include <tintvert/decode.h>

#include "frame/first_use.h"

namespace tintvert {

static_assert(v210_luma_term(0) == -1192 && v210_luma_term(64) == 0);
// QUIRK (keeps_254_for_white): 16319 is 254 after the shift by 6.
static_assert(v210_luma_term(940) == 16319 && v210_luma_term(1023) == 17866);
static_assert(v210_cb_terms(0).first == 3209 && v210_cb_terms(0).second == -16525);
static_assert(v210_cb_terms(512).first == 0 && v210_cb_terms(512).second == 0);
static_assert(v210_cb_terms(1023).first == -3203 && v210_cb_terms(1023).second == 16492);
static_assert(v210_cr_terms(0).first == -13074 && v210_cr_terms(0).second == 6659);
static_assert(v210_cr_terms(512).first == 0 && v210_cr_terms(512).second == 0);
static_assert(v210_cr_terms(1023).first == 13049 && v210_cr_terms(1023).second == -6646);
static_assert((v210_luma_term(1023) + v210_cb_terms(1023).second) >> 6 == 536);
static_assert((v210_luma_term(0) + v210_cb_terms(0).second) >> 6 == -277);

int16_t v210_Atab[1024];
V210Terms v210_BEtab[1024];
V210Terms v210_DCtab[1024];
uint8_t v210_clip10to8[2048];
int32_t _v210_to_rgb_initted;

}  // namespace tintvert

using namespace tintvert;

// QUIRK (keeps_filling_on_every_call): the guard is set here and tested by the decoder alone.
TNTVT_FIRST_USE void init_v210_to_rgb(void)
{
    for (int code = 0; code < 1024; ++code) {
        v210_Atab[code] = v210_luma_term(code);
        v210_BEtab[code] = v210_cb_terms(code);
        v210_DCtab[code] = v210_cr_terms(code);
    }
    for (int entry = 0; entry < 2048; ++entry) v210_clip10to8[entry] = v210_clipped(entry - v210_clip_zero);
    entries_before_flag();
    _v210_to_rgb_initted = 1;
}
