// The commands that the catalogue calls exact make the same bytes of noise as their routines.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>

#include "catalog.h"
#include "facts.h"
#include "geometry.h"
#include "program.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;
using catalog::Content;

constexpr long width = 48, height = 8;

std::string in_numbers(std::string word)
{
    if (word == "WxH") return std::to_string(width) + 'x' + std::to_string(height);
    if (word == "width=W") return "width=" + std::to_string(width);
    if (word == "height=H") return "height=" + std::to_string(height);
    if (word == "in") return "{in}";
    if (word == "out") return "{out}";
    if (word == "location=in") return "location={in}";
    if (word == "location=out") return "location={out}";
    return word;
}

Words words_of(std::string_view command)
{
    Words words;
    std::istringstream text{std::string{command}};
    for (std::string word; text >> word;) {
        words.push_back(in_numbers(word));
        if (words.size() == 1 && word == "ffmpeg") words.insert(words.end(), {"-v", "error"});
        if (words.size() == 1 && word == "gst-launch-1.0") words.push_back("-q");
    }
    return words;
}

// One buffer after the other, as a file of planes has them.
Bytes join(const catalog::Routine& routine, const catalog::Arguments& call, std::map<Arg, Bytes>& memory, bool in)
{
    Bytes result;
    for (const Content& content : catalog::contents(routine, call)) {
        if (!(in ? content.in : content.out)) continue;
        const Bytes& bytes = memory[content.buffer];
        const auto begin = bytes.begin() + 4096 + content.origin;
        result.insert(result.end(), begin, begin + content.bytes);
    }
    return result;
}

void expect_exact(const catalog::Routine& routine, std::string_view command)
{
    Random random(71);
    catalog::Arguments call = catalog::plain_call(routine, {width, height});
    std::map<Arg, Bytes> memory;
    const std::vector<Content> contents = catalog::contents(routine, call);
    for (const Content& content : contents) memory[content.buffer] = random.bytes(32768);
    for (const Content& content : contents)
        call[content.buffer] = reinterpret_cast<int64_t>(memory[content.buffer].data() + 4096);
    const Bytes input = join(routine, call, memory, true);
    routine.call(call);
    const Bytes ours = join(routine, call, memory, false);
    ASSERT_FALSE(ours.empty()) << routine.name;
    const Bytes theirs = through(words_of(command), input);
    EXPECT_EQ(ours, theirs) << routine.name << ": " << command;
}

TEST(CatalogPeers, that_are_exact_make_the_same_bytes)
{
    int compared = 0;
    for (const catalog::Routine& routine : catalog::routines()) {
        const std::optional<catalog::Peer> peer = catalog::peer_of(routine);
        if (!peer || peer->agreement != catalog::Peer::exact) continue;
        if (!installed(std::string{peer->command.substr(0, peer->command.find(' '))})) continue;
        expect_exact(routine, peer->command);
        ++compared;
    }
    if (compared == 0) GTEST_SKIP() << "neither FFmpeg nor GStreamer is installed";
}

}  // namespace
}  // namespace tintvert::test
