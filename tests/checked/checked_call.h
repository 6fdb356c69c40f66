// Any checked call by the catalogue's description of its routine, through the C++ header or the C one.
#pragma once

#include <tintvert/checked.h>
#include <tintvert_checked.h>

#include <string>
#include <vector>

#include "catalog.h"
#include "support/random_call.h"

namespace tintvert::test {

struct Given {
    catalog::Arg argument;
    checked::Buffer buffer;
};

struct Answer {
    checked::Status error;
    int64_t value = 0;
};

// Buffers that are not given are null.
Answer call_checked(const catalog::Routine& routine, const catalog::Arguments& numbers, const std::vector<Given>& given,
                    const checked::Options& options = {});
Answer call_checked_in_c(const catalog::Routine& routine, const catalog::Arguments& numbers,
                         const std::vector<Given>& given, const checked::Options& options = {});

std::string text_of(const catalog::Routine& routine, const catalog::Arguments& numbers);

// The memory of one call: for each buffer that it touches, its bytes and a margin around them.
class Scene {
public:
    Scene(Random& random, const catalog::Routine& routine, const catalog::Arguments& numbers);

    struct Place {
        catalog::Arg argument;
        catalog::Range touched;  // from the lowest to the highest byte; may be empty
        catalog::Range written;
        Memory memory;

        // Memory of just these bytes about the pointer.
        checked::Buffer buffer(catalog::Range range) { return exactly(memory.pointer(), range); }
        static checked::Buffer exactly(uint8_t* pointer, catalog::Range range);
    };

    std::vector<Place>& places() { return places_; }
    std::vector<Given> given();
    void point(catalog::Arguments& numbers);  // the addresses of the buffers
    bool same_bytes(const Scene& other) const;

private:
    std::vector<Place> places_;
};

}  // namespace tintvert::test
