#include "simd/agreement.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "geometry.h"
#include "refusals.h"
#include "support/call_memory.h"

namespace tintvert {
InstructionSet highest_instruction_set = InstructionSet::avx512;
}

namespace tintvert::test {
namespace {

using namespace catalog;

constexpr int64_t margin = 192;
constexpr int64_t most_bytes = 1 << 20;  // a line count that wraps asks for gigabytes

bool is_buffer(Arg argument) { return describe(argument).kind == Argument::buffer; }

int64_t any_of(Random& random, std::initializer_list<int64_t> values)
{
    return values.begin()[random.between(0, static_cast<long>(values.size()) - 1)];
}

Range around(const Extents& extents, Arg buffer) { return with_pointer(accessed_in(extents, buffer)); }

bool walks_pictures(const Routine& routine)
{
    bool picture = false;
    for (const Arg argument : routine.arguments) {
        if (argument == Arg::palette || argument == Arg::packet || argument == Arg::raw) return false;
        picture = picture || describe(argument).kind == Argument::buffer;
    }
    return picture;
}

// Memory filled from a seed, in which the buffers of a call are given their places.
class PlacedMemory {
public:
    PlacedMemory(const Routine& routine, Arguments call, const Placement& placement, uint64_t seed)
        : call_(call), extents_(routine.extents(call))
    {
        Range hull = around(extents_, Arg::dst);
        if (placement.together) {
            const Range other = around(extents_, Arg::src);
            hull = {std::min(hull.begin, other.begin + placement.src), std::max(hull.end, other.end + placement.src)};
        }
        place(Arg::dst, hull, placement.dst);
        for (const Arg argument : routine.arguments) {
            if (!is_buffer(argument) || argument == Arg::dst) continue;
            if (argument == Arg::src && placement.together)
                offsets_.push_back({argument, offsets_[0].offset + placement.src});
            else
                place(argument, around(extents_, argument), argument == Arg::src ? placement.src : placement.dst);
        }
        bytes_.resize(static_cast<size_t>(end_ + 64));
        Random random(seed);
        for (uint8_t* byte = base(); byte < base() + end_; ++byte) *byte = static_cast<uint8_t>(random.next());
    }

    void run(const Routine& routine)
    {
        for (const Place& place : offsets_) call_[place.buffer] = reinterpret_cast<int64_t>(base() + place.offset);
        routine.call(call_);
    }

    // The first byte that differs, or -1.
    int64_t differs_from(const PlacedMemory& other) const
    {
        const uint8_t *mine = base(), *its = other.base();
        if (std::memcmp(mine, its, static_cast<size_t>(end_)) == 0) return -1;
        return std::mismatch(mine, mine + end_, its).first - mine;
    }

    void name_place(int64_t byte, testing::AssertionResult* result) const
    {
        for (const Place& place : offsets_)
            *result << " " << describe(place.buffer).name << "[" << byte - place.offset << "]";
    }

private:
    struct Place {
        Arg buffer;
        int64_t offset;
    };

    void place(Arg buffer, Range hull, int64_t misalignment)
    {
        const int64_t pointer = (end_ + margin - hull.begin + 63) / 64 * 64 + misalignment;
        offsets_.push_back({buffer, pointer});
        end_ = pointer + hull.end + margin;
    }

    // The fill is counted from here, so that two memories agree wherever the allocator puts them.
    uint8_t* base() { return const_cast<uint8_t*>(std::as_const(*this).base()); }
    const uint8_t* base() const
    {
        const auto address = reinterpret_cast<uintptr_t>(bytes_.data());
        return bytes_.data() + (64 - address % 64) % 64;
    }

    Arguments call_;
    Extents extents_;
    std::vector<Place> offsets_;
    std::vector<uint8_t> bytes_;
    int64_t end_ = 0;
};

}  // namespace

std::vector<const Routine*> routines_of_pictures()
{
    std::vector<const Routine*> result;
    for (const Routine& routine : routines())
        if (walks_pictures(routine)) result.push_back(&routine);
    return result;
}

std::vector<InstructionSet> levels()
{
    std::vector<InstructionSet> result;
    for (const InstructionSet level : {InstructionSet::sse2, InstructionSet::avx2, InstructionSet::avx512})
        if (level <= machine_instruction_set()) result.push_back(level);
    return result;
}

bool random_call(Random& random, const Routine& routine, int64_t width, Arguments* call)
{
    const int64_t scale = takes(routine, Arg::scale) ? any_of(random, {1, 2, 4}) : 1;
    *call = plain_call(routine, {.width = width, .height = random.between(1, 5), .scale = scale});
    Arguments& c = *call;
    const int64_t slack = any_of(random, {0, 0, 1, 2, 4, 16, 64, 77});
    c[Arg::dstStride] += slack;
    c[Arg::srcStride] += any_of(random, {0, slack, 1, 4, 8, 64});
    if (routine.name == "tntvt_rgba_full") {  // the sizes of a pixel follow from its strides
        c[Arg::dstStride] = width * any_of(random, {3, 4}) + std::min(slack, width / 2);
        c[Arg::srcStride] = width * any_of(random, {3, 4, 4, 8});
    }
    // A flip of fields keeps a line of the source in a scratch line of the destination's length.
    if (routine.shape->name == "field_change") c[Arg::srcStride] = std::min(c[Arg::srcStride], c[Arg::dstStride]);
    c[Arg::stride] += any_of(random, {0, 0, 4, 6, 64});
    c[Arg::bits] = any_of(random, {16, 16, 12, 10, 8, 14, 9, 7});
    c[Arg::order] = random.between(0, 3);
    for (const Arg option : {Arg::swapBytes, Arg::flipLines, Arg::interlaced, Arg::bgra, Arg::bgraOrder, Arg::hasAlpha,
                             Arg::up, Arg::keepMargins})
        c[option] = random.between(0, 1);
    c[Arg::alpha] = random.between(0, 255);
    c[Arg::mode] = random.between(0, 18);
    c[Arg::startPhase] = any_of(random, {0, 2, 4});
    c[Arg::threshold] = any_of(random, {0, 3, 40});
    c[Arg::softness] = any_of(random, {0, 5, 200});
    c[Arg::fourcc] = any_of(random, {c[Arg::fourcc], 0x30313276, 0x79757632});
    c[Arg::bytes] = width;
    const bool signed_height = routine.chapter == "rgb" && routine.shape->name.starts_with("strided");
    if (signed_height && random.between(0, 3) == 0) c[Arg::height] = -c[Arg::height];
    if (!refusal(routine, c).empty()) return false;
    for (const Touch& touch : routine.extents(c))
        if (around(routine.extents(c), touch.buffer).end > most_bytes) return false;
    return true;
}

testing::AssertionResult agrees(const Routine& routine, const Arguments& call, const Placement& placement,
                                InstructionSet level, uint64_t seed)
{
    PlacedMemory expected(routine, call, placement, seed), actual(routine, call, placement, seed);
    highest_instruction_set = InstructionSet::scalar;
    expected.run(routine);
    highest_instruction_set = level;
    actual.run(routine);
    const int64_t byte = actual.differs_from(expected);
    if (byte < 0) return testing::AssertionSuccess();
    testing::AssertionResult result = testing::AssertionFailure();
    result << routine.name << " at level " << static_cast<int>(level) << ":";
    actual.name_place(byte, &result);
    for (const Arg argument : routine.arguments)
        if (!is_buffer(argument)) result << " " << describe(argument).name << "=" << call[argument];
    return result << ", dst at " << placement.dst << ", src at " << placement.src
                  << (placement.together ? " from dst" : "");
}

}  // namespace tintvert::test
