#include "zkutil.h"

unsigned int CPUFeatureFlags(void) { return __builtin_cpu_supports("mmx") ? 0x20u : 0u; }
