#include "routine_facts.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "in_place.h"

namespace tintvert::tool {
namespace {

struct InPlaceWords {
    const char *name, *sentence;
};

InPlaceWords in_place_of(const catalog::Routine& routine)
{
    switch (catalog::in_place(routine)) {
        case catalog::InPlace::fails:
            return {"fails", "no: one frame on both sides comes out otherwise than two"};
        case catalog::InPlace::as_apart:
            return {"as_apart", "yes: the same bytes as with two frames"};
        case catalog::InPlace::in_its_way:
            return {"in_its_way", "in its own way, see the header"};
        case catalog::InPlace::unspecified:
            break;
    }
    return {"unspecified", ""};
}

void replace_all(std::string& text, std::string_view what, const std::string& by)
{
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
}

const char* name_of(catalog::Peer::Agreement agreement) { return agreement == catalog::Peer::exact ? "exact" : "near"; }

}  // namespace

std::string peer_command_at(const catalog::Peer& peer, int64_t width, int64_t height)
{
    std::string text(peer.command);
    if (width == 0) return text;
    replace_all(text, " WxH", fmt::format(" {}x{}", width, height));
    replace_all(text, "width=W", fmt::format("width={}", width));
    replace_all(text, "height=H", fmt::format("height={}", height));
    replace_all(text, " ! ", " '!' ");
    return text;
}

Json peer_to_json(const catalog::Routine& routine, int64_t width, int64_t height)
{
    const auto peer = catalog::peer_of(routine);
    if (!peer) return {};
    return {{"agreement", name_of(peer->agreement)}, {"command", peer_command_at(*peer, width, height)}};
}

Json facts_to_json(const catalog::Routine& routine)
{
    const catalog::Routine* const alias = catalog::alias_of(routine);
    return {{"alias_of", alias == nullptr ? Json() : Json(alias->name)},
            {"empty", catalog::is_empty_entry(routine)},
            {"in_place", in_place_of(routine).name},
            {"quirks", catalog::quirks_of(routine)},
            {"companions", catalog::companions_of(routine)},
            {"peer", peer_to_json(routine, 0, 0)}};
}

std::string facts_to_text(const catalog::Routine& routine)
{
    std::string text;
    const auto add = [&](const char* what, std::string_view is) {
        if (!is.empty()) text += fmt::format("{:<10}  {}\n", what, is);
    };
    if (const catalog::Routine* const alias = catalog::alias_of(routine))
        add("the same", fmt::format("{}, under a second name", alias->name));
    if (catalog::is_empty_entry(routine)) add("empty", "takes its arguments and does nothing");
    add("in place", in_place_of(routine).sentence);
    add("quirks", fmt::format("{}", fmt::join(catalog::quirks_of(routine), ", ")));
    add("calls", fmt::format("{}", fmt::join(catalog::companions_of(routine), ", ")));
    if (const auto peer = catalog::peer_of(routine))
        add("peer", fmt::format("{}: {}", name_of(peer->agreement), peer_command_at(*peer, 0, 0)));
    return text;
}

}  // namespace tintvert::tool
