// What the library can be built for. On x86-64 there are SIMD versions; elsewhere the scalar code does all of the work.
#pragma once

#if !defined(__GNUC__)
#error "libtintvert needs g++ or clang++: it uses GNU attributes and built-in functions."
#elif __BYTE_ORDER__ != __ORDER_LITTLE_ENDIAN__
#error "libtintvert needs a little-endian processor: the words of its layouts are loaded as they are in memory."
#endif
