// tintvert names: our layouts by the names that they have elsewhere.
#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <memory>
#include <vector>

#include "commands.h"
#include "json.h"
#include "layouts.h"
#include "names.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string text;
    bool json = false;
};

struct Name {
    std::string_view layout, who, name;
};

std::vector<Name> all_names()
{
    std::vector<Name> names;
    for (const catalog::Layout& layout : catalog::layouts())
        for (const Name& name :
             {Name{layout.name, "FFmpeg", layout.ffmpeg}, Name{layout.name, "GStreamer", layout.gstreamer},
              Name{layout.name, "FourCC", layout.fourcc}, Name{layout.name, "libyuv", layout.libyuv}})
            if (!name.name.empty()) names.push_back(name);
    return names;
}

std::string lower(std::string_view text)
{
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

std::vector<std::string_view> words_of(std::string_view text)
{
    std::vector<std::string_view> words;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        if (!word.empty()) words.push_back(word);
    }
    return words;
}

// Whole words go before parts of names: BGRA is not BGRA64_LE.
std::vector<Name> found(const std::string& text)
{
    const std::string wanted = lower(text);
    std::vector<Name> whole, part;
    std::vector<std::string_view> words;
    for (const Name& name : all_names()) {
        const std::string own = lower(name.name);
        const std::vector<std::string_view> own_words = words_of(own);
        if (std::ranges::find(own_words, wanted) != own_words.end()) whole.push_back(name);
        if (own.find(wanted) != std::string::npos) part.push_back(name);
        for (const std::string_view word : words_of(name.name)) words.push_back(word);
    }
    if (wanted.empty() || part.empty())
        throw Failure(Exit::usage, "no layout is called '{}' elsewhere{}", text, suggestion(text, words));
    return whole.empty() ? part : whole;
}

void print_json(const std::string& text, const std::vector<Name>& names)
{
    Json list = Json::array();
    for (const Name& name : names) list.push_back({{"layout", name.layout}, {"who", name.who}, {"name", name.name}});
    write_json({{"schema", json_schema}, {"text", text}, {"names", list}});
}

// One line a layout.
void print_text(const std::vector<Name>& names)
{
    for (size_t i = 0; i < names.size();) {
        const std::string_view layout = names[i].layout;
        std::string called;
        for (; i < names.size() && names[i].layout == layout; ++i)
            called += fmt::format("{}{} {}", called.empty() ? "" : ", ", names[i].who, names[i].name);
        fmt::print("{:<12}  {}\n{:<14}{}\n", layout, catalog::find_layout(layout)->summary, "", called);
    }
}

Exit run(const Options& options)
{
    const std::vector<Name> names = found(options.text);
    options.json ? print_json(options.text, names) : print_text(names);
    return Exit::done;
}

}  // namespace

Command add_names(CLI::App& tool)
{
    CLI::App* const app =
        tool.add_subcommand("names", "Our layouts by their names in FFmpeg, GStreamer and libyuv, and by FourCC.");
    const auto options = std::make_shared<Options>();
    app->add_option("text", options->text, "a name elsewhere, or a part of one")->required();
    app->add_flag("--json", options->json, "JSON instead of text");
    return {app, [options] { return run(*options); }};
}

}  // namespace tintvert::tool
