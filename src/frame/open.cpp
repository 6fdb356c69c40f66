#include <tintvert/frame.h>

#include "frame/first_use.h"
#include "frame/imports.h"
#include "frame/state.h"

using namespace tintvert;

// `use_MMX` doubles as the once-only guard, so a processor without the bit is asked again on every open.
TNTVT_FIRST_USE int tnvtt_open(unsigned int, unsigned int, unsigned int, unsigned int)
{
    if (use_MMX == 0) use_MMX = (CPUFeatureFlags() & 0x20) != 0 ? 1 : 0;
    return 0;
}
