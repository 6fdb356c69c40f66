// What a call makes of one frame on both sides, `dst` equal to `src`. No routine promises anything for buffers that
// overlap in another way.
#pragma once

#include "arguments.h"

namespace tintvert::catalog {

struct Routine;

enum class InPlace {
    unspecified,  // the interface does not say
    fails,        // some or all bytes differ from the result with two frames
    as_apart,     // the same bytes as with two frames
    in_its_way,   // something else than with two frames, which the interface describes
};

struct InPlaceUse {
    InPlace kind = InPlace::unspecified;
    bool (*allowed)(const Arguments&) = nullptr;  // whether the numbers of a call allow it; null: never
};

InPlace in_place(const Routine& routine);

// Whether a call of one frame with these numbers is as_apart or in_its_way.
bool promised_in_place(const Routine& routine, const Arguments& call);

// When the numbers of a call allow one frame.
namespace in_place_rules {

using Rule = bool(const Arguments&);
Rule always, equal_strides, equal_strides_of_groups, words, words_shrink, words_to_plane, luma_shrinks, luma_grows,
    tight_16_to_32, tight_24_to_32, field_modes;

}  // namespace in_place_rules
}  // namespace tintvert::catalog
