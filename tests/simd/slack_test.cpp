// Slack is neither read nor written: between the lines of a frame there are closed pages, and lines end or begin at
// them, at every level.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <algorithm>
#include <memory>
#include <new>
#include <set>
#include <string>
#include <vector>

#include "catalog.h"
#include "geometry.h"
#include "refusals.h"
#include "simd/simd.h"
#include "support/fence.h"

namespace tintvert::test {
namespace {

using namespace catalog;

constexpr int64_t page = 4096, stride = 4 * page, lines = 3, margin = 64 * page;

enum class Edge { begin, end };  // of a line, at a closed page

// Memory that is open where its lines are, `line` being the bytes of the first one, counted from pointer().
class Lines {
public:
    Lines(Range line, Edge edge, int64_t count = lines)
        : map_(static_cast<uint8_t*>(
              mmap(nullptr, mapped, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0)))
    {
        if (map_ == MAP_FAILED) throw std::bad_alloc();
        const int64_t bytes = line.end - line.begin, whole = (bytes + page - 1) / page * page;
        for (int64_t i = 0; i < count; ++i)
            mprotect(map_ + margin + i * stride, static_cast<size_t>(whole), PROT_READ | PROT_WRITE);
        pointer_ = map_ + margin + (edge == Edge::end ? whole - bytes : 0) - line.begin;
    }
    ~Lines() { munmap(map_, mapped); }
    Lines(const Lines&) = delete;
    Lines& operator=(const Lines&) = delete;

    int64_t address() const { return reinterpret_cast<int64_t>(pointer_); }

private:
    static constexpr size_t mapped = 4 * margin;
    uint8_t* map_;
    uint8_t* pointer_;
};

bool takes(const Routine& routine, Arg argument)
{
    return std::ranges::find(routine.arguments, argument) != routine.arguments.end();
}

const Touch* touch_of(const Extents& extents, Arg buffer)
{
    const auto* const found = std::ranges::find(extents, buffer, &Touch::buffer);
    return found == extents.end() ? nullptr : found;
}

// A call whose frames have slack, with `height` lines.
Arguments call_of(const Routine& routine, int64_t width, int64_t height)
{
    const Arguments plain = plain_call(routine, {.width = width, .height = height});
    Arguments call;
    for (const Arg argument : routine.arguments) call[argument] = plain[argument];
    call[Arg::height] = height;
    for (const Arg distance : {Arg::dstStride, Arg::srcStride, Arg::stride}) call[distance] = stride;
    return call;
}

class Slack : public testing::Test {
protected:
    ~Slack() override { highest_instruction_set = InstructionSet::avx512; }

    // Supplies every buffer. One whose lines are a stride apart gets closed slack, the others all that they need.
    void expect_no_access(const Routine& routine, int64_t width)
    {
        // Some routines do a line more than `height`.
        const bool one_more = routine.name == "tntvt_2yuv_to_alphay" || routine.name == "tntvt_2yuv_strip_chroma";
        Arguments call = call_of(routine, width, one_more ? lines - 1 : lines);
        if (!refusal(routine, call).empty()) return;
        const Extents of_all = routine.extents(call),
                      of_one = routine.extents(call_of(routine, width, one_more ? 0 : 1));
        for (const Edge edge : {Edge::begin, Edge::end}) {
            std::vector<std::unique_ptr<Lines>> buffers;
            bool has_slack = false;
            for (const Touch& touch : of_all) {
                const Touch* const line = touch_of(of_one, touch.buffer);
                const bool by_lines =
                    line != nullptr && line->touched.end - line->touched.begin <= stride - 2 * page &&
                    touch.touched == Range{line->touched.begin, line->touched.end + (lines - 1) * stride};
                buffers.push_back(by_lines ? std::make_unique<Lines>(line->touched, edge)
                                           : std::make_unique<Lines>(touch.touched, edge, 1));
                call[touch.buffer] = buffers.back()->address();
                if (by_lines) with_slack.insert(std::string{routine.name});
                has_slack = has_slack || by_lines;
            }
            if (!has_slack) return;
            for (const InstructionSet level :
                 {InstructionSet::scalar, InstructionSet::sse2, InstructionSet::avx2, InstructionSet::avx512}) {
                highest_instruction_set = level;
                EXPECT_FALSE(faults([&] { routine.call(call); }))
                    << routine.name << ", width " << width << ", level " << static_cast<int>(level)
                    << (edge == Edge::begin ? ", before" : ", after") << " a line";
            }
        }
    }

    std::set<std::string> with_slack;
};

TEST_F(Slack, is_not_accessed)
{
    for (const Routine& routine : routines()) {
        // Field change moves lines with their slack.
        if (!takes(routine, Arg::height) || takes(routine, Arg::palette) ||
            routine.name.starts_with("tntvt_change_field"))
            continue;
        for (const int64_t width : {1, 2, 7, 24, 42, 96, 97, 198}) expect_no_access(routine, width);
    }
    EXPECT_GT(with_slack.size(), 60u);
}

// With lines that are a byte short at either end the calls fault.
TEST_F(Slack, is_seen_beside_lines_that_are_a_byte_short)
{
    for (const char* const name : {"tntvt_yuvijg_rgb32", "tntvt_alphay_to_2yuv", "tntvt_yuv422_rgb24"}) {
        const Routine& routine = *find(name);
        Arguments call = call_of(routine, 98, lines);
        const Extents of_one = routine.extents(call_of(routine, 98, 1));
        for (const InstructionSet level : {InstructionSet::scalar, InstructionSet::avx512})
            for (const Arg shortened : {Arg::dst, Arg::src})
                for (const Edge edge : {Edge::begin, Edge::end}) {
                    std::vector<std::unique_ptr<Lines>> buffers;
                    for (const Touch& touch : of_one) {
                        Range line = touch.touched;
                        if (touch.buffer == shortened) edge == Edge::begin ? ++line.begin : --line.end;
                        buffers.push_back(std::make_unique<Lines>(line, edge));
                        call[touch.buffer] = buffers.back()->address();
                    }
                    highest_instruction_set = level;
                    EXPECT_TRUE(faults([&] { routine.call(call); })) << name;
                }
    }
}

}  // namespace
}  // namespace tintvert::test
