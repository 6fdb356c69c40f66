#include "inspect/name_hints.h"

#include <cctype>
#include <charconv>

namespace tintvert::core {

NameHints hints_of(const std::string& name)
{
    NameHints hints;
    std::string word;
    for (const char c : name + ".") {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
            word += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            continue;
        }
        Size size{};
        const char* const end = word.data() + word.size();
        const auto width = std::from_chars(word.data(), end, size.width);
        if (width.ec == std::errc() && width.ptr != end && *width.ptr == 'x') {
            const auto height = std::from_chars(width.ptr + 1, end, size.height);
            const bool sane = size.width > 0 && size.height > 0 && size.width < 65536 && size.height < 65536;
            if (height.ec == std::errc() && height.ptr == end && sane) hints.sizes.push_back(size);
        }
        if (!word.empty()) hints.words.push_back(word);
        word.clear();
    }
    return hints;
}

}  // namespace tintvert::core
