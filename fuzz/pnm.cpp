// A file as PPM and PAM pictures, one after the other.
#include "io/pictures/pnm.h"

#include "failure.h"
#include "memory_file.h"
#include "must.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace tintvert::core;
    try {
        InputFile file(tintvert::fuzz::memory_file({data, size}));
        while (const auto picture = read_pnm(file))
            tintvert::fuzz::must(picture->bytes.size() == static_cast<size_t>(picture->stride() * picture->height),
                                 "a picture has all its lines");
    } catch (const Failure&) {
    }
    return 0;
}
