#include "calls/conversion.h"

#include <algorithm>

#include "failure.h"
#include "refusals.h"

namespace tintvert::tool {

using catalog::Arg;

namespace {

std::vector<catalog::Content> safe_contents(const catalog::Routine& routine, const catalog::Arguments& call)
{
    if (const auto [refusal, why] = catalog::reason(routine, call); refusal != catalog::Refusal::none)
        throw Failure(Exit::unsafe, "refused: {} ({})", why, catalog::name_of(refusal));
    return catalog::contents(routine, call);
}

}  // namespace

Conversion::Conversion(const catalog::Routine& routine, catalog::Arguments call)
    : routine_(&routine), call_(call), contents_(safe_contents(routine, call))
{
    const catalog::Extents extents = routine.extents(call);
    for (const Arg argument : routine.arguments) {
        if (catalog::describe(argument).kind != catalog::Argument::buffer) continue;
        int64_t begin = 0, end = 0;
        const auto include = [&](catalog::Range range) {
            if (range.empty()) return;
            begin = std::min(begin, range.begin);
            end = std::max(end, range.end);
        };
        for (const catalog::Touch& touch : extents) {
            if (touch.buffer != argument) continue;
            include(touch.read);
            include(touch.written);
        }
        for (const catalog::Content& content : contents_)
            if (content.buffer == argument) include({content.origin, content.origin + content.bytes});
        if (argument == Arg::palette) include({0, 1024});
        Buffer& buffer =
            buffers_.emplace_back(Buffer{argument, begin, std::vector<uint8_t>(static_cast<size_t>(end - begin))});
        call_[argument] = reinterpret_cast<int64_t>(buffer.bytes.data() - begin);
    }
}

std::span<uint8_t> Conversion::part(Arg argument, int64_t origin, int64_t count)
{
    Buffer& buffer = *std::ranges::find(buffers_, argument, &Buffer::argument);
    return std::span(buffer.bytes).subspan(static_cast<size_t>(origin - buffer.begin), static_cast<size_t>(count));
}

std::vector<std::span<uint8_t>> Conversion::inputs()
{
    std::vector<std::span<uint8_t>> result;
    for (const catalog::Content& content : contents_)
        if (content.in && content.buffer != Arg::palette)
            result.push_back(part(content.buffer, content.origin, content.bytes));
    return result;
}

std::vector<std::span<uint8_t>> Conversion::outputs()
{
    std::vector<std::span<uint8_t>> result;
    for (const catalog::Content& content : contents_)
        if (content.out) result.push_back(part(content.buffer, content.origin, content.bytes));
    return result;
}

std::span<uint8_t> Conversion::bytes(Arg buffer, int64_t count) { return part(buffer, 0, count); }

void Conversion::clear()
{
    for (Buffer& buffer : buffers_) std::ranges::fill(buffer.bytes, uint8_t{0});
}

void Conversion::run() { routine_->call(call_); }

}  // namespace tintvert::tool
