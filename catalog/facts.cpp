#include "facts.h"

#include "routine_id.h"

namespace tintvert::catalog {
namespace {

struct Alias {
    RoutineId name, of;
};
constexpr Alias aliases[] = {
#define TNTVT_ALIAS(name, of) {RoutineId::name, RoutineId::of},
#include "aliases.def"
#undef TNTVT_ALIAS
};

constexpr RoutineId empty_entries[] = {
#define TNTVT_EMPTY(name) RoutineId::name,
#include "empty_entries.def"
#undef TNTVT_EMPTY
};

struct Fact {
    RoutineId routine;
    std::string_view name;
};
constexpr Fact quirks[] = {
#define TNTVT_QUIRK(name, routine) {RoutineId::routine, #name},
#include "quirks.def"
#undef TNTVT_QUIRK
};
constexpr Fact companions[] = {
#define TNTVT_COMPANION(routine, function) {RoutineId::routine, #function},
#include "companions.def"
#undef TNTVT_COMPANION
};

struct PeerOf {
    RoutineId routine;
    Peer peer;
};
constexpr PeerOf peers[] = {
#define TNTVT_PEER(routine, agreement, command) {RoutineId::routine, {Peer::agreement, command}},
#include "peers.def"
#undef TNTVT_PEER
};

template <size_t count>
std::vector<std::string_view> names_of(const Routine& routine, const Fact (&facts)[count])
{
    std::vector<std::string_view> names;
    for (const Fact& fact : facts)
        if (fact.routine == id_of(routine)) names.push_back(fact.name);
    return names;
}

}  // namespace

const Routine* alias_of(const Routine& routine)
{
    for (const Alias& alias : aliases)
        if (alias.name == id_of(routine)) return &routine_at(alias.of);
    return nullptr;
}

bool is_empty_entry(const Routine& routine)
{
    for (const RoutineId entry : empty_entries)
        if (entry == id_of(routine)) return true;
    return false;
}

std::vector<std::string_view> quirks_of(const Routine& routine) { return names_of(routine, quirks); }

std::vector<std::string_view> companions_of(const Routine& routine) { return names_of(routine, companions); }

std::optional<Peer> peer_of(const Routine& routine)
{
    for (const PeerOf& peer : peers)
        if (peer.routine == id_of(routine)) return peer.peer;
    return std::nullopt;
}

}  // namespace tintvert::catalog
