#include "surface.h"

#include <elf.h>
#include <sys/wait.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "frame/memory.h"

namespace tintvert::test {
namespace {

// Names of `nm -D` lines: the last word; the word before it is the kind.
Names symbols(const std::string& options, const std::filesystem::path& library, const std::string& kinds)
{
    const Ran nm = run(TINTVERT_NM " -D " + options + ' ' + library.string());
    if (nm.status != 0) throw std::runtime_error(nm.output);
    Names names;
    std::istringstream lines(nm.output);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string word, kind, name;
        while (words >> word) kind = std::exchange(name, word);
        if (kinds.empty() || kinds.find(kind) != std::string::npos) names.insert(name);
    }
    return names;
}

// `text` without the stretches from `begin` to `end`, which are left out as well.
std::string without(std::string text, const std::string& begin, const std::string& end)
{
    for (size_t from; (from = text.find(begin)) != std::string::npos;) {
        const size_t to = text.find(end, from + begin.size());
        text.erase(from, to == std::string::npos ? to : to + end.size() - from);
    }
    return text;
}

}  // namespace

Ran run(const std::string& command, const std::string& input)
{
    std::FILE* const pipe = popen(("printf %s '" + input + "' | " + command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) throw std::runtime_error("cannot run " + command);
    std::string output;
    for (int c; (c = std::fgetc(pipe)) != EOF;) output += static_cast<char>(c);
    return {WEXITSTATUS(pclose(pipe)), output};
}

std::string contents(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

Names defined_symbols(const std::filesystem::path& library) { return symbols("--defined-only", library, ""); }

Names undefined_symbols(const std::filesystem::path& library) { return symbols("--undefined-only", library, "U"); }

Names declared_functions(const std::string& header)
{
    const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
    const std::string code = without(without(without(header, "/*", "*/"), "//", "\n"), "#", "\n");
    Names names;
    for (size_t mark = 0; (mark = code.find("_API ", mark)) != std::string::npos; ++mark) {
        const size_t last = code.find_last_of(letters, code.find('(', mark));
        const size_t before = code.find_last_not_of(letters, last);
        names.insert(code.substr(before + 1, last - before));
    }
    return names;
}

// Compilers keep the literals apart, in sections of mergeable strings.
Names string_literals(const std::filesystem::path& object)
{
    const std::string file = contents(object);
    const auto header = load<Elf64_Ehdr>(file.data());
    Names literals;
    for (size_t i = 0; i < header.e_shnum; ++i) {
        const auto section = load<Elf64_Shdr>(file.data() + header.e_shoff + i * header.e_shentsize);
        if ((section.sh_flags & SHF_ALLOC) == 0 || (section.sh_flags & SHF_STRINGS) == 0) continue;
        std::istringstream strings(file.substr(section.sh_offset, section.sh_size));
        for (std::string literal; std::getline(strings, literal, '\0');) literals.insert(literal);
    }
    return literals;
}

std::string difference(const Names& got, const Names& expected)
{
    std::string text;
    for (const std::string& name : got)
        if (!expected.contains(name)) text += "too many: " + name + '\n';
    for (const std::string& name : expected)
        if (!got.contains(name)) text += "missing: " + name + '\n';
    return text;
}

}  // namespace tintvert::test
