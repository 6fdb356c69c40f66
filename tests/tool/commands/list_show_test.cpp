// list and show print everything that the catalogue and the headers contain.
#include <nlohmann/json.hpp>

#include "facts.h"
#include "in_place.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

using nlohmann::json;

json json_of(std::vector<std::string> arguments)
{
    const Result result = run(std::move(arguments));
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    const json parsed = json::parse(result.out, nullptr, false);
    EXPECT_FALSE(parsed.is_discarded()) << result.out;
    EXPECT_EQ(parsed["schema"], 1);
    return parsed;
}

json layout(std::string_view name) { return name == "none" ? json() : json(name); }

void expect_same(const json& shown, const catalog::Routine& routine)
{
    EXPECT_EQ(shown["name"], routine.name);
    EXPECT_EQ(shown["chapter"], routine.chapter);
    EXPECT_EQ(shown["summary"], routine.summary);
    EXPECT_EQ(shown["reads"], layout(routine.from->name));
    EXPECT_EQ(shown["writes"], layout(routine.to->name));
    const catalog::Routine* const alias = catalog::alias_of(routine);
    EXPECT_EQ(shown["alias_of"], alias == nullptr ? json() : json(alias->name));
    EXPECT_EQ(shown["empty"], catalog::is_empty_entry(routine));
    EXPECT_EQ(shown["quirks"], json(catalog::quirks_of(routine)));
    EXPECT_EQ(shown["companions"], json(catalog::companions_of(routine)));
    const auto peer = catalog::peer_of(routine);
    EXPECT_EQ(shown["peer"].is_null(), !peer);
    if (peer) {
        EXPECT_EQ(shown["peer"]["command"], peer->command);
    }
    constexpr const char* in_place[] = {"unspecified", "fails", "as_apart", "in_its_way"};
    EXPECT_EQ(shown["in_place"], in_place[static_cast<size_t>(catalog::in_place(routine))]);
}

TEST(List, json_holds_every_routine_in_order)
{
    const json shown = json_of({"list", "--json"});
    ASSERT_EQ(shown["routines"].size(), catalog::routines().size());
    for (size_t i = 0; i < catalog::routines().size(); ++i) expect_same(shown["routines"][i], catalog::routines()[i]);
}

TEST(List, a_chapter_holds_its_own)
{
    const json shown = json_of({"list", "decode", "--json"});
    EXPECT_FALSE(shown["routines"].empty());
    for (const json& routine : shown["routines"]) EXPECT_EQ(routine["chapter"], "decode");
}

TEST(List, text_names_every_routine)
{
    const Result result = run({"list"});
    EXPECT_EQ(result.code, 0);
    for (const catalog::Routine& routine : catalog::routines())
        EXPECT_NE(result.out.find("\n  " + std::string(routine.name) + " "), std::string::npos) << routine.name;
}

// Also that every routine has a comment of its own in the headers, which names all its quirks.
TEST(Show, json_holds_prototype_arguments_and_documentation)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        const json shown = json_of({"show", std::string(routine.name), "--json"})["routine"];
        expect_same(shown, routine);
        const std::string prototype = shown["prototype"];
        EXPECT_NE(prototype.find(std::string(routine.name) + "("), std::string::npos) << routine.name;
        EXPECT_TRUE(prototype.ends_with(");")) << prototype;
        const std::string documentation = shown["documentation"];
        EXPECT_GT(documentation.size(), 20u) << routine.name;
        for (const std::string_view quirk : catalog::quirks_of(routine))
            EXPECT_NE(documentation.find(quirk), std::string::npos) << routine.name << ' ' << quirk;
        ASSERT_EQ(shown["arguments"].size(), routine.arguments.size());
        for (size_t i = 0; i < routine.arguments.size(); ++i) {
            const catalog::Argument& argument = catalog::describe(routine.arguments[i]);
            const char* kind = argument.kind == catalog::Argument::buffer ? "buffer" : "number";
            EXPECT_EQ(shown["arguments"][i],
                      (json{{"name", argument.name}, {"kind", kind}, {"meaning", argument.meaning}}));
        }
    }
}

TEST(Show, text_carries_the_header_comment)
{
    const Result result = run({"show", "free_own_cache_lines"});
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.out.find("\nvoid free_own_cache_lines(void** raw, void** aligned);\n"), std::string::npos);
    EXPECT_NE(
        result.out.find("\n  Releases `*raw` if it is not null, and sets both pointers to null; calling it again is "
                        "harmless.\n"),
        std::string::npos)
        << result.out;
    EXPECT_EQ(result.out.find("/*"), std::string::npos);
    EXPECT_EQ(result.out.find("*/"), std::string::npos);
}

TEST(Show, text_tells_what_the_catalogue_knows)
{
    const std::string alias = run({"show", "tntvt_rgb24_rgb32"}).out;
    for (const char* line : {"\nthe same    tntvt_rgb24_rgba32, under a second name\n",
                             "\nquirks      keeps_ascending_writes_in_place\n", "\npeer        exact: ffmpeg "})
        EXPECT_NE(alias.find(line), std::string::npos) << line << alias;
    EXPECT_NE(run({"show", "tntvt_rle4_rgb24"}).out.find("\nempty       takes its arguments and does nothing\n"),
              std::string::npos);
    EXPECT_NE(run({"show", "tntvt_i420_rgb32"}).out.find("\ncalls       GetMatrixBySize, cycbcr_i420_to_rgb32\n"),
              std::string::npos);
    EXPECT_NE(run({"show", "argb_to_2vuy"}).out.find("\nin place    yes: the same bytes as with two frames\n"),
              std::string::npos);
    EXPECT_NE(run({"list"}).out.find(" The same as tntvt_rgb24_rgba32.\n"), std::string::npos);
}

}  // namespace
}  // namespace tintvert::test
