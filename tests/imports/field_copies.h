// What the tests of the copies of the field routines share: two frames with names, and the calls as text.
#pragma once

#include <tintvert/field.h>

#include <array>
#include <string>

#include "recorder.h"

namespace tintvert::test {

inline std::string copy(const std::string& to, const std::string& from, int bytes)
{
    return "CopyMemoryFast(" + to + ", " + from + ", " + std::to_string(bytes) + ')';
}

inline std::string report(const std::string& text)
{
    return "ErrFmtOut(3221225472, 0, 0, ERROR(Tintvert): %s\n\r, " + text + ')';
}

class FieldCopies : public Imports {
protected:
    std::array<unsigned char, 128> dst{}, src{};

    void SetUp() override
    {
        Imports::SetUp();
        calls().name("dst", dst.data(), dst.size());
        calls().name("src", src.data(), src.size());
        for (size_t i = 0; i < dst.size(); ++i)
            dst[i] = static_cast<unsigned char>(i + 1), src[i] = static_cast<unsigned char>(i + 129);
    }

    // What a call of mode `mode` on 5 lines of 10 bytes asks for, with source lines of 7.
    Log change(unsigned int mode, bool from_src, unsigned int height = 5, unsigned int src_stride = 7)
    {
        SetUp();
        EXPECT_EQ(tntvt_change_field_rgb(dst.data(), mode, 2, height, 10, from_src ? src.data() : nullptr, src_stride),
                  0);
        return calls().log;
    }
};

}  // namespace tintvert::test
