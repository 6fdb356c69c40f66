#include "printable.h"

#include <fmt/format.h>

#include <cstdint>

namespace tintvert::core {
namespace {

// The bytes of the UTF-8 sequence at the start of `text`, with its code point; 0 if it is invalid.
size_t decode(std::string_view text, uint32_t* code)
{
    const auto byte = [&](size_t at) { return at < text.size() ? static_cast<uint8_t>(text[at]) : 0u; };
    const uint32_t first = byte(0);
    const size_t length = first < 0x80   ? 1
                          : first < 0xC2 ? 0
                          : first < 0xE0 ? 2
                          : first < 0xF0 ? 3
                          : first < 0xF5 ? 4
                                         : 0;
    constexpr uint32_t first_bits[] = {0, 0x7F, 0x1F, 0x0F, 0x07}, smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    *code = first & first_bits[length];
    for (size_t at = 1; at < length; ++at) {
        if ((byte(at) & 0xC0) != 0x80) return 0;
        *code = *code << 6 | (byte(at) & 0x3F);
    }
    const bool is_surrogate = *code >= 0xD800 && *code < 0xE000;
    return *code < smallest[length] || is_surrogate || *code > 0x10FFFF ? 0 : length;
}

bool is_control(uint32_t code)
{
    const auto within = [code](uint32_t low, uint32_t high) { return code >= low && code <= high; };
    return code < 0x20 || within(0x7F, 0x9F) || within(0x2028, 0x202E) || within(0x2066, 0x2069);
}

}  // namespace

std::string printable(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        uint32_t code = 0;
        size_t length = decode(text, &code);
        const bool is_shown = length > 0 && !is_control(code);
        if (length == 0) length = 1;
        for (const char byte : text.substr(0, length))
            result += is_shown ? std::string(1, byte) : fmt::format("\\x{:02X}", static_cast<uint8_t>(byte));
        text.remove_prefix(length);
    }
    return result;
}

}  // namespace tintvert::core
