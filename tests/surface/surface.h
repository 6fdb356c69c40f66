// What a library shows to the outside, read from the built file and from the headers.
#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace tintvert::test {

using Names = std::set<std::string>;

// A shell command's standard output and error together, and its exit status. The text that it gets as its
// standard input has no apostrophe.
struct Ran {
    int status;
    std::string output;
};
Ran run(const std::string& command, const std::string& input = "");

std::string contents(const std::filesystem::path& file);

// The dynamic symbols that `library` defines: names, and the version node of each after an @.
Names defined_symbols(const std::filesystem::path& library);

// The dynamic symbols that `library` must find elsewhere, weak ones left out, with an @ and the version if
// they were bound to one.
Names undefined_symbols(const std::filesystem::path& library);

// The functions that a header declares with a mark that ends in _API.
Names declared_functions(const std::string& header);

// The string literals of an object file.
Names string_literals(const std::filesystem::path& object);

// What is in one set and not in the other, a line each; empty if they are equal.
std::string difference(const Names& got, const Names& expected);

}  // namespace tintvert::test
