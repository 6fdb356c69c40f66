#include <tintvert/checked.h>

#include <cinttypes>
#include <cstdio>

namespace tintvert::checked {
namespace {

struct Text {
    char words[96];
};

// "4149760 bytes", and how they lie about a pointer that is not the first of them.
Text size_of(const Error& error)
{
    Text text;
    if (error.front == 0)
        std::snprintf(text.words, sizeof text.words, "%" PRIu64 " bytes", error.has);
    else
        std::snprintf(text.words, sizeof text.words, "%" PRIu64 " bytes from %" PRId64, error.has, -error.front);
    return text;
}

// "from -0 to 4149760": what is needed in front of the pointer, and behind it.
Text place_of(Range range)
{
    Text text;
    const char* const sign = range.from == 0 ? "-" : "";
    std::snprintf(text.words, sizeof text.words, "from %s%" PRId64 " to %" PRId64, sign, range.from, range.to);
    return text;
}

int write(const Error& error, char* text, size_t size)
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
            return std::snprintf(text, size, "%s: shares bytes with %s (%s), which %s does not promise to bear",
                                 error.buffer, error.other, place.words, error.routine);
        case Code::refused:
            return std::snprintf(text, size, "%s: %s", error.routine, error.why);
        case Code::failed:
            break;
    }
    return std::snprintf(text, size, "%s: a companion library threw an exception", error.routine);
}

}  // namespace

size_t Error::message(char* text, size_t size) const { return static_cast<size_t>(write(*this, text, size)); }

std::string Error::message() const
{
    std::string text(message(nullptr, 0), '\0');
    message(text.data(), text.size() + 1);
    return text;
}

}  // namespace tintvert::checked
