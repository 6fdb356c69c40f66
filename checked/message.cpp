#include <tintvert/checked.h>

#include <cinttypes>
#include <cstdio>

namespace tintvert::checked {
namespace {

struct Text {
    char words[96];
};

// "4149760 bytes", and where they begin about a pointer that is not to the first of them.
Text size_of(const Status& error)
{
    Text text;
    if (error.front == 0)
        std::snprintf(text.words, sizeof text.words, "%" PRIu64 " bytes", error.has);
    else
        std::snprintf(text.words, sizeof text.words, "%" PRIu64 " bytes from %" PRId64, error.has, -error.front);
    return text;
}

// "bytes 0-4149759", or "bytes -120 to -61" where some lie before the pointer.
Text place_of(Range range)
{
    Text text;
    const char* const to = range.from < 0 ? " to " : "-";
    std::snprintf(text.words, sizeof text.words, "bytes %" PRId64 "%s%" PRId64, range.from, to, range.to - 1);
    return text;
}

int write(const Status& error, char* text, size_t size)
{
    const Text place = place_of(error.where);
    switch (error.code) {
        case Code::ok:
            return std::snprintf(text, size, "ok");
        case Code::null:
            return std::snprintf(text, size, "%s: null, needs %" PRIu64 " (%s)", error.buffer, error.needs,
                                 place.words);
        case Code::too_small:
            return std::snprintf(text, size, "%s: %s, needs %" PRIu64 " (%s)", error.buffer, size_of(error).words,
                                 error.needs, place.words);
        case Code::overlap:
            return std::snprintf(text, size, "%s: shares bytes with %s (%s), which %s does not support", error.buffer,
                                 error.other, place.words, error.routine);
        case Code::refused:
            return std::snprintf(text, size, "%s: %s", error.routine, error.why);
        case Code::failed:
            break;
    }
    return std::snprintf(text, size, "%s: a companion library threw an exception", error.routine);
}

}  // namespace

size_t Status::message(char* text, size_t size) const { return static_cast<size_t>(write(*this, text, size)); }

std::string Status::message() const
{
    std::string text(message(nullptr, 0), '\0');
    message(text.data(), text.size() + 1);
    return text;
}

}  // namespace tintvert::checked
