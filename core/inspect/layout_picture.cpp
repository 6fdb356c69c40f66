#include "inspect/layout_picture.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

namespace tintvert::core {
namespace {

using catalog::Plane;
using catalog::Sample;

std::string centred(const std::string& text, size_t width)
{
    const size_t space = width - std::min(width, text.size());
    return std::string((space + 1) / 2, ' ') + text + std::string(space / 2, ' ');
}

std::string unit_text(const Plane& plane)
{
    if (plane.across == 1) return "one pixel";
    if (plane.across == 2) return "one pair";
    return fmt::format("one group of {} pixels, {} bytes", plane.across, plane.unit_bytes);
}

// Words of which each field is inside one, or that are bytes in a row: the two ways to draw.
bool is_whole_words(const Plane& plane)
{
    return std::ranges::all_of(plane.fields, [&](const Sample& s) { return s.bits == plane.word_bytes * 8; });
}

bool crosses_bytes(const Plane& plane) { return plane.word_bytes == 3 || plane.word_bytes == 5; }

// b0   b1   b2   b3
// Cb   Y0   Cr   Y1      one pair
std::string whole_words(const Plane& plane, const Painter& paint)
{
    std::string head, row;
    for (const Sample& field : plane.fields) {
        std::string bytes;
        for (int byte = 0; byte < plane.word_bytes; ++byte)
            bytes += fmt::format("{}b{}", byte == 0 ? "" : " ", field.word * plane.word_bytes + byte);
        const std::string label = label_of(plane, field);
        const size_t width = std::max<size_t>(bytes.size() + 3, 5);
        head += fmt::format("{:{}}", bytes, width);
        row += paint(field.component, label) + std::string(width - label.size(), ' ');
    }
    head.erase(head.find_last_not_of(' ') + 1);
    return fmt::format(" {}\n {}   {}{}\n", head, row, unit_text(plane),
                       plane.big_endian && plane.word_bytes > 1 ? ", high byte first" : "");
}

std::string range_text(int high, int low, size_t width)
{
    if (high == low) return fmt::format("{}", high);
    if (high == low + 1) return fmt::format("{} {}", high, low);
    const std::string dots(width - 2 - fmt::formatted_size("{}{}", high, low), '.');
    return fmt::format("{} {} {}", high, dots, low);
}

size_t range_width(const Sample& field)
{
    return field.bits <= 2 ? 5 : std::max<size_t>(8, static_cast<size_t>(field.bits) + 1);
}

//          31 30  29 ..... 20  19 ..... 10   9 ...... 0
// word 0     -        Cr0          Y0           Cb0
std::string words_of_fields(const Plane& plane, const Painter& paint)
{
    const int words = plane.unit_bytes / plane.word_bytes;
    std::string text;
    for (int word = -1; word < words; ++word) {
        std::string line = words == 1 ? " " : word < 0 ? "         " : fmt::format(" word {} ", word);
        for (const Sample& field : plane.fields) {
            const size_t width = range_width(field);
            if (word < 0 && field.word == 0) {
                line += "  " + centred(range_text(field.low + field.bits - 1, field.low, width), width);
            } else if (word >= 0 && field.word == word) {
                const std::string label = label_of(plane, field), whole = centred(label, width);
                const size_t at = whole.find(label);
                line += "  " + whole.substr(0, at) + paint(field.component, label) + whole.substr(at + label.size());
            }
        }
        if (word + 1 == words) line += "   " + unit_text(plane) + (plane.big_endian ? ", high byte first" : "");
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

struct Cell {
    std::string plain, painted;
};

// What is in one byte, from its highest bit down: "Y0 5..0 | Cb0 9..8".
Cell byte_cell(const Plane& plane, int byte, const Painter& paint)
{
    const int word = byte / plane.word_bytes, in_word = byte % plane.word_bytes;
    const int low = 8 * (plane.big_endian ? plane.word_bytes - 1 - in_word : in_word);
    Cell cell;
    for (const Sample& field : plane.fields) {
        const int from = std::max(field.low, low), to = std::min(field.low + field.bits, low + 8);
        if (field.word != word || from >= to) continue;
        const int high_bit = to - 1 - field.low, low_bit = from - field.low;
        std::string text = label_of(plane, field);
        if (!field.component.empty())
            text += high_bit == low_bit ? fmt::format(" {}", low_bit) : fmt::format(" {}..{}", high_bit, low_bit);
        const char* const bar = cell.plain.empty() ? "" : " | ";
        cell.plain += bar + text;
        cell.painted += bar + paint(field.component, text);
    }
    return cell;
}

std::string bytes_of_fields(const Plane& plane, const Painter& paint)
{
    const int row = std::max(plane.word_bytes, std::min(plane.unit_bytes, plane.word_bytes == 2 ? 4 : 0));
    std::vector<Cell> cells;
    std::vector<size_t> widths(static_cast<size_t>(row));
    for (int byte = 0; byte < plane.unit_bytes; ++byte) {
        cells.push_back(byte_cell(plane, byte, paint));
        size_t& width = widths[static_cast<size_t>(byte % row)];
        width = std::max(width, cells.back().plain.size());
    }
    std::string text;
    for (int byte = 0; byte < plane.unit_bytes; ++byte) {
        const Cell& cell = cells[static_cast<size_t>(byte)];
        const bool last = byte % row == row - 1 || byte + 1 == plane.unit_bytes;
        const size_t gap = last ? 0 : widths[static_cast<size_t>(byte % row)] - cell.plain.size();
        text += fmt::format(" b{:<3}{}{}{}", byte, cell.painted, std::string(gap, ' '), last ? "" : "  ");
        if (byte + 1 == plane.unit_bytes) text += "   " + unit_text(plane);
        if (last) text += "\n";
    }
    return text;
}

std::string packed(const Plane& plane, const Painter& paint)
{
    if (crosses_bytes(plane)) return bytes_of_fields(plane, paint);
    return is_whole_words(plane) ? whole_words(plane, paint) : words_of_fields(plane, paint);
}

std::string planes_picture(const catalog::SampleForm& form, const Painter& paint)
{
    std::string text;
    for (const Plane& plane : form.planes) {
        const Sample& sample = plane.fields.front();
        const std::string unit = plane.across * plane.down == 1
                                     ? std::string("each pixel")
                                     : fmt::format("{} x {} pixels", plane.across, plane.down);
        text += fmt::format(" plane {}   {}{}   a byte for {}{}\n", &plane - form.planes.data(),
                            paint(sample.component, sample.component), sample.component.size() == 1 ? " " : "", unit,
                            plane.field == 1   ? ", frame lines 0, 2, 4 ..."
                            : plane.field == 2 ? ", frame lines 1, 3, 5 ..."
                                               : "");
    }
    return text;
}

std::string note_text(std::string_view note)
{
    std::string text;
    while (!note.empty()) {
        const std::string_view line = note.substr(0, note.find('\n'));
        note.remove_prefix(std::min(line.size() + 1, note.size()));
        text += fmt::format(" {}\n", line);
    }
    return text;
}

template <class Draw>
std::string each_form(const catalog::Layout& layout, Draw draw)
{
    std::string text;
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        if (form.layout != layout.name) continue;
        const std::string drawn = draw(form);
        if (!form.form.empty() && !drawn.empty()) text += fmt::format(" {}:{}\n", form.layout, form.form);
        text += drawn;
    }
    return text;
}

}  // namespace

std::string label_of(const Plane& plane, const Sample& sample)
{
    if (sample.component.empty()) return "-";
    const auto same = std::ranges::count(plane.fields, sample.component, &Sample::component);
    return same == 1 ? std::string(sample.component) : fmt::format("{}{}", sample.component, sample.pixel);
}

std::string picture_of(const catalog::Layout& layout, const Painter& paint)
{
    return each_form(layout,
                     [&](const catalog::SampleForm& form) {
                         return form.planes.size() > 1 ? planes_picture(form, paint)
                                                       : packed(form.planes.front(), paint);
                     }) +
           note_text(layout.note);
}

std::string bits_picture_of(const catalog::Layout& layout, const Painter& paint)
{
    return each_form(layout, [&](const catalog::SampleForm& form) {
        const Plane& plane = form.planes.front();
        return plane.word_bytes == 1 || crosses_bytes(plane) ? std::string() : bytes_of_fields(plane, paint);
    });
}

}  // namespace tintvert::core
