#include "paths/path.h"

#include <fmt/format.h>

#include <algorithm>
#include <deque>
#include <optional>

#include "failure.h"
#include "names.h"

namespace tintvert::core::paths {
namespace {

using catalog::Chroma;
using catalog::ChromaLoss;
using catalog::Layout;
using catalog::Matrix;
using catalog::Routine;

// The weights of losses: each is worse than all milder ones together.
enum Loss : unsigned {
    range = 1,
    alpha = 2,
    low_bits = 4,
    matrix = 8,
    chroma_down = 16,
    chroma_across = 32,
    wrapped = 64,
    other_matrix = 128,
    colour = 256
};

// What a picture still has at a place on its way.
struct Picture {
    int bits;
    Chroma chroma;
    bool alpha, alpha_0 = false;
    bool operator==(const Picture&) const = default;
};

struct Place {
    const Layout* bytes;
    Picture picture;
    unsigned lost = 0;
    Path path;

    bool is_same(const Place& other) const
    {
        return bytes == other.bytes && picture == other.picture && lost == other.lost;
    }
};

bool needs_another_matrix(Size size) { return size.width > 1024 || size.height > 576; }

std::string_view in_words(ChromaLoss loss)
{
    switch (loss) {
        case ChromaLoss::filtered:
            return " (averaged over neighbouring pixels)";
        case ChromaLoss::dropped:
            return " (dropped)";
        case ChromaLoss::averaged:
            return " (averaged over two lines)";
        default:
            return "";
    }
}

// A step of the catalogue, with the layouts and the routine of its record.
struct Known {
    const Routine* routine;
    const catalog::Step* step;

    const Layout& from() const { return step->from == nullptr ? *routine->from : *step->from; }
    const Layout& to() const { return step->to == nullptr ? *routine->to : *step->to; }
};

// In the order in which they are preferred.
std::vector<Known> known_steps()
{
    std::vector<Known> known;
    for (const Routine& routine : catalog::routines())
        for (const catalog::Step& step : routine.steps) known.push_back({&routine, &step});
    std::ranges::sort(known, {}, [](const Known& each) { return each.step->rank; });
    return known;
}

Picture room_of(const Layout& layout) { return {layout.bits(), layout.chroma(), layout.alpha()}; }

bool is_rgb(const Layout& layout)
{
    return std::ranges::any_of(layout.samples, [](const catalog::PlanePicture& plane) {
        return plane.fields.find('R') != std::string_view::npos;
    });
}

// Takes from `picture` what a layout has no room for, and says so.
void fit(const Layout& layout, ChromaLoss chroma_loss, Place& place, std::vector<std::string>& words)
{
    const Picture into = room_of(layout);
    Picture& picture = place.picture;
    const std::string by(in_words(chroma_loss));
    const auto lose = [&](Loss loss, std::string what) {
        place.lost |= loss;
        words.push_back(std::move(what));
    };
    if (picture.alpha && !into.alpha) lose(alpha, "alpha dropped");
    if (picture.bits > into.bits) lose(low_bits, fmt::format("{} bits to {} by truncation", picture.bits, into.bits));
    if (picture.chroma > Chroma::none && into.chroma == Chroma::none) {
        lose(colour, "colour dropped");
    } else {
        if (picture.chroma == Chroma::c444 && into.chroma < Chroma::c444)
            lose(chroma_across, "chroma halved horizontally" + by);
        if (picture.chroma > Chroma::c420 && into.chroma == Chroma::c420)
            lose(chroma_down, "chroma halved vertically" + by);
    }
    picture.alpha = picture.alpha && into.alpha;
    picture.bits = std::min(picture.bits, into.bits);
    picture.chroma = std::min(picture.chroma, into.chroma);
}

Place after(const Place& before, const Known& known, Size size)
{
    const auto& [routine, step] = known;
    const Layout &from = known.from(), &to = known.to();
    Place place = before;
    place.bytes = &to.bytes();
    std::vector<std::string> words;
    const auto lose = [&](Loss loss, std::string what) {
        place.lost |= loss;
        words.push_back(std::move(what));
    };
    if (step->matrix == Matrix::none && from.full_range && !to.full_range)
        lose(range, "full range to video range, rounded");
    if (step->matrix != Matrix::none) {
        const bool other = step->matrix == Matrix::bt601 && needs_another_matrix(size);
        const bool to_rgb = is_rgb(to);
        lose(matrix, fmt::format("{} to {} by {}, rounded", to_rgb ? "YCbCr" : "RGB", to_rgb ? "RGB" : "YCbCr",
                                 step->matrix == Matrix::by_size ? "the matrix for the size"
                                 : other                         ? "BT.601, which is not the matrix for the size"
                                                                 : "BT.601"));
        if (other) place.lost |= other_matrix;
    }
    if (step->wraps) lose(wrapped, "colours outside the RGB cube wrap");
    fit(to, step->chroma, place, words);
    if (step->alpha_0) place.picture.alpha_0 = true;
    place.path.steps.push_back({routine, from.name, to.name, std::move(words)});
    return place;
}

// Every place that the picture can come to, nearest first. `rgb12` that is written has another order of bits than
// `rgb12` that is read, so no path goes on from it.
std::vector<Place> walk(const Start& start)
{
    const Layout& first = layout_named(start.layout);
    std::vector<Place> places;
    Place home{&first.bytes(), room_of(first), 0, {}};
    home.picture.alpha = home.picture.alpha && !start.opaque;
    home.path.from = start.layout;
    places.push_back(home);
    const std::vector<Known> steps = known_steps();
    for (size_t i = 0; i < places.size(); ++i) {
        if (i > 0 && places[i].bytes == &catalog::layout::rgb12) continue;
        for (const Known& step : steps) {
            if (&step.from().bytes() != places[i].bytes) continue;
            Place next = after(places[i], step, start.size);
            const auto is_known = [&](const Place& known) { return known.is_same(next); };
            if (std::ranges::none_of(places, is_known)) places.push_back(std::move(next));
        }
    }
    return places;
}

// The place as a path to one layout: several names may share its bytes, and not all of them have alpha.
Place at_layout(Place place, const Layout& layout)
{
    fit(layout, ChromaLoss::none, place, place.path.other_losses);
    if (layout.alpha() && place.picture.alpha_0) place.path.other_losses.push_back("the alpha made is 0, transparent");
    place.path.to = layout.name;
    place.path.alpha = place.picture.alpha;
    return place;
}

}  // namespace

std::vector<std::string> Path::losses() const
{
    std::vector<std::string> all;
    for (const Step& step : steps) all.insert(all.end(), step.losses.begin(), step.losses.end());
    all.insert(all.end(), other_losses.begin(), other_losses.end());
    return all;
}

Path find_path(const Start& start, std::span<const std::string_view> to)
{
    const std::vector<Place> places = walk(start);
    std::optional<Place> best;
    const auto is_better = [&](const Place& place) {
        if (!best || place.lost != best->lost) return !best || place.lost < best->lost;
        return place.path.steps.size() < best->path.steps.size();
    };
    for (const std::string_view layout : to) {
        const Layout& wanted = layout_named(layout);
        for (const Place& place : places) {
            if (place.bytes != &wanted.bytes()) continue;
            Place there = at_layout(place, wanted);
            if (is_better(there)) best = std::move(there);
        }
    }
    if (best) return best->path;
    throw Failure(Exit::usage, "no conversion path leads from {} to {}; from {} there are paths to {}", start.layout,
                  fmt::join(to, " or "), start.layout, fmt::join(reachable(start.layout), ", "));
}

std::vector<std::string_view> reachable(std::string_view from)
{
    const std::vector<Place> places = walk({from});
    std::vector<std::string_view> names;
    for (const Layout& layout : catalog::layouts())
        if (std::ranges::find(places, &layout.bytes(), &Place::bytes) != places.end()) names.push_back(layout.name);
    return names;
}

std::string to_text(const Path& path)
{
    std::string text;
    const auto joined = [](const std::vector<std::string>& losses) {
        return losses.empty() ? std::string("nothing lost") : fmt::format("{}", fmt::join(losses, "; "));
    };
    for (const Step& step : path.steps)
        text += fmt::format("{} -> {}  {}  {}\n", step.from, step.to, step.routine->name, joined(step.losses));
    if (path.steps.empty())
        text += fmt::format("{} -> {}  the same bytes  {}\n", path.from, path.to, joined(path.other_losses));
    else if (!path.other_losses.empty())
        text += fmt::format("{}  {}\n", path.to, joined(path.other_losses));
    return text;
}

}  // namespace tintvert::core::paths
