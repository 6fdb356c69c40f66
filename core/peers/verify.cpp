#include <fmt/format.h>

#include <algorithm>
#include <numeric>

#include "geometry.h"
#include "paths/frame_converter.h"
#include "peers/check.h"
#include "peers/peer.h"

namespace tintvert::core {
namespace {

using Bytes = std::vector<uint8_t>;

// GStreamer's lines have no slack at this width, and groups of v210 fill them.
constexpr int64_t noise_width = 192, noise_height = 64;

Bytes noise(size_t count)
{
    Bytes bytes(count);
    uint32_t state = 1;
    for (uint8_t& byte : bytes) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<uint8_t>(state >> 24);
    }
    return bytes;
}

// Zeros where there is no sample.
void clear_unused(PeerQuestion* question)
{
    for (const catalog::PlacedPlane& placed : question->planes(question->from))
        for (int64_t at = placed.offset; at < placed.offset + placed.stride * placed.lines;
             at += placed.plane->unit_bytes)
            for (const catalog::Sample& field : placed.plane->fields)
                if (field.component.empty())
                    catalog::store_sample(*placed.plane, field, question->frame.data() + at, 0);
}

// Noise goes into the question, and what the routine makes of it comes back.
Bytes through_routine(const catalog::Routine& routine, PeerQuestion* question)
{
    const RoutineCall call = plan_call(routine, catalog::plain_call(routine, {noise_width, noise_height}));
    const std::vector<int64_t> sizes = call.input_sizes();
    question->frame = noise(static_cast<size_t>(std::accumulate(sizes.begin(), sizes.end(), int64_t{0})));
    if (routine.from->name != "none") clear_unused(question);
    return convert_frame(call, question->frame);
}

PeerAnswer answer_to(const PeerQuestion& question)
{
    if (question.peer == "libyuv") return answer_of_libyuv(question);
    if (question.peer == "zimg") return answer_of_zimg(question);
    return question.peer == "oiiotool" ? answer_of_oiiotool(question) : answer_of_program(question);
}

PeerVerdict compare(const PeerQuestion& question, const Bytes& ours, const Bytes& theirs,
                    catalog::Peer::Compared compared)
{
    using enum PeerVerdict::Kind;
    if (ours.size() != theirs.size())
        return {differs, fmt::format("{} bytes, and ours are {}", theirs.size(), ours.size())};
    if (question.to == "none" || compared == catalog::Peer::bytes) {
        const auto [a, b] = std::ranges::mismatch(ours, theirs);
        if (a == ours.end()) return {equal, ""};
        return {differs, fmt::format("byte {} is {}, and ours {}", a - ours.begin(), *b, *a)};
    }
    const int64_t most = compared == catalog::Peer::within1 ? 1 : 0;
    int64_t off = 0;
    std::string where;
    catalog::each_sample(
        question.planes(question.to), noise_width,
        [&](const catalog::PlacedPlane& placed, const catalog::Sample& sample, int64_t x, int64_t y, int64_t offset) {
            const int drop = compared == catalog::Peer::upper8 ? sample.bits - 8 : 0;
            const int64_t a = catalog::load_sample(*placed.plane, sample, &ours[static_cast<size_t>(offset)]);
            const int64_t b = catalog::load_sample(*placed.plane, sample, &theirs[static_cast<size_t>(offset)]);
            const int64_t distance = std::abs((a >> drop) - (b >> drop));
            off = std::max(off, distance);
            if (where.empty() && distance > most)
                where = fmt::format("line {}, pixel {}, {} is {}, and ours {}", y, x, sample.component, b, a);
        });
    if (off > most) return {differs, where};
    return off == 0 ? PeerVerdict{equal, ""} : PeerVerdict{near, "no sample is off by more than 1"};
}

}  // namespace

std::vector<catalog::PlacedPlane> PeerQuestion::planes(std::string_view layout) const
{
    const int64_t line = catalog::find_layout(layout)->line_bytes(width);
    return catalog::place_planes(*catalog::find_samples(layout), width, height, line);
}

std::vector<PeerCheck> peer_checks()
{
    std::vector<PeerCheck> checks;
    for (const catalog::Routine& routine : catalog::routines())
        for (const catalog::Peer& peer : routine.peers)
            if (peer.compared != catalog::Peer::nothing) checks.push_back({&routine, &peer});
    return checks;
}

PeerVerdict verify_by_peer(const PeerCheck& check)
{
    const catalog::Routine& routine = *check.routine;
    const catalog::Peer& peer = *check.peer;
    PeerQuestion question{peer.program, peer.command, routine.from->name, routine.to->name,
                          {},           noise_width,  noise_height};
    Bytes ours = through_routine(routine, &question);
    if (peer.direction == catalog::Peer::back) {
        std::swap(question.from, question.to);
        std::swap(question.frame, ours);
    }
    const PeerAnswer answer = answer_to(question);
    if (!answer.frame) return {PeerVerdict::skipped, answer.why_none};
    return compare(question, ours, *answer.frame, peer.compared);
}

}  // namespace tintvert::core
