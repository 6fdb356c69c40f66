// A plain call of a routine over a picture of a given size: tight lines, full size, every option at its
// commonest value. The caller supplies the buffers.
#pragma once

#include "catalog.h"

namespace tintvert::catalog {

Arguments plain_call(const Routine& routine, int64_t width, int64_t height);

}  // namespace tintvert::catalog
