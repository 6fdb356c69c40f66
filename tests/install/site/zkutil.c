/* A site's own libzkutil, which announces every call. */
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <zkutil.h>

unsigned int CPUFeatureFlags(void)
{
    puts("site CPUFeatureFlags");
    return 0;
}

void CopyMemoryFast(void* destination, const void* source, unsigned int bytes)
{
    printf("site CopyMemoryFast %u\n", bytes);
    memmove(destination, source, bytes);
}

void* ZKAlloc(unsigned int bytes)
{
    printf("site ZKAlloc %u\n", bytes);
    return malloc(bytes);
}

void ZKFree(void* block)
{
    puts("site ZKFree");
    free(block);
}

void ErrFmtOut(unsigned int grade, unsigned int a, unsigned int b, const char* format, ...)
{
    (void)grade, (void)a, (void)b;
    va_list arguments;
    va_start(arguments, format);
    vprintf(format, arguments);
    va_end(arguments);
}

int fccIsYCbCr8(unsigned int fourcc) { return fourcc == 0x79757632; }
int fccIsYCbCr10(unsigned int fourcc) { return fourcc == 0x30313276; }
int fccIsDPX(unsigned int fourcc) { return fourcc == 0x6B303152; }
int fccIsRGB(unsigned int fourcc) { return fourcc == 0x41524742; }
