#include "frame/state.h"

namespace tintvert {

uint8_t use_MMX = 0;
uint8_t a = 255;

}  // namespace tintvert
