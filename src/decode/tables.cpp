#include "decode/tables.h"

#include "frame/first_use.h"

namespace tintvert {

static_assert(luma_term(0) == -298 && luma_term(16) == 0 && luma_term(235) == 4079 && luma_term(255) == 4452);
static_assert(cb_terms(0).first == 802 && cb_terms(0).second == -4131);
static_assert(cb_terms(127).first == 6 && cb_terms(127).second == -32);
static_assert(cb_terms(128).first == 0 && cb_terms(128).second == 0);
static_assert(cb_terms(129).first == -6 && cb_terms(129).second == 32);
static_assert(cb_terms(255).first == -796 && cb_terms(255).second == 4099);
static_assert(cr_terms(0).first == -3268 && cr_terms(0).second == 1664);
static_assert(cr_terms(127).first == -25 && cr_terms(127).second == 13);
static_assert(cr_terms(128).first == 0 && cr_terms(128).second == 0);
static_assert(cr_terms(129).first == 25 && cr_terms(129).second == -13);
static_assert(cr_terms(255).first == 3243 && cr_terms(255).second == -1651);
static_assert((luma_term(255) + cb_terms(255).second) >> 4 == 534);

int16_t Atab[256];
ChromaTerms BEtab[256];
ChromaTerms DCtab[256];
uint8_t clip10to8[1024];
uint8_t fTablesSet;

TNTVT_FIRST_USE void need_tables()
{
    if ((fTablesSet & 1) != 0) return;
    for (int k = 0; k < 256; ++k) {
        Atab[k] = luma_term(k);
        BEtab[k] = cb_terms(k);
        DCtab[k] = cr_terms(k);
    }
    for (int k = 0; k < 1024; ++k) clip10to8[k] = clipped(k);
    entries_before_flag();
    fTablesSet = 1;
}

}  // namespace tintvert
