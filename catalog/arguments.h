// The arguments of a call by name, and the bytes that a call reads and writes in its buffers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string_view>
#include <type_traits>

namespace tintvert::catalog {

enum class Arg {
#define TNTVT_ARGUMENT(name, kind, meaning) name,
#include "arguments.def"
#undef TNTVT_ARGUMENT
};

inline constexpr size_t argument_count = 0
#define TNTVT_ARGUMENT(name, kind, meaning) +1
#include "arguments.def"
#undef TNTVT_ARGUMENT
    ;

struct Argument {
    enum Kind { number, buffer };
    std::string_view name;
    Kind kind;
    std::string_view meaning;
};

const Argument& describe(Arg argument);

// The values of one call, by argument name; a buffer's value is its address.
class Arguments {
public:
    int64_t& operator[](Arg argument) { return values_[static_cast<size_t>(argument)]; }
    int64_t operator[](Arg argument) const { return values_[static_cast<size_t>(argument)]; }

    template <class Type>
    Type as(Arg argument) const
    {
        if constexpr (std::is_pointer_v<Type>)
            return reinterpret_cast<Type>((*this)[argument]);
        else
            return static_cast<Type>((*this)[argument]);
    }

private:
    std::array<int64_t, argument_count> values_{};
};

// Bytes [begin, end) from the pointer that was passed; begin may be negative. Empty if nothing is touched.
struct Range {
    int64_t begin = 0, end = 0;
    bool empty() const { return begin >= end; }
    bool operator==(const Range&) const = default;
};

// From the lowest to the highest byte of both.
inline Range join(Range one, Range other)
{
    if (one.empty()) return other;
    if (other.empty()) return one;
    return {one.begin < other.begin ? one.begin : other.begin, one.end > other.end ? one.end : other.end};
}

// From the lowest to the highest byte that a call reads and writes in one buffer.
struct Touch {
    Arg buffer{};
    Range read, written;
    Range touched = join(read, written);
};

// One entry for each buffer that the call touches. Unused entries are not initialized.
class Extents {
public:
    Extents() : count_(0) {}

    void add(Arg buffer, Range read, Range written) { new (&touches_[count_++]) Touch{buffer, read, written}; }
    const Touch* begin() const { return touches_; }
    const Touch* end() const { return touches_ + count_; }

private:
    union {
        Touch touches_[8];
    };
    size_t count_;
};

}  // namespace tintvert::catalog
