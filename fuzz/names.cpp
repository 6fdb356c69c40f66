// The sizes and the words in the name of a raw file.
#include <algorithm>
#include <cctype>
#include <string>

#include "inspect/name_hints.h"
#include "must.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using tintvert::fuzz::must;
    const auto hints = tintvert::core::hints_of(std::string(data, data + size));
    must(hints.sizes.size() <= hints.words.size(), "a size is a word");
    for (const auto& [width, height] : hints.sizes)
        must(width > 0 && height > 0 && width < 65536 && height < 65536, "a size is sane");
    for (const std::string& word : hints.words)
        must(!word.empty() &&
                 std::ranges::all_of(word, [](unsigned char c) { return std::isalnum(c) && !std::isupper(c); }),
             "a word is of small letters and digits");
    return 0;
}
