#include "ycbcr8/scale_tables.h"

#include "frame/first_use.h"

namespace tintvert {

static_assert(luma_down(0) == 16 && luma_down(16) == 29 && luma_down(17) == 30 && luma_down(128) == 125);
static_assert(luma_down(235) == 217 && luma_down(240) == 222 && luma_down(241) == 222 && luma_down(255) == 235);
static_assert(chroma_down(0) == 16 && chroma_down(16) == 30 && chroma_down(17) == 30 && chroma_down(128) == 128);
static_assert(chroma_down(235) == 223 && chroma_down(240) == 227 && chroma_down(241) == 228);
static_assert(chroma_down(255) == 240 && chroma_down_255 == 241);
static_assert(luma_up(16) == 0 && luma_up(17) == 1 && luma_up(128) == 130 && luma_up(235) == 255 &&
              luma_up(236) == 255);
static_assert(chroma_up(16) == 0 && chroma_up(17) == 1 && chroma_up(128) == 127 && chroma_up(235) == 249);
static_assert(chroma_up(236) == 250 && chroma_up(240) == 255 && chroma_up(241) == 255);

uint8_t gsbScaleLumaDown[256];
uint8_t gsbScaleChromaDown[256];
uint8_t gsbScaleLumaUp[256];
uint8_t gsbScaleChromaUp[256];
uint8_t gsfScaleTablesReady;

// QUIRK (keeps_241_for_chroma_255): the last entry is the rule's 240 first and 241 just after. Whoever
// fills the tables a second time, after another's flag, takes that entry through 240 once more, and a
// caller that looks in that moment sees it.
TNTVT_FIRST_USE void need_scale_tables()
{
    if ((gsfScaleTablesReady & 1) != 0) return;
    for (int i = 0; i < 256; ++i) {
        gsbScaleLumaDown[i] = luma_down(i);
        gsbScaleChromaDown[i] = chroma_down(i);
        gsbScaleLumaUp[i] = luma_up(i);
        gsbScaleChromaUp[i] = chroma_up(i);
    }
    gsbScaleChromaDown[255] = chroma_down_255;
    entries_before_flag();
    gsfScaleTablesReady = 1;
}

}  // namespace tintvert
