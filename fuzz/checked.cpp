// Any routine through its checked call, with any numbers and buffers. What the checked layer lets through may not
// fault, hang or write beside its extents, and what it does not let through touches nothing.
//
//     routine   way   a number for each number argument   content
//
// The way says whether buffers are exactly as large as asked for, one of them a byte short, all of them in one
// block, or of any size.
#include <zkutil.h>

#include <algorithm>
#include <cstring>

#include "block.h"
#include "checked_call.h"
#include "extents.h"
#include "input.h"
#include "must.h"
#include "routine_id.h"

namespace tintvert::fuzz {
namespace {

using catalog::Arg;
using catalog::Range;
using checked::Code;

constexpr int64_t most_pixels = 1 << 16, most_bytes = 1 << 17;

bool takes(const catalog::Routine& routine, Arg argument)
{
    return std::ranges::find(routine.arguments, argument) != routine.arguments.end();
}

int64_t size_of(int64_t number)
{
    return std::min<int64_t>(number == INT64_MIN ? INT64_MAX : std::abs(number), int64_t{1} << 31);
}

// Long calls are right and slow: numbers beyond this are for the checked layer alone.
bool is_quick(const catalog::Arguments& numbers)
{
    int64_t longest = 1;
    for (const Arg size : {Arg::width, Arg::pixels, Arg::count, Arg::groups, Arg::total, Arg::bytes, Arg::size,
                           Arg::pgroupCount, Arg::payloadSize})
        longest = std::max(longest, size_of(numbers[size]));
    return longest * std::max<int64_t>(size_of(numbers[Arg::height]), 1) <= most_pixels;
}

struct Touch {
    Arg buffer;
    Range read, written;

    Range all() const
    {
        const Range both = catalog::extents::join(read, written);
        return both.empty() ? Range{} : both;
    }
};

Range range_of(checked::Range range) { return {range.from, range.to}; }

Arg argument_of(const char* name)
{
    size_t i = 0;
    while (describe(static_cast<Arg>(i)).name != name) ++i;
    return static_cast<Arg>(i);
}

class Case {
public:
    Case(const uint8_t* data, size_t size) : input_(data, size)
    {
        id_ = input_.byte() % catalog::routine_count;
        way_ = input_.byte();
        for (const Arg argument : routine().arguments)
            if (argument != Arg::ignored && describe(argument).kind == catalog::Argument::number)
                numbers_[argument] = any_number(input_);
        has_stream_ = takes(routine(), Arg::palette);
        has_blocks_ = takes(routine(), Arg::raw);
    }

    void run()
    {
        ask_about_far_buffers();
        if (has_stream_) place(Arg::src, {0, static_cast<int64_t>(input_.rest().size())});
        if (!asked()) return;
        int64_t bytes = 0;
        for (const Touch& touch : touches_) bytes += touch.all().end - touch.all().begin;
        if (!is_quick(numbers_) || obtains_a_long_line() || bytes > most_bytes) return;
        const bool in_one = (way_ & 3) == 2 && !has_stream_ && !has_blocks_;
        if (in_one)
            together();
        else if ((way_ & 3) == 3)
            of_any_size();
        else if ((way_ & 3) == 1)
            one_byte_short();
        else
            exact();
    }

private:
    const catalog::Routine& routine() const { return catalog::routines()[id_]; }
    size_t lead() const { return way_ >> 3 & 7; }
    const char* name() const { return routine().name.data(); }

    // A routine that frees pointers is given nulls.
    std::span<const uint8_t> pattern() const
    {
        return routine().name == "free_own_cache_lines" ? std::span<const uint8_t>() : input_.rest();
    }

    void place(Arg argument, Range range)
    {
        blocks_.emplace_back(range, lead(), pattern());
        owners_.push_back(argument);
        buffers_[static_cast<size_t>(argument)] = blocks_.back().buffer();
    }

    // Flips in place take a line of memory even if they turn none.
    bool obtains_a_long_line() const
    {
        const auto is_long = [&](Arg stride) { return static_cast<uint32_t>(numbers_[stride]) > most_bytes; };
        return routine().chapter == "field" && (is_long(Arg::stride) || is_long(Arg::dstStride));
    }

    // Buffers of their own, which nobody reads: to some routines null is something else.
    void ask_about_far_buffers()
    {
        for (size_t i = 0; i < buffers_.size(); ++i)
            buffers_[i] = checked::Buffer(reinterpret_cast<void*>((i + 1) << 40), size_t{0});
    }

    // The extents, unless the numbers are refused: then they are refused without the question too.
    bool asked()
    {
        checked::Extents reported;
        const Answer answer = call_checked(id_, numbers_, buffers_, {false, &reported});
        if (!answer.error.ok()) {
            must(answer.error.code == Code::refused, "a question is refused or answered", name());
            must(call_checked(id_, numbers_, buffers_, {}).error.code == Code::refused, "what is refused stays so",
                 name());
            return false;
        }
        touches_.clear();
        for (const checked::Touch& touch : reported)
            touches_.push_back({argument_of(touch.buffer), range_of(touch.read), range_of(touch.written)});
        return true;
    }

    bool is_stream(const Touch& touch) const { return has_stream_ && touch.buffer == Arg::src; }

    bool stream_ends() const
    {
        return std::ranges::none_of(touches_, [&](const Touch& touch) {
            return is_stream(touch) && touch.all().end > blocks_.front().range().end;
        });
    }

    void exact()
    {
        const bool with_nulls = (way_ & 0x40) != 0;  // for what is not touched
        if (with_nulls) std::ranges::fill(buffers_, checked::Buffer{});
        if (with_nulls && has_stream_) buffers_[static_cast<size_t>(Arg::src)] = blocks_.front().buffer();
        for (const Touch& touch : touches_)
            if (!is_stream(touch) && !(with_nulls && touch.all().empty())) place(touch.buffer, touch.all());
        const Code code = make();
        if (with_nulls && (code == Code::null || code == Code::refused)) return;
        must(code == (stream_ends() ? Code::ok : Code::too_small), "buffers as large as asked for do", name());
    }

    void one_byte_short()
    {
        const size_t victim = input_.byte(), side = input_.byte() & 1;
        bool is_short = false;
        for (const Touch& touch : touches_) {
            Range range = touch.all();
            if (is_stream(touch)) continue;
            if (&touch == &touches_[victim % touches_.size()] && !range.empty()) {
                is_short = true;
                side == 0 ? ++range.begin : --range.end;
            }
            place(touch.buffer, range);
        }
        const Code code = make();
        must(code == (is_short || !stream_ends() ? Code::too_small : Code::ok), "a byte less is seen", name());
    }

    void of_any_size()
    {
        for (const Touch& touch : touches_) {
            if (is_stream(touch)) continue;
            const int64_t size = input_.little_endian(2) & 0xFFF, front = any_number(input_) & 0xFFF;
            const int64_t begin = way_ & 0x80 ? -front : std::clamp<int64_t>(touch.all().begin, -0x10000, 0x10000);
            place(touch.buffer, {begin, begin + size});
        }
        make();
    }

    // Buffers are the same if their addresses are, so the call has addresses.
    void together()
    {
        constexpr int64_t base = int64_t{1} << 40;
        std::array<int64_t, catalog::argument_count> offsets{};
        for (const Touch& touch : touches_) {
            int64_t& offset = offsets[static_cast<size_t>(touch.buffer)];
            offset = any_number(input_) % 4096;
            buffers_[static_cast<size_t>(touch.buffer)] =
                checked::Buffer(reinterpret_cast<void*>(base + offset), size_t{1} << 40);
        }
        const std::vector<Touch> apart = touches_;
        if (!asked()) return;
        Range all;
        for (const Touch& touch : touches_) {
            const Range range = touch.all();
            const int64_t offset = offsets[static_cast<size_t>(touch.buffer)];
            if (!range.empty()) all = catalog::extents::join(all, {range.begin + offset, range.end + offset});
        }
        if (all.end - all.begin > most_bytes) return;
        const Block block(all, lead(), pattern());
        for (const Touch& touch : apart)
            buffers_[static_cast<size_t>(touch.buffer)] = block.buffer(offsets[static_cast<size_t>(touch.buffer)]);
        const bool allows = (way_ & 4) != 0;
        const Answer answer = call_checked(id_, numbers_, buffers_, {allows, nullptr});
        const Code code = answer.error.code;
        must(code == Code::ok || (code == Code::overlap && !allows), "one block as large as asked for does", name());
        std::vector<Range> written;
        for (const Touch& touch : touches_) {
            const int64_t offset = offsets[static_cast<size_t>(touch.buffer)];
            if (answer.error.ok() && !touch.written.empty())
                written.push_back({touch.written.begin + offset, touch.written.end + offset});
        }
        must(block.is_unchanged_beside(written), "nothing beside the extents is written", name());
    }

    Code make()
    {
        const Answer answer = call_checked(id_, numbers_, buffers_, {});
        for (size_t i = 0; i < blocks_.size(); ++i) {
            std::vector<Range> written;
            for (const Touch& touch : touches_)
                if (answer.error.ok() && touch.buffer == owners_[i]) written.push_back(touch.written);
            must(blocks_[i].is_unchanged_beside(written), "nothing beside the extents is written", name());
        }
        if (answer.error.ok() && routine().name == "malloc_own_cache_lines") {
            void* raw = nullptr;
            std::memcpy(&raw, buffers_[static_cast<size_t>(Arg::raw)].pointer(), sizeof raw);
            ZKFree(raw);
        }
        return answer.error.code;
    }

    Input input_;
    size_t id_ = 0;
    uint8_t way_ = 0;
    bool has_stream_ = false, has_blocks_ = false;
    catalog::Arguments numbers_;
    Buffers buffers_;
    std::vector<Touch> touches_;
    std::vector<Block> blocks_;
    std::vector<Arg> owners_;  // of the blocks
};

}  // namespace
}  // namespace tintvert::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    tintvert::fuzz::Case(data, size).run();
    return 0;
}
