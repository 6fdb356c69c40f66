// Every line of golden.txt still has its digest, whatever the compiler, its flags and the processor.
//
// A line is a routine of the catalogue, its numbers by argument name, the seed of the bytes in its buffers,
// and the digest of those buffers after the call. A number that is left out is 0. Each buffer has the bytes
// that the extents rule gives, with a margin on either side that the digest covers too.
//
// `test_golden --print` prints the file with the digests of this build; a new line needs none, only its arrow.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iostream>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "catalog.h"
#include "support/call_memory.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int64_t margin = 32;

struct Line {
    std::string call_text;  // everything before the arrow
    const catalog::Routine* routine;
    catalog::Arguments call;
    uint64_t seed;
    std::string digest;  // empty if there is none after it
};

bool holds_a_call(const std::string& text) { return !text.empty() && text[0] != '#'; }

Arg number_named(const catalog::Routine& routine, std::string_view name)
{
    for (const Arg argument : routine.arguments)
        if (describe(argument).kind == catalog::Argument::number && describe(argument).name == name) return argument;
    throw std::runtime_error(std::string{routine.name} + " has no number " + std::string{name});
}

Line parse(const std::string& text)
{
    const size_t arrow = text.find(" ->");
    if (arrow == std::string::npos) throw std::runtime_error("no arrow: " + text);
    Line line{text.substr(0, arrow), nullptr, {}, 0, {}};
    std::istringstream(text.substr(arrow + 3)) >> line.digest;

    std::istringstream words(line.call_text);
    std::string word;
    words >> word;
    line.routine = catalog::find(word);
    if (line.routine == nullptr) throw std::runtime_error("no routine " + word);
    while (words >> word) {
        const size_t equals = word.find('=');
        if (equals == std::string::npos) throw std::runtime_error("no number: " + word);
        const int64_t value = std::stoll(word.substr(equals + 1), nullptr, 0);
        if (word.starts_with("seed="))
            line.seed = static_cast<uint64_t>(value);
        else
            line.call[number_named(*line.routine, word.substr(0, equals))] = value;
    }
    return line;
}

std::vector<std::string> texts()
{
    std::ifstream file(TINTVERT_GOLDEN_LINES);
    std::vector<std::string> result;
    for (std::string text; std::getline(file, text);) result.push_back(text);
    return result;
}

// FNV-1a, 64 bits.
uint64_t digest_of(std::span<const uint8_t> bytes, uint64_t digest = 0xCBF29CE484222325u)
{
    for (const uint8_t byte : bytes) digest = (digest ^ byte) * 0x100000001B3u;
    return digest;
}

std::string in_hex(uint64_t digest)
{
    std::string text(16, '0');
    for (size_t i = 16; i-- > 0; digest >>= 4) text[i] = "0123456789abcdef"[digest & 15];
    return text;
}

// Of all buffers, in the order of the arguments.
std::string digest_of_call(const Line& line)
{
    catalog::Arguments call = line.call;
    Random random(line.seed);
    CallMemory memory(random, *line.routine, call, margin);
    memory.point(call);
    line.routine->call(call);
    uint64_t digest = digest_of({});
    for (const CallMemory::Place& place : memory.places()) digest = digest_of(place.buffer.bytes(), digest);
    return in_hex(digest);
}

testing::AssertionResult holds(const Line& line)
{
    const std::string digest = digest_of_call(line);
    if (digest == line.digest) return testing::AssertionSuccess();
    return testing::AssertionFailure() << line.call_text << " -> " << digest << ", not " << line.digest;
}

void print()
{
    for (const std::string& text : texts()) {
        if (!holds_a_call(text)) {
            std::cout << text << '\n';
            continue;
        }
        const Line line = parse(text);
        std::cout << line.call_text << " -> " << digest_of_call(line) << '\n';
    }
}

TEST(Golden, every_line_has_its_digest)
{
    int lines = 0;
    for (const std::string& text : texts()) {
        if (!holds_a_call(text)) continue;
        ++lines;
        EXPECT_TRUE(holds(parse(text)));
    }
    EXPECT_GT(lines, 0);
}

TEST(Golden, digest_follows_from_the_line_alone)
{
    for (const std::string& text : texts()) {
        if (!holds_a_call(text)) continue;
        Line line = parse(text);
        const std::string digest = digest_of_call(line);
        EXPECT_EQ(digest, digest_of_call(line)) << text;
        line.seed += 1000;
        EXPECT_NE(digest, digest_of_call(line)) << text;
    }
}

TEST(Golden, rejects_a_wrong_digest)
{
    Line line = parse("bgra_to_2vuy pixels=6 seed=1 ->");
    EXPECT_FALSE(holds(line));
    line.digest = digest_of_call(line);
    EXPECT_TRUE(holds(line));
    line.digest.back() = line.digest.back() == '0' ? '1' : '0';
    EXPECT_FALSE(holds(line));

    line = parse("bgra_to_2vuy pixels=6 seed=1 -> " + digest_of_call(line));
    EXPECT_TRUE(holds(line));
    line.call[Arg::pixels] = 4;
    EXPECT_FALSE(holds(line));
    line.call[Arg::pixels] = 6;
    line.routine = catalog::find("argb_to_2vuy");
    EXPECT_FALSE(holds(line));
}

TEST(Golden, rejects_a_line_that_describes_no_call)
{
    EXPECT_THROW(parse("bgra_to_2vuy pixels=6 seed=1"), std::runtime_error);
    EXPECT_THROW(parse("bgra_to_3vuy pixels=6 seed=1 -> 0"), std::runtime_error);
    EXPECT_THROW(parse("bgra_to_2vuy width=6 seed=1 -> 0"), std::runtime_error);
    EXPECT_THROW(parse("bgra_to_2vuy src=6 seed=1 -> 0"), std::runtime_error);
    EXPECT_THROW(parse("bgra_to_2vuy pixels seed=1 -> 0"), std::runtime_error);
}

TEST(Golden, digest_is_fnv_1a)
{
    const uint8_t a[] = {'a'}, foobar[] = {'f', 'o', 'o', 'b', 'a', 'r'};
    EXPECT_EQ(in_hex(digest_of({})), "cbf29ce484222325");
    EXPECT_EQ(in_hex(digest_of(a)), "af63dc4c8601ec8c");
    EXPECT_EQ(in_hex(digest_of(foobar)), "85944171f73967e8");
}

}  // namespace
}  // namespace tintvert::test

int main(int argc, char** argv)
{
    if (argc == 2 && std::string_view{argv[1]} == "--print") {
        tintvert::test::print();
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
