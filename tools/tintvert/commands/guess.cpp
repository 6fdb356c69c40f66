// tintvert guess: what a raw file may contain. Nothing else in the tool uses the answer.
#include "inspect/guess.h"

#include <fmt/format.h>

#include <memory>

#include "commands.h"
#include "json.h"

namespace tintvert::tool {
namespace {

struct Options {
    std::string file;
    size_t most = 10;
    bool json = false;
};

std::string name_of(const catalog::SampleForm& form)
{
    return form.form.empty() ? std::string(form.layout) : fmt::format("{}:{}", form.layout, form.form);
}

std::string reasons_of(const Guess& guess)
{
    std::string text;
    if (guess.name_tells_layout) text += "layout in the name, ";
    if (guess.name_tells_size) text += "size in the name, ";
    if (guess.is_usual_size) text += "usual size, ";
    text += fmt::format("neighbours alike {:.2f}", guess.alike);
    if (guess.unused > 0) text += fmt::format(", unused bits set {:.2f}", guess.unused);
    return text;
}

Json to_json(const Guess& guess)
{
    return {{"layout", name_of(*guess.form)},
            {"same_bytes", guess.same},
            {"width", guess.width},
            {"height", guess.height},
            {"frames", guess.frames},
            {"score", guess.score()},
            {"layout_in_name", guess.name_tells_layout},
            {"size_in_name", guess.name_tells_size},
            {"usual_size", guess.is_usual_size},
            {"alike", guess.alike},
            {"unused_bits_set", guess.unused}};
}

Exit run(const Options& options)
{
    InputFile file(options.file);
    if (file.size() == 0) throw Failure(Exit::no_file, "{} is empty", options.file);
    std::vector<Guess> found = guesses(file);
    if (found.empty())
        throw Failure(Exit::no_file, "{}: no usual size of any layout makes {} bytes", options.file, file.size());
    found.resize(std::min(found.size(), options.most));
    Json list = Json::array();
    if (!options.json) fmt::print("score  {:<12} {:<11} {:>6}  why\n", "layout", "size", "frames");
    for (const Guess& guess : found) {
        list.push_back(to_json(guess));
        if (options.json) continue;
        fmt::print("{:>5.0f}  {:<12} {:<11} {:>6}  {}\n", guess.score(), name_of(*guess.form),
                   fmt::format("{}x{}", guess.width, guess.height), guess.frames, reasons_of(guess));
    }
    if (options.json) write_json({{"schema", json_schema}, {"bytes", file.size()}, {"guesses", list}});
    return Exit::done;
}

}  // namespace

Command add_guess(CLI::App& tool)
{
    CLI::App* const app =
        tool.add_subcommand("guess", "What a raw file may contain: layouts and sizes, the likeliest first.");
    const auto options = std::make_shared<Options>();
    app->add_option("file", options->file, "a file of raw frames")->required();
    app->add_option("--most", options->most, "how many answers")->capture_default_str()->check(CLI::Range(1, 1000));
    app->add_flag("--json", options->json, "JSON instead of text");
    return {app, [options] { return naming(options->file, [&] { return run(*options); }); }};
}

}  // namespace tintvert::tool
