#include "rle_scan.h"

#include "extents.h"

namespace tintvert::catalog {
namespace {

struct RunsOut {
    size_t wanted;
};

class Stream {
public:
    explicit Stream(std::span<const uint8_t> bytes) : bytes_(bytes) {}

    uint8_t read()
    {
        if (at_ >= bytes_.size()) throw RunsOut{at_};
        read_to_ = static_cast<int64_t>(at_) + 1;
        return bytes_[at_++];
    }
    void step_over(int count) { at_ += static_cast<size_t>(count); }
    Range touched() const { return {0, read_to_}; }

private:
    std::span<const uint8_t> bytes_;
    size_t at_ = 0;
    int64_t read_to_ = 0;
};

// Where pixels go and which entries they take, for palettes and pixels of `size` bytes.
class Pixels {
public:
    explicit Pixels(int64_t size) : size_(size) {}

    void stand_at(int64_t offset) { position_ = offset; }
    void put(uint8_t index, int64_t count)
    {
        written_ = extents::join(written_, {position_, position_ + count * size_});
        palette_ = extents::join(palette_, {index * size_, index * size_ + 3});
        position_ += count * size_;
    }
    Range written() const { return written_; }
    Range palette() const { return palette_; }

private:
    int64_t size_, position_ = 0;
    Range written_, palette_;
};

template <class Decode>
RleScan scan(std::span<const uint8_t> bytes, int64_t pixel_bytes, Decode decode)
{
    Stream stream(bytes);
    Pixels pixels(pixel_bytes);
    bool ends = true;
    size_t wanted = 0;
    try {
        decode(stream, pixels);
    } catch (const RunsOut& out) {
        ends = false;
        wanted = out.wanted;
    }
    return {stream.touched(), pixels.written(), pixels.palette(), ends, wanted};
}

}  // namespace

RleScan scan_rle8_rgb32(std::span<const uint8_t> bytes, int64_t dst_stride, int64_t height)
{
    return scan(bytes, 4, [&](Stream& stream, Pixels& pixels) {
        const int64_t lines = height < 0 ? -height : height;
        for (int64_t line = 0; line < lines; ++line) {
            pixels.stand_at((height - 1 - line) * dst_stride);
            for (bool in_line = true; in_line;) {
                const uint8_t c = stream.read(), v = stream.read();
                if (c == 0 && (v == 1 || v == 2)) return;
                in_line = c != 0 || v != 0;
                if (c != 0) pixels.put(v, c);
                if (c == 0 && v > 2) {
                    for (int i = 0; i < v; ++i) pixels.put(stream.read(), 1);
                    stream.step_over(v % 2);
                }
            }
        }
    });
}

RleScan scan_rle8_rgb24(std::span<const uint8_t> bytes, int64_t height)
{
    return scan(bytes, 3, [&](Stream& stream, Pixels& pixels) {
        for (int64_t lines_done = 0;;) {
            const uint8_t c = stream.read(), v = stream.read();
            if (c == 0 && (v == 1 || v == 2)) return;
            if (c == 0 && v == 0 && ++lines_done == height) return;
            if (c == 0 && v > 2) stream.step_over(v % 2);
            if (c != 0) pixels.put(v, c + 1);
        }
    });
}

}  // namespace tintvert::catalog
