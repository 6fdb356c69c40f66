// What comes of one frame on both sides, `dst` equal to `src`. No routine promises anything for buffers that
// overlap in another way.
#pragma once

#include "catalog.h"

namespace tintvert::catalog {

enum class InPlace {
    untold,      // the interface says nothing about it
    fails,       // comes out otherwise than apart, in all bytes or in a few
    as_apart,    // the same bytes as with two frames
    in_its_way,  // something else than with two frames, which the interface tells
};

InPlace in_place(const Routine& routine);

// Whether a call of one frame with these numbers is as_apart or in_its_way.
bool promised_in_place(const Routine& routine, const Arguments& call);

}  // namespace tintvert::catalog
