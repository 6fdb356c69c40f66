#include "inspect/guess.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "failure.h"
#include "inspect/name_hints.h"
#include "io/clip_options.h"
#include "layouts.h"

namespace tintvert::core {
namespace {

using catalog::PlacedPlane;
using catalog::Plane;
using catalog::Sample;
using catalog::SampleForm;

constexpr Size usual_sizes[] = {{176, 144},   {320, 240},   {352, 288},   {640, 360},   {640, 480},
                                {720, 480},   {720, 486},   {720, 576},   {800, 600},   {1024, 768},
                                {1280, 720},  {1280, 1080}, {1440, 1080}, {1920, 1080}, {2048, 1080},
                                {2048, 1556}, {2560, 1440}, {3840, 2160}, {4096, 2160}, {7680, 4320}};

constexpr int64_t most_read = int64_t{1} << 26;

// Whether a word is the layout's own name or one of those that it has elsewhere.
bool is_named(const catalog::Layout& layout, const NameHints& hints)
{
    for (const std::string_view names : {layout.name, layout.ffmpeg, layout.gstreamer, layout.fourcc}) {
        std::string lower(names);
        std::ranges::transform(lower, lower.begin(),
                               [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        for (const std::string& word : hints.words) {
            const size_t at = lower.find(word);
            if (at == std::string::npos || word.size() < 3) continue;
            const bool begins = at == 0 || lower[at - 1] == ' ',
                       ends = at + word.size() == lower.size() || lower[at + word.size()] == ' ';
            if (begins && ends) return true;
        }
    }
    return false;
}

bool same_fields(const Plane& one, const Plane& other)
{
    return one.across == other.across && one.down == other.down && one.field == other.field &&
           one.word_bytes == other.word_bytes && one.big_endian == other.big_endian &&
           std::ranges::equal(one.fields, other.fields, [](const Sample& a, const Sample& b) {
               return a.component == b.component && a.pixel == b.pixel && a.bits == b.bits && a.low == b.low &&
                      a.is_signed == b.is_signed;
           });
}

bool same_bytes(const SampleForm& one, const SampleForm& other)
{
    return std::ranges::equal(one.planes, other.planes, same_fields);
}

// Sums over a few thousand samples of the first frame.
struct Roughness {
    double near = 0, far = 0;
    int64_t unused = 0, cleared = 0;
};

void add_plane(Roughness* sums, const PlacedPlane& placed, int64_t width, const std::vector<uint8_t>& head)
{
    const Plane& plane = *placed.plane;
    const int64_t units = width / plane.across;
    if (units < 2 || placed.lines < 2) return;
    const int64_t line_step = std::max<int64_t>(placed.lines / 12, 1), unit_step = std::max<int64_t>(units / 48, 1);
    const auto unit_at = [&](int64_t line, int64_t unit) {
        return head.data() + placed.offset + line * placed.stride + unit * plane.unit_bytes;
    };
    for (int64_t line = 0; line + 1 < placed.lines; line += line_step) {
        for (int64_t unit = 0; unit + 1 < units; unit += unit_step) {
            for (const Sample& field : plane.fields) {
                const auto value = [&](int64_t y, int64_t x) {
                    return catalog::load_sample(plane, field, unit_at(y, x));
                };
                const int64_t own = value(line, unit);
                if (field.component.empty()) {
                    ++(own == 0 ? sums->cleared : sums->unused);
                    continue;
                }
                const double scale = 1.0 / static_cast<double>(int64_t{1} << field.bits);
                const int64_t far = value((line * 7 + placed.lines / 2) % placed.lines, (unit * 5 + units / 3) % units);
                sums->near +=
                    scale *
                    static_cast<double>(std::abs(own - value(line + 1, unit)) + std::abs(own - value(line, unit + 1))) /
                    2;
                sums->far += scale * static_cast<double>(std::abs(own - far));
            }
        }
    }
}

void look_at(Guess* guess, const std::vector<uint8_t>& head)
{
    const catalog::Layout& layout = *catalog::find_layout(guess->form->layout);
    if (catalog::frame_bytes(layout, guess->width, guess->height) > static_cast<int64_t>(head.size())) return;
    Roughness sums;
    for (const PlacedPlane& placed :
         catalog::place_planes(*guess->form, guess->width, guess->height, layout.line_bytes(guess->width)))
        add_plane(&sums, placed, guess->width, head);
    if (sums.far > 0) guess->alike = std::clamp(1 - sums.near / sums.far, 0.0, 1.0);
    const int64_t empty = sums.unused + sums.cleared;
    if (empty > 0) guess->unused = static_cast<double>(sums.unused) / static_cast<double>(empty);
}

bool divides(const SampleForm& form, const Size& size)
{
    if (form.planes.size() == 1) return true;
    const bool quarter = std::ranges::any_of(form.planes, [](const Plane& p) { return p.down > 1 || p.field != 0; });
    return size.width % 2 == 0 && (!quarter || size.height % 2 == 0);
}

// Sizes between square and 2.4:1 that make one frame of the whole file.
std::vector<Size> sizes_of_length(const SampleForm& form, int64_t length)
{
    std::vector<Size> sizes;
    const catalog::Layout& layout = *catalog::find_layout(form.layout);
    if (form.planes.size() > 1) return sizes;
    for (int64_t width = 16; width <= 8192; width += 2) {
        const int64_t line = layout.line_bytes(width), height = length / line;
        if (length % line == 0 && height > 1 && width >= height && width * 10 <= height * 24)
            sizes.push_back({width, height});
    }
    return sizes;
}

}  // namespace

// A single frame is likelier than several small ones.
double Guess::score() const
{
    const double hints = (name_tells_size ? 30 : 0) + (name_tells_layout ? 30 : 0) + (is_usual_size ? 10 : 0);
    return hints + 30 * alike - 40 * unused - 2 * static_cast<double>(std::min<int64_t>(frames - 1, 5));
}

std::vector<Guess> guesses(InputFile& file)
{
    if (file.size() < 0)
        throw Failure(Exit::usage,
                      "guess needs the length of a file, and that of {} is not known: save it as a file first",
                      file.name());
    if (file.size() == 0) return {};
    const NameHints hints = hints_of(std::filesystem::path(file.name()).filename().string());
    std::vector<uint8_t> head(static_cast<size_t>(std::min(file.size(), most_read)));
    file.read(head.data(), head.size());
    std::vector<Guess> found;
    std::vector<const SampleForm*> seen;
    for (const SampleForm& form : catalog::sample_forms()) {
        if (std::ranges::any_of(seen, [&](const SampleForm* other) { return same_bytes(*other, form); })) continue;
        seen.push_back(&form);
        std::vector<std::string_view> same;
        bool named = false;
        for (const SampleForm& other : catalog::sample_forms()) {
            if (!same_bytes(form, other)) continue;
            if (&other != &form) same.push_back(other.layout);
            named = named || is_named(*catalog::find_layout(other.layout), hints);
        }
        std::vector<Size> sizes = hints.sizes;
        sizes.insert(sizes.end(), std::begin(usual_sizes), std::end(usual_sizes));
        if (hints.sizes.empty())
            for (const Size& size : sizes_of_length(form, file.size())) sizes.push_back(size);
        for (auto size = sizes.begin(); size != sizes.end(); ++size) {
            const int64_t bytes = catalog::frame_bytes(*catalog::find_layout(form.layout), size->width, size->height);
            if (std::find(sizes.begin(), size, *size) != size || !divides(form, *size) || bytes == 0 ||
                file.size() % bytes != 0)
                continue;
            Guess guess{&form,
                        same,
                        size->width,
                        size->height,
                        file.size() / bytes,
                        named,
                        std::ranges::find(hints.sizes, *size) != hints.sizes.end(),
                        std::ranges::find(usual_sizes, *size) != std::end(usual_sizes),
                        0,
                        0};
            look_at(&guess, head);
            found.push_back(guess);
        }
    }
    std::ranges::stable_sort(found, std::ranges::greater(), &Guess::score);
    return found;
}

}  // namespace tintvert::core
