#include "recorder.h"

#include <kmrutil.h>
#include <ycbcr.h>
#include <zkutil.h>

#include <algorithm>
#include <cstdarg>
#include <cstdlib>
#include <cstring>

namespace tintvert::test {

Recorder& calls()
{
    static Recorder recorder;
    return recorder;
}

void Recorder::name(const std::string& what, const void* begin, size_t bytes)
{
    places_.push_back({what, reinterpret_cast<uintptr_t>(begin), bytes});
}

long Recorder::count(const std::string& function) const
{
    return std::ranges::count_if(log, [&](const std::string& line) { return line.starts_with(function + '('); });
}

// The latest name wins: freed memory may come back under a new one.
std::string Recorder::text(const void* pointer) const
{
    if (pointer == nullptr) return "null";
    for (auto place = places_.rbegin(); place != places_.rend(); ++place) {
        const size_t offset = reinterpret_cast<uintptr_t>(pointer) - place->begin;
        if (offset == 0) return place->name;
        if (offset <= place->bytes) return place->name + '+' + std::to_string(offset);
    }
    return "elsewhere";
}

void Recorder::finish(const std::string& function, const std::string& arguments)
{
    log.push_back(function + '(' + arguments + ')');
    const auto planned = throws_.find(function);
    if (planned != throws_.end() && --planned->second == 0) throw Thrown{};
}

void* Recorder::new_block(unsigned int bytes)
{
    if (allocate) return allocate(bytes);
    blocks_.push_back(std::malloc(bytes));
    name("block" + std::to_string(blocks_.size()), blocks_.back(), bytes);
    return blocks_.back();
}

// Only what new_block took from the heap goes back there.
void Recorder::release(void* block)
{
    const auto own = std::ranges::find(blocks_, block);
    if (own == blocks_.end()) return;
    std::free(block);
    *own = nullptr;
}

namespace {

int belongs_to(const char* predicate, unsigned int fourcc)
{
    calls().note(predicate, fourcc);
    return calls().fourcc_class == predicate ? 1 : 0;
}

// None of the decoders writes anything.
int decode(const char* decoder, const void* dst, const void* src, int width, int height, int dstStride, int srcStride,
           unsigned int matrix, unsigned int flags)
{
    calls().note(decoder, dst, src, width, height, dstStride, srcStride, matrix, flags);
    return calls().decoded;
}

}  // namespace
}  // namespace tintvert::test

using tintvert::test::calls;

unsigned int CPUFeatureFlags(void)
{
    calls().note("CPUFeatureFlags");
    return calls().features;
}

void CopyMemoryFast(void* destination, const void* source, unsigned int bytes)
{
    calls().note("CopyMemoryFast", static_cast<const void*>(destination), source, bytes);
    if (calls().copies) std::memmove(destination, source, bytes);
}

void* ZKAlloc(unsigned int bytes)
{
    calls().note("ZKAlloc", bytes);
    return calls().new_block(bytes);
}

void ZKFree(void* block)
{
    calls().note("ZKFree", static_cast<const void*>(block));
    calls().release(block);
}

// The library gives one value after the format, and it is a text.
void ErrFmtOut(unsigned int grade, unsigned int second, unsigned int third, const char* format, ...)
{
    std::va_list values;
    va_start(values, format);
    const char* const words = va_arg(values, const char*);
    va_end(values);
    calls().note("ErrFmtOut", grade, second, third, format, words);
}

int fccIsYCbCr8(unsigned int fourcc) { return tintvert::test::belongs_to("fccIsYCbCr8", fourcc); }
int fccIsYCbCr10(unsigned int fourcc) { return tintvert::test::belongs_to("fccIsYCbCr10", fourcc); }
int fccIsDPX(unsigned int fourcc) { return tintvert::test::belongs_to("fccIsDPX", fourcc); }
int fccIsRGB(unsigned int fourcc) { return tintvert::test::belongs_to("fccIsRGB", fourcc); }

unsigned int GetMatrixBySize(int width, int height, int zero)
{
    calls().note("GetMatrixBySize", width, height, zero);
    return calls().matrix;
}

#define TNTVT_DECODER(name)                                                                                  \
    int name(void* dst, void* src, int width, int height, int dstStride, int srcStride, unsigned int matrix, \
             unsigned int flags)                                                                             \
    {                                                                                                        \
        return tintvert::test::decode(#name, dst, src, width, height, dstStride, srcStride, matrix, flags);  \
    }

TNTVT_DECODER(cycbcr_uyvy_to_rgb32)
TNTVT_DECODER(cycbcr_012v_to_rgb32)
TNTVT_DECODER(cycbcr_i420_to_rgb32)
TNTVT_DECODER(cycbcr_yv12_to_rgb32)
