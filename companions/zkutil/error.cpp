#include <cstdarg>
#include <cstdio>

#include "zkutil.h"

void ErrFmtOut(unsigned int, unsigned int, unsigned int, const char* format, ...)
{
    std::va_list values;
    va_start(values, format);
    std::vfprintf(stderr, format, values);
    va_end(values);
}
