#include "calls/c_program.h"

#include <fmt/format.h>

#include <algorithm>

#include "calls/headers.h"

namespace tintvert::core {
namespace {

using catalog::Arg;
using catalog::Range;

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

std::string c_program(const RoutineCall& call)
{
    const catalog::Routine& routine = *call.routine;
    const std::vector<Parameter> parameters = parameters_of(declaration_of(routine.chapter, routine.name).prototype);
    std::string memory, arguments, release;
    for (size_t i = 0; i < routine.arguments.size(); ++i) {
        const Arg argument = routine.arguments[i];
        const std::string_view name = catalog::describe(argument).name;
        const std::string& type = parameters.at(i).type;
        if (i > 0) arguments += ", ";
        const auto buffer = std::ranges::find(call.buffers, argument, &PlannedBuffer::argument);
        if (type.ends_with("**")) {
            memory += fmt::format("    void* {} = 0;\n", name);
            arguments += fmt::format("&{}", name);
        } else if (buffer == call.buffers.end()) {
            arguments += fmt::format("{}", argument == Arg::ignored ? 0 : call.arguments[argument]);
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

}  // namespace tintvert::core
