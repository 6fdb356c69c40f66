// Checked calls: the routines of libtintvert over buffers of known size. A call does exactly what the routine
// does, or it touches nothing and says which buffer is too small, how many bytes are needed and where, or what
// was refused and why.
//
//     namespace checked = tintvert::checked;
//     std::vector<unsigned char> rgb(1920 * 1080 * 4), yuv(1920 * 1080 * 2);
//     const auto done = checked::tntvt_rgb32_2vuy(yuv, 1920 * 2, rgb, 1920 * 4, 1920, 1080);
//     if (!done.ok()) std::puts(done.message().c_str());
//
// Every routine of <tintvert.h> is in checked_routines.h under its own name, with a Buffer for each pointer.
// Nothing is allocated but by message() and by the routines themselves. An exception of a companion library
// passes through, as it does through the routine.
#ifndef TINTVERT_CHECKED_H
#define TINTVERT_CHECKED_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <ranges>
#include <string>
#include <type_traits>

namespace tintvert::checked {

template <class Memory>
concept NumbersInMemory = std::ranges::contiguous_range<Memory> && std::ranges::sized_range<Memory> &&
    std::is_arithmetic_v<std::remove_reference_t<std::ranges::range_reference_t<Memory>>>;

// Memory, and the pointer into it that the routine is given: its first byte, unless at() says otherwise.
// Routines that write before their pointer need some of the memory there:
//
//     checked::Buffer frame(memory, bytes);
//     checked::tntvt_rgba24_rgb32_invert(src.at(srcStride), ..., frame.at(dstStride), ...);
class Buffer {
public:
    Buffer() = default;  // null
    Buffer(void* begin, size_t size) : pointer_(begin), size_(size) {}
    Buffer(void* pointer, size_t size, ptrdiff_t front) : pointer_(pointer), size_(size), front_(front) {}

    // A vector, an array or a span of numbers.
    template <NumbersInMemory Memory>
    Buffer(Memory&& memory)
        : Buffer(std::ranges::data(memory), std::ranges::size(memory) * sizeof *std::ranges::data(memory))
    {}

    // The same memory with the pointer `offset` bytes further on.
    Buffer at(ptrdiff_t offset) const
    {
        const uintptr_t moved = reinterpret_cast<uintptr_t>(pointer_) + static_cast<uintptr_t>(offset);
        return {reinterpret_cast<void*>(moved), size_, front_ + offset};
    }

    void* pointer() const { return pointer_; }
    size_t size() const { return size_; }
    ptrdiff_t front() const { return front_; }  // bytes before the pointer

private:
    void* pointer_ = nullptr;
    size_t size_ = 0;
    ptrdiff_t front_ = 0;
};

// Bytes [from, to), counted from the pointer. `from` is negative before it.
struct Range {
    int64_t from = 0, to = 0;
    bool empty() const { return from >= to; }
    bool operator==(const Range&) const = default;
};

// From the lowest to the highest byte that a call reads and writes in one buffer.
struct Touch {
    const char* buffer = "";  // by the name of the argument
    Range read, written;
};

class Extents {
public:
    void add(const Touch& touch) { touches_[count_++] = touch; }
    const Touch* begin() const { return touches_.data(); }
    const Touch* end() const { return touches_.data() + count_; }

private:
    std::array<Touch, 8> touches_{};
    size_t count_ = 0;
};

struct Options {
    bool allow_overlap = false;  // buffers may overlap in ways that the routine does not promise
    Extents* query = nullptr;    // report the extents here and call nothing; null buffers are then taken as two
};

enum class Code {
    ok,
    null,       // a buffer that would be touched is null
    too_small,  // a buffer has not the bytes that would be touched
    overlap,    // two buffers overlap in a way that the routine does not promise
    refused,    // the numbers are not for this routine
    failed,     // a companion library threw; in C alone
};

enum class Refusal {
    none,
    too_large,          // more than memory holds
    divides_by_zero,    //
    never_returns,      //
    walks_2_32_lines,   // or more, by a counter that goes below 0
    wraps,              // a product at the width of the interface
    reads_as_unsigned,  // a negative number as one near 2^32
    overruns_scratch,   // a copy longer than the routine's own scratch line
};

struct Status {
    Code code = Code::ok;
    Refusal refusal = Refusal::none;
    const char* routine = "";
    const char* buffer = "";  // null, too_small, overlap: the one that is written
    const char* other = "";   // overlap: the other buffer
    const char* why = "";     // refused: a sentence
    uint64_t has = 0;         // bytes of the buffer
    int64_t front = 0;        // how many of them are before the pointer
    uint64_t needs = 0;       // bytes from `where.from`, or the pointer if that is lower, to `where.to`
    Range where;              // what would be touched; overlap: what both would touch, from the pointer of `buffer`

    bool ok() const { return code == Code::ok; }

    // "dst: 4147200 bytes, needs 4149760 (bytes 0-4149759)"
    std::string message() const;

    // The same into `text`, cut to `size` bytes with the 0 at its end. Answers the length of the whole.
    size_t message(char* text, size_t size) const;
};

template <class Value>
struct [[nodiscard]] Result : Status {
    Value value{};  // what the routine returned
};
template <>
struct [[nodiscard]] Result<void> : Status {};

}  // namespace tintvert::checked

#include <tintvert/checked_routines.h>

#endif
