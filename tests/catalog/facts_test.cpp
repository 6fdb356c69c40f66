// Second names, empty entries and quirks, each proved in both directions.
#include "facts.h"

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "catalog.h"
#include "refusals.h"
#include "support/random_call.h"

namespace tintvert::test {
namespace {

using catalog::Arg;
using catalog::Routine;

constexpr int64_t reach = 20000;

// All memory around every buffer after the call, and the answer; nothing where the call is refused.
std::string outcome(const Routine& routine, catalog::Arguments call, uint64_t seed)
{
    if (!catalog::refusal(routine, call).empty()) return {};
    Random random(seed);
    CallMemory memory(random, routine, call, {-reach, reach});
    for (const CallMemory::Place& place : memory.places())
        if (place.accessed.begin < -reach || place.accessed.end > reach) return {};
    memory.point(call);
    std::string result = std::to_string(routine.result.ends_with('*') ? 0 : routine.call(call));
    for (const CallMemory::Place& place : memory.places())
        result.append(place.buffer.bytes().begin(), place.buffer.bytes().end());
    return result;
}

// Whether two routines of one shape make the same of thirty random calls.
bool do_the_same(const Routine& one, const Routine& other)
{
    Random random(91);
    for (int round = 0; round < 30; ++round) {
        const catalog::Arguments call = random_call(random, one);
        if (outcome(one, call, 7) != outcome(other, call, 7)) return false;
    }
    return true;
}

const Routine& first_name(const Routine& routine)
{
    const Routine* of = alias_of(routine);
    return of == nullptr ? routine : *of;
}

TEST(Facts, second_names_do_the_same_and_no_others_do)
{
    int second_names = 0;
    for (const Routine& one : catalog::routines()) {
        second_names += alias_of(one) == nullptr ? 0 : 1;
        EXPECT_EQ(alias_of(first_name(one)), nullptr) << one.name;
        if (one.chapter == "frame" || one.shape->name == "no_arguments" || is_empty_entry(one)) continue;
        for (const Routine& other : catalog::routines()) {
            if (&other <= &one || other.shape != one.shape || is_empty_entry(other)) continue;
            EXPECT_EQ(do_the_same(one, other), &first_name(one) == &first_name(other)) << one.name << ' ' << other.name;
        }
    }
    EXPECT_EQ(second_names, 23);
}

// Null pointers and numbers without sense.
TEST(Facts, empty_entries_touch_nothing_and_all_others_something)
{
    int empty = 0;
    for (const Routine& routine : catalog::routines()) {
        if (is_empty_entry(routine)) {
            catalog::Arguments call;
            call[Arg::ignored] = 0x7FFFFFFF;
            EXPECT_EQ(routine.call(call), routine.name == "tntvt_deinterlace_yuv" ? -1 : 0) << routine.name;
            ++empty;
            continue;
        }
        if (routine.shape->name == "no_arguments" || routine.chapter == "frame") continue;
        Random random(92);
        bool touches = false;
        for (int round = 0; round < 50 && !touches; ++round) {
            const catalog::Extents extents = routine.extents(random_call(random, routine));
            for (const catalog::Touch& touch : extents) touches |= !touch.written.empty();
        }
        EXPECT_TRUE(touches) << routine.name;
    }
    EXPECT_EQ(empty, 20);
}

std::string text_of(const std::string& name)
{
    std::ifstream file(TINTVERT_PROJECT "/" + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Row {
    std::set<std::string> routines;  // those that the row names
    bool names_all;                  // the row says nothing else about whose it is
};

// The second column of a table of docs/quirks.md: names in backquotes, commas, and sometimes other words.
Row routines_in(const std::string& cell)
{
    Row row{{}, true};
    std::string rest;
    std::istringstream parts(cell);
    bool quoted = false;
    for (std::string part; std::getline(parts, part, '`'); quoted = !quoted) {
        if (quoted && catalog::find(part) != nullptr)
            row.routines.insert(part);
        else
            rest += part;
    }
    for (const char c : rest) row.names_all &= c == ',' || c == ' ';
    return row;
}

std::map<std::string, Row> rows_of_docs()
{
    std::map<std::string, Row> rows;
    std::istringstream lines(text_of("docs/quirks.md"));
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("| keeps_")) continue;
        const size_t end = line.find(" |"), next = line.find(" |", end + 2);
        rows[line.substr(2, end - 2)] = routines_in(line.substr(end + 3, next - end - 3));
    }
    return rows;
}

TEST(Facts, quirks_are_those_of_the_docs)
{
    std::map<std::string, std::set<std::string>> recorded;
    for (const Routine& routine : catalog::routines())
        for (const std::string_view name : quirks_of(routine)) {
            EXPECT_TRUE(recorded[std::string{name}].insert(std::string{routine.name}).second)
                << name << ' ' << routine.name;
        }
    const std::map<std::string, Row> rows = rows_of_docs();
    EXPECT_GT(rows.size(), 100u);
    for (const auto& [name, row] : rows) {
        ASSERT_TRUE(recorded.contains(name)) << name << " is not in the catalogue";
        for (const std::string& routine : row.routines)
            EXPECT_TRUE(recorded[name].contains(routine)) << name << " is not recorded for " << routine;
        if (row.names_all) {
            EXPECT_EQ(recorded[name], row.routines) << name;
        }
    }
    for (const auto& [name, routines] : recorded) EXPECT_TRUE(rows.contains(name)) << name << " is not in the docs";
}

TEST(Facts, peers_are_one_command_each)
{
    int peers = 0;
    for (const Routine& routine : catalog::routines()) {
        const std::optional<catalog::Peer> peer = peer_of(routine);
        if (!peer) continue;
        ++peers;
        EXPECT_FALSE(is_empty_entry(routine)) << routine.name;
        EXPECT_NE(peer->command.find("out"), std::string_view::npos) << routine.name;
        EXPECT_EQ(peer->command.find('\n'), std::string_view::npos) << routine.name;
    }
    EXPECT_GT(peers, 60);
}

}  // namespace
}  // namespace tintvert::test
