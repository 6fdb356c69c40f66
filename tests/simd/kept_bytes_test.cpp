// Bytes that a routine does not write are not stored, not even as they were: another thread may own them.
//
// A routine runs one instruction at a time, and after each the bytes that its scalar code keeps get a new value, as
// from that other thread. A load and a later store of such a byte bring an older value back.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "simd/agreement.h"
#include "support/call_memory.h"
#include "support/fence.h"
#include "support/random_call.h"
#include "support/sanitized.h"
#include "support/single_step.h"

namespace tintvert::test {
namespace {

using namespace catalog;

constexpr int64_t margin = 64;

// Pgroups begin and end inside words, whose other fields they keep. By definition such a word is stored whole.
bool fills_words(const Routine& routine)
{
    return routine.name == "tntvt_4175_to_v210" || routine.name == "tntvt_YCbCr10Packed_to_v210";
}

// The bytes of another thread. Each has the same value, which grows.
class Bystander {
public:
    explicit Bystander(std::vector<uint8_t*> bytes) : bytes_(std::move(bytes)) { update(); }

    bool after_instruction()
    {
        for (const uint8_t* byte : bytes_)
            if (*byte != value_ && lost_ == nullptr) lost_ = byte;
        update();
        return lost_ == nullptr;
    }
    const uint8_t* lost() const { return lost_; }  // the first byte whose update was lost, or null

private:
    void update()
    {
        ++value_;
        for (uint8_t* byte : bytes_) *byte = value_;
    }

    std::vector<uint8_t*> bytes_;
    uint8_t value_ = 0;
    const uint8_t* lost_ = nullptr;
};

// The buffers of one call, each with a margin.
class Buffers {
public:
    Buffers(const Routine& routine, const Arguments& call) : call_(call)
    {
        const Extents extents = routine.extents(call);
        for (const Arg argument : routine.arguments) {
            if (describe(argument).kind != Argument::buffer) continue;
            const Range touched = accessed_in(extents, argument);
            const bool written = std::ranges::any_of(
                extents, [&](const Touch& touch) { return touch.buffer == argument && !touch.written.empty(); });
            const auto bytes = static_cast<size_t>(touched.end - touched.begin + 2 * margin);
            buffers_.push_back({argument, written, std::vector<uint8_t>(bytes)});
            call_[argument] = reinterpret_cast<int64_t>(buffers_.back().bytes.data() + margin - touched.begin);
        }
    }

    void fill(Random& random)
    {
        for (Buffer& buffer : buffers_)
            for (uint8_t& byte : buffer.bytes) byte = static_cast<uint8_t>(random.next());
    }

    void run(const Routine& routine) const { routine.call(call_); }

    // The bytes of buffers that the routine writes which keep their values in scalar code, whatever these are. Of a
    // line that is corrected in place that is said by `may_keep`, since most of it is only read.
    std::vector<uint8_t*> kept_by(const Routine& routine, Random& random)
    {
        highest_instruction_set = InstructionSet::scalar;
        std::vector<std::vector<bool>> changed;
        for (const Buffer& buffer : buffers_) changed.emplace_back(buffer.bytes.size());
        for (int round = 0; round < 6; ++round) {
            fill(random);
            const std::vector<Buffer> before = buffers_;
            run(routine);
            for (size_t b = 0; b < buffers_.size(); ++b)
                for (size_t i = 0; i < buffers_[b].bytes.size(); ++i)
                    if (buffers_[b].bytes[i] != before[b].bytes[i]) changed[b][i] = true;
        }
        std::vector<uint8_t*> result;
        for (size_t b = 0; b < buffers_.size(); ++b)
            for (size_t i = 0; i < buffers_[b].bytes.size(); ++i)
                if (buffers_[b].written && may_keep(buffers_[b], i) && !is_stored(routine, buffers_[b], changed[b], i))
                    result.push_back(&buffers_[b].bytes[i]);
        return result;
    }

private:
    struct Buffer {
        Arg argument;
        bool written;
        std::vector<uint8_t> bytes;
    };

    int64_t place_of(const Buffer& buffer, size_t i) const
    {
        return reinterpret_cast<int64_t>(&buffer.bytes[i]) - call_[buffer.argument];
    }

    bool may_keep(const Buffer& buffer, size_t i) const
    {
        return buffer.argument != Arg::buf || place_of(buffer, i) % 2 == 0;
    }

    bool is_stored(const Routine& routine, const Buffer& buffer, const std::vector<bool>& changed, size_t i) const
    {
        if (!fills_words(routine)) return changed[i];
        const size_t word = i - static_cast<size_t>(place_of(buffer, i) & 3), end = std::min(word + 4, changed.size());
        for (size_t n = word; n < end; ++n)
            if (changed[n]) return true;
        return false;
    }

    Arguments call_;
    std::vector<Buffer> buffers_;
};

constexpr long most_instructions = 4'000;  // a step takes microseconds

bool loses_updates(const Routine& routine, const Arguments& call, InstructionSet level, Random& random)
{
    Buffers buffers(routine, call);
    Bystander bystander(buffers.kept_by(routine, random));
    highest_instruction_set = level;
    long count = 0;
    single_step([&] { buffers.run(routine); },
                [&] { return bystander.after_instruction() && ++count < most_instructions; });
    return bystander.lost() != nullptr;
}

class KeptBytes : public testing::TestWithParam<const Routine*> {
protected:
    void SetUp() override
    {
        if (sanitized || !can_single_step()) GTEST_SKIP() << "no single steps here";
    }
    ~KeptBytes() override { highest_instruction_set = InstructionSet::avx512; }

    const Routine& routine = *GetParam();
    Random random{std::hash<std::string_view>{}(routine.name)};
};

TEST_P(KeptBytes, are_not_stored)
{
    const bool has_modes = routine.name == "tntvt_2yuv_average_2y";
    for (int round = 0; round < (has_modes || fills_words(routine) ? 6 : 2); ++round) {
        Arguments call;
        if (!random_call(random, routine, random.between(70, 150), &call)) continue;
        if (has_modes) call[Arg::mode] = round + 1;
        for (const InstructionSet level : levels())
            EXPECT_FALSE(loses_updates(routine, call, level, random)) << "level " << static_cast<int>(level);
    }
}

std::vector<const Routine*> routines_that_write()
{
    std::vector<const Routine*> result;
    for (const Routine& routine : routines())
        if (std::ranges::any_of(routine.arguments, [](Arg a) { return describe(a).kind == Argument::buffer; }) &&
            std::ranges::none_of(routine.arguments,
                                 [](Arg a) { return a == Arg::palette || a == Arg::packet || a == Arg::raw; }))
            result.push_back(&routine);
    return result;
}

INSTANTIATE_TEST_SUITE_P(Routines, KeptBytes, testing::ValuesIn(routines_that_write()),
                         [](const auto& routine) { return std::string{routine.param->name}; });

// A step that stores its neighbours as they were is seen, and one that stores its own byte is not.
TEST(KeptBytesHarness, sees_a_store_of_what_was_there)
{
    if (sanitized || !can_single_step()) GTEST_SKIP() << "no single steps here";
    alignas(4) uint8_t pixel[4] = {};
    const auto loses = [&](const std::function<void()>& work) {
        Bystander bystander({pixel, pixel + 1, pixel + 2});
        single_step(work, [&] { return bystander.after_instruction(); });
        return bystander.lost() != nullptr;
    };
    auto* const word = reinterpret_cast<volatile uint32_t*>(pixel);
    volatile uint8_t* const alpha = pixel + 3;
    EXPECT_TRUE(loses([&] {
        volatile uint32_t held = *word;  // so that load and store are two instructions
        *word = held | 0xFF000000;
    }));
    EXPECT_FALSE(loses([&] { *alpha = 0xFF; }));
}

// A line without errors stays as it is, in memory that may only be read. Luma is 100 throughout.
TEST(KeptLine, without_errors_is_not_stored)
{
    for (const InstructionSet level :
         {InstructionSet::scalar, InstructionSet::sse2, InstructionSet::avx2, InstructionSet::avx512})
        for (const int64_t bytes : {2, 5, 6, 64, 300, 4000})
            for (int mode = 2; mode <= 6; ++mode) {
                auto* const page = static_cast<uint8_t*>(
                    mmap(nullptr, 8192, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
                ASSERT_NE(page, MAP_FAILED);
                std::memset(page, 100, 8192);
                mprotect(page, 8192, PROT_READ);
                highest_instruction_set = level;
                EXPECT_FALSE(faults([&] { tntvt_2yuv_average_2y(page, static_cast<unsigned>(bytes), mode); }))
                    << "level " << static_cast<int>(level) << ", " << bytes << " bytes, mode " << mode;
                munmap(page, 8192);
            }
    highest_instruction_set = InstructionSet::avx512;
}

}  // namespace
}  // namespace tintvert::test
