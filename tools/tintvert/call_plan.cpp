#include "call_plan.h"

#include <fmt/format.h>

#include <algorithm>

#include "failure.h"
#include "geometry.h"
#include "headers.h"
#include "refusals.h"
#include "routine_options.h"

namespace tintvert::tool {
namespace {

using catalog::Arg;
using catalog::Range;

// A picture of one colour: runs of up to 254 pixels, line ends, the end.
std::vector<uint8_t> plain_stream(int64_t width, int64_t height)
{
    std::vector<uint8_t> stream;
    for (int64_t line = 0; line < height; ++line) {
        for (int64_t left = width; left > 0; left -= 254)
            stream.insert(stream.end(), {static_cast<uint8_t>(std::min<int64_t>(left, 254)), 0});
        stream.insert(stream.end(), {0, 0});
    }
    stream.insert(stream.end(), {0, 1});
    return stream;
}

struct Parameter {
    std::string type, name;
    bool is_pointer() const { return type.ends_with('*'); }
};

// "void* dst, long dstStride" by parameters; the type alone where there is no name.
std::vector<Parameter> parameters_of(const std::string& prototype)
{
    const size_t open = prototype.find('('), close = prototype.rfind(')');
    std::string rest = prototype.substr(open + 1, close - open - 1);
    std::vector<Parameter> parameters;
    while (!rest.empty() && rest != "void") {
        std::string text = rest.substr(0, rest.find(','));
        rest.erase(0, std::min(text.size() + 1, rest.size()));
        text.erase(0, text.find_first_not_of(' '));
        const size_t star = text.rfind('*');
        const size_t end = star == std::string::npos ? text.size() : star + 1;
        parameters.push_back({text.substr(0, end), text.substr(end)});
    }
    return parameters;
}

std::string byte_of(std::string_view name, int64_t offset)
{
    if (offset == 0) return std::string(name);
    return fmt::format("({} {} {})", name, offset < 0 ? '-' : '+', std::abs(offset));
}

}  // namespace

Range PlannedBuffer::whole() const { return join(join(picture, read), written); }

CallPlan plan_call(const catalog::Routine& routine, const catalog::Arguments& arguments, Size size)
{
    CallPlan plan{&routine, arguments, {}, {}};
    if (const auto [refusal, why] = catalog::reason(routine, plan.arguments); refusal != catalog::Refusal::none)
        throw Failure(Exit::unsafe, "refused: {} ({})", why, catalog::name_of(refusal));
    if (takes(routine, Arg::palette) && routine.from->name == "rle8") {
        plan.stream = plain_stream(size.width, size.height);
        plan.arguments[Arg::src] = reinterpret_cast<int64_t>(plan.stream.data());
        plan.arguments[Arg::streamSize] = static_cast<int64_t>(plan.stream.size());
    }
    const catalog::Extents extents = routine.extents(plan.arguments);
    const std::vector<catalog::Content> contents = catalog::contents(routine, plan.arguments);
    for (const Arg argument : routine.arguments) {
        if (catalog::describe(argument).kind != catalog::Argument::buffer) continue;
        PlannedBuffer buffer{argument, {}, {}, {}, false, false};
        for (const catalog::Content& content : contents) {
            if (content.buffer != argument) continue;
            buffer.picture = {content.origin, content.origin + content.bytes};
            buffer.in = content.in;
            buffer.out = content.out;
        }
        for (const catalog::Touch& touch : extents) {
            if (touch.buffer != argument) continue;
            buffer.read = touch.read;
            buffer.written = touch.written;
        }
        plan.buffers.push_back(buffer);
    }
    return plan;
}

std::string c_call(const CallPlan& plan)
{
    const catalog::Routine& routine = *plan.routine;
    const std::vector<Parameter> parameters = parameters_of(declaration_of(routine.chapter, routine.name).prototype);
    std::string memory, arguments, release;
    for (size_t i = 0; i < routine.arguments.size(); ++i) {
        const Arg argument = routine.arguments[i];
        const std::string_view name = catalog::describe(argument).name;
        const std::string& type = parameters.at(i).type;
        if (i > 0) arguments += ", ";
        const auto buffer = std::ranges::find(plan.buffers, argument, &PlannedBuffer::argument);
        if (type.ends_with("**")) {
            memory += fmt::format("    void* {} = 0;\n", name);
            arguments += fmt::format("&{}", name);
        } else if (buffer == plan.buffers.end()) {
            arguments += fmt::format("{}", argument == Arg::ignored ? 0 : plan.arguments[argument]);
        } else if (const Range whole = buffer->whole(); whole.empty()) {
            arguments += "0";
        } else {
            memory +=
                fmt::format("    unsigned char* {} = (unsigned char*)calloc({}, 1);\n", name, whole.end - whole.begin);
            release += fmt::format("    free({});\n", name);
            arguments += fmt::format("({}){}", type, byte_of(name, -whole.begin));
        }
    }
    return fmt::format(
        "#include <stdlib.h>\n#include <tintvert.h>\n\nint main(void)\n{{\n{}    {}({});\n{}    return 0;\n}}\n",
        memory, routine.name, arguments, release);
}

}  // namespace tintvert::tool
