// The samples of the layouts, as data: which sample each bit of a frame belongs to. Made from the records.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "layouts.h"

namespace tintvert::catalog {

struct Sample {
    std::string_view component;  // Y, Cb, Cr, R, G, B or A; empty for bits that hold none
    int pixel;                   // of the unit
    int word, low, bits;         // bits `low` to `low` + `bits` - 1 of a word of the unit
    bool is_signed;
};

// One unit after the other.
struct Plane {
    int across, down;  // pixels of a unit
    int field;         // 1 for lines 0, 2, 4 ... of the frame, 2 for lines 1, 3, 5 ..., 0 for all
    int word_bytes, unit_bytes;
    bool big_endian;
    std::vector<Sample> fields;  // every bit of the unit; in each word from the highest down

    int64_t line_of_frame(int64_t line) const { return field == 0 ? line * down : line * 2 + field - 1; }
};

struct SampleForm {
    std::string_view layout, form;
    std::vector<Plane> planes;
};

std::span<const SampleForm> sample_forms();

// The usual form if none is named; null if there is none. Coded layouts have no samples.
const SampleForm* find_samples(std::string_view layout, std::string_view form = {});

// One sample of the unit that begins at `unit`. A store keeps the other bits.
int64_t load_sample(const Plane& plane, const Sample& sample, const uint8_t* unit);
void store_sample(const Plane& plane, const Sample& sample, uint8_t* unit, int64_t value);

// A plane inside of a frame.
struct PlacedPlane {
    const Plane* plane;
    int64_t offset, stride, lines;
    int64_t line_bytes;  // without slack

    // Whether the line has room for it: with an odd width only half of the last pair is there.
    bool holds(const Sample& sample, int64_t unit, int64_t width) const
    {
        const int64_t end = unit * plane->unit_bytes + (sample.word + 1) * plane->word_bytes;
        return unit * plane->across + sample.pixel < width && end <= line_bytes;
    }
};

// `stride` is of the packed frame; planes have no slack. Subsampled planes need even sizes.
std::vector<PlacedPlane> place_planes(const SampleForm& form, int64_t width, int64_t height, int64_t stride);

// visit(placed, sample, x, y, offset of the unit) for every sample of a frame, plane by plane.
template <class Visit>
void each_sample(std::span<const PlacedPlane> planes, int64_t width, Visit visit)
{
    for (const PlacedPlane& placed : planes) {
        const Plane& plane = *placed.plane;
        for (int64_t line = 0; line < placed.lines; ++line) {
            const int64_t y = plane.line_of_frame(line);
            for (int64_t unit = 0; unit * plane.across < width; ++unit) {
                const int64_t offset = placed.offset + line * placed.stride + unit * plane.unit_bytes;
                for (const Sample& sample : plane.fields)
                    if (!sample.component.empty() && placed.holds(sample, unit, width))
                        visit(placed, sample, unit * plane.across + sample.pixel, y, offset);
            }
        }
    }
}

}  // namespace tintvert::catalog
