#include "samples.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>

namespace tintvert::catalog {
namespace {

int take_number(std::string_view* text, int otherwise)
{
    int number = otherwise;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), number);
    if (error == std::errc()) text->remove_prefix(static_cast<size_t>(end - text->data()));
    return number;
}

// COMPONENT[PIXEL][:BITS[s]], without its place in its word.
Sample sample_of(std::string_view text)
{
    const size_t letters = std::min(text.find_first_of("0123456789:"), text.size());
    Sample sample{text.substr(0, letters), 0, 0, 0, 8, false};
    if (sample.component == "-") sample.component = {};
    text.remove_prefix(letters);
    sample.pixel = take_number(&text, 0);
    if (text.starts_with(':')) {
        text.remove_prefix(1);
        sample.bits = take_number(&text, 8);
    }
    sample.is_signed = text == "s";
    return sample;
}

Plane plane_of(const Layout& layout, const PlanePicture& row)
{
    Plane plane{row.across, row.down, row.field, row.word_bytes, 0, row.big_endian, {}};
    int word = 0, free = row.word_bytes * 8;
    for (std::string_view rest = row.fields; !rest.empty();) {
        const std::string_view text = rest.substr(0, rest.find(' '));
        rest.remove_prefix(std::min(text.size() + 1, rest.size()));
        if (text.empty()) continue;
        Sample sample = sample_of(text);
        free -= sample.bits;
        if (free < 0) throw std::logic_error(std::string(layout.name) + ": a field crosses a word");
        sample.word = word;
        sample.low = free;
        plane.fields.push_back(sample);
        if (free > 0) continue;
        ++word;
        free = row.word_bytes * 8;
    }
    if (free != row.word_bytes * 8) throw std::logic_error(std::string(layout.name) + ": a word is not filled");
    plane.unit_bytes = word * row.word_bytes;
    return plane;
}

std::vector<SampleForm> forms_of_layouts()
{
    std::vector<SampleForm> forms;
    for (const Layout& layout : layouts())
        for (const PlanePicture& picture : layout.samples) {
            if (forms.empty() || forms.back().layout != layout.name || forms.back().form != picture.form)
                forms.push_back({layout.name, picture.form, {}});
            forms.back().planes.push_back(plane_of(layout, picture));
        }
    return forms;
}

int64_t byte_place(const Plane& plane, int byte) { return 8 * (plane.big_endian ? plane.word_bytes - 1 - byte : byte); }

uint64_t load_word(const Plane& plane, const uint8_t* at)
{
    uint64_t word = 0;
    for (int byte = 0; byte < plane.word_bytes; ++byte)
        word |= static_cast<uint64_t>(at[byte]) << byte_place(plane, byte);
    return word;
}

}  // namespace

std::span<const SampleForm> sample_forms()
{
    static const std::vector<SampleForm> forms = forms_of_layouts();
    return forms;
}

const SampleForm* find_samples(std::string_view layout, std::string_view form)
{
    for (const SampleForm& candidate : sample_forms())
        if (candidate.layout == layout && (form.empty() || candidate.form == form)) return &candidate;
    return nullptr;
}

int64_t load_sample(const Plane& plane, const Sample& sample, const uint8_t* unit)
{
    const uint64_t mask = (uint64_t{1} << sample.bits) - 1;
    const auto value =
        static_cast<int64_t>(load_word(plane, unit + sample.word * plane.word_bytes) >> sample.low & mask);
    return sample.is_signed && value >> (sample.bits - 1) != 0 ? value - (int64_t{1} << sample.bits) : value;
}

void store_sample(const Plane& plane, const Sample& sample, uint8_t* unit, int64_t value)
{
    uint8_t* const at = unit + sample.word * plane.word_bytes;
    const uint64_t mask = (uint64_t{1} << sample.bits) - 1;
    const uint64_t word = (load_word(plane, at) & ~(mask << sample.low)) | (static_cast<uint64_t>(value) & mask)
                                                                               << sample.low;
    for (int byte = 0; byte < plane.word_bytes; ++byte)
        at[byte] = static_cast<uint8_t>(word >> byte_place(plane, byte));
}

std::vector<PlacedPlane> place_planes(const SampleForm& form, int64_t width, int64_t height, int64_t stride)
{
    std::vector<PlacedPlane> placed;
    const bool packed = form.planes.size() == 1;
    int64_t offset = 0;
    for (const Plane& plane : form.planes) {
        const int64_t line_bytes = packed ? std::min(find_layout(form.layout)->line_bytes(width), stride)
                                          : width / plane.across * plane.unit_bytes;
        const int64_t lines = height / plane.down / (plane.field == 0 ? 1 : 2);
        placed.push_back({&plane, offset, packed ? stride : line_bytes, lines, line_bytes});
        offset += placed.back().stride * lines;
    }
    return placed;
}

}  // namespace tintvert::catalog
