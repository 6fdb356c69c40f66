// Writes what is alike for all routines: the two headers of declarations, which are kept in include/tintvert/,
// and the two files of definitions, which are made anew in each build.
#include <iostream>
#include <string>
#include <string_view>

#include "catalog.h"

using tintvert::catalog::Arg;
using tintvert::catalog::Routine;

namespace {

bool is_pointer(std::string_view type) { return type.ends_with('*'); }

std::string parameters(const Routine& routine, std::string_view buffer)
{
    std::string text;
    for (size_t i = 0; i < routine.arguments.size(); ++i) {
        text += is_pointer(routine.types[i]) ? buffer : routine.types[i];
        if (routine.arguments[i] != Arg::ignored) text += ' ' + std::string{describe(routine.arguments[i]).name};
        text += ", ";
    }
    return text;
}

// The arguments that the routine does not ignore, by name and with their values.
std::string definition(const Routine& routine, const std::string& declaration, const std::string& run)
{
    std::string arguments, values;
    for (const Arg argument : routine.arguments) {
        if (argument == Arg::ignored) continue;
        arguments += ", Arg::" + std::string{describe(argument).name};
        values += ", " + std::string{describe(argument).name};
    }
    return '\n' + declaration + "\n{\n    return " + run + '<' + std::string{routine.result} + arguments +
           ">(RoutineId::" + std::string{routine.name} + ", options" + values + ");\n}\n";
}

std::string comment(const Routine& routine, std::string_view open, std::string_view close)
{
    return std::string{open} + ' ' + std::string{routine.summary} + std::string{close} + '\n';
}

std::string declaration(const Routine& routine)
{
    return "Result<" + std::string{routine.result} + "> " + std::string{routine.name} + '(' +
           parameters(routine, "Buffer");
}

std::string c_declaration(const Routine& routine)
{
    return "tntvt_checked_result checked_" + std::string{routine.name} + '(' +
           parameters(routine, "tntvt_checked_buffer") + "const tntvt_checked_options* options)";
}

template <class Entry>
std::string all(Entry entry)
{
    std::string text;
    for (const Routine& routine : tintvert::catalog::routines()) text += entry(routine);
    return text;
}

std::string header()
{
    return "// Made from the catalogue by checked_generate; do not edit. Included by <tintvert/checked.h>.\n"
           "#ifndef TINTVERT_CHECKED_ROUTINES_H\n#define TINTVERT_CHECKED_ROUTINES_H\n\n"
           "#include <tintvert/checked.h>\n\nnamespace tintvert::checked {\n" +
           all([](const Routine& routine) {
               return '\n' + comment(routine, "//", "") + declaration(routine) + "const Options& options = {});\n";
           }) +
           "\n}  // namespace tintvert::checked\n\n#endif\n";
}

std::string c_header()
{
    return "/* Made from the catalogue by checked_generate; do not edit. Included by <tintvert_checked.h>. */\n"
           "#ifndef TINTVERT_CHECKED_C_ROUTINES_H\n#define TINTVERT_CHECKED_C_ROUTINES_H\n\n"
           "#include <tintvert_checked.h>\n\n"
           "#ifdef __cplusplus\nextern \"C\" {\n#endif\n" +
           all([](const Routine& routine) {
               return '\n' + comment(routine, "/*", " */") + c_declaration(routine) + ";\n";
           }) +
           "\n#ifdef __cplusplus\n}\n#endif\n\n#endif\n";
}

std::string definitions()
{
    return "#include \"call.h\"\n\nnamespace tintvert::checked {\n\nusing catalog::Arg;\nusing catalog::RoutineId;\n" +
           all([](const Routine& routine) {
               return definition(routine, declaration(routine) + "const Options& options)", "run");
           }) +
           "\n}  // namespace tintvert::checked\n";
}

std::string c_definitions()
{
    return "#include \"c_face.h\"\n\nusing namespace tintvert::checked;\n"
           "using tintvert::catalog::Arg;\nusing tintvert::catalog::RoutineId;\n" +
           all([](const Routine& routine) { return definition(routine, c_declaration(routine), "run_in_c"); });
}

}  // namespace

int main(int argc, char** argv)
{
    const std::string_view what = argc == 2 ? argv[1] : "";
    if (what == "header")
        std::cout << header();
    else if (what == "c_header")
        std::cout << c_header();
    else if (what == "definitions")
        std::cout << definitions();
    else if (what == "c_definitions")
        std::cout << c_definitions();
    else
        return std::cerr << "checked_generate: header, c_header, definitions or c_definitions\n", 2;
}
