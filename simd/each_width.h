// Includes the file TNTVT_STEPS for registers of 256 bits (AVX2) and again for 512 bits (AVX-512).
//
// What a step does is often the same at both widths, but a function has one target, templates too: they cannot be
// instantiated for either. So such steps are written once, on the types and functions of vec.h, in
// `namespace tintvert::TNTVT_WIDTH` with the attribute TNTVT_TARGET.
#include "simd/vec.h"

#if defined(__x86_64__)

#define TNTVT_WIDTH width_256
#define TNTVT_TARGET TNTVT_AVX2
#include TNTVT_STEPS
#undef TNTVT_WIDTH
#undef TNTVT_TARGET

#define TNTVT_WIDTH width_512
#define TNTVT_TARGET TNTVT_AVX512
#include TNTVT_STEPS
#undef TNTVT_WIDTH
#undef TNTVT_TARGET

#endif
#undef TNTVT_STEPS
