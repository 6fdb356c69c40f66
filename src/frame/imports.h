// The routines that the companion libraries supply. They stay undefined in libtintvert and are bound by
// the dynamic linker, so that a program or a site may put its own in their place. An exception that one
// of them throws passes through, so a caller of theirs is never `noexcept`.
#pragma once

#include <kmrutil.h>
#include <ycbcr.h>
#include <zkutil.h>
