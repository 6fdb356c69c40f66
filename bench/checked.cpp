// What a checked call adds to the bare one: every routine over two lines of 6 pixels, bare, checked and checked
// in C, in the same run. The extents follow from the numbers alone, so a larger picture costs the same; but a
// run-length coded stream is scanned to its end.
#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <tintvert.h>
#include <tintvert/checked.h>
#include <tintvert_checked.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "catalog.h"
#include "geometry.h"
#include "routine_id.h"
#include "support/call_memory.h"

namespace {

using namespace tintvert;
using namespace tintvert::catalog;
using checked::Buffer;

// Two lines of 6 pixels, or a run-length coded stream.
Arguments small_call(const Routine& routine)
{
    static constexpr uint8_t stream[] = {3, 5, 0, 1};
    Arguments numbers = plain_call(routine, {6, 2});
    if (numbers[Arg::palette] != 0) numbers[Arg::src] = reinterpret_cast<int64_t>(stream);
    numbers[Arg::streamSize] = sizeof stream;
    return numbers;
}

// One call in memory of its own: the numbers, and a buffer for each place among the arguments.
struct Prepared {
    const Routine& routine;
    Arguments numbers;
    test::Random random{1};
    test::CallMemory memory;
    std::array<Buffer, 16> at_place;
    std::array<tntvt_checked_buffer, 16> at_place_in_c;

    explicit Prepared(const Routine& of) : routine(of), numbers(small_call(of)), memory(random, of, numbers)
    {
        memory.point(numbers);
        for (test::CallMemory::Place& one : memory.places()) {
            const auto place =
                static_cast<size_t>(std::ranges::find(of.arguments, one.argument) - of.arguments.begin());
            const catalog::Range& range = one.buffer.range();
            const Buffer buffer =
                Buffer(one.buffer.pointer() + range.begin, one.buffer.bytes().size()).at(-range.begin);
            at_place[place] = buffer;
            at_place_in_c[place] = {buffer.pointer(), buffer.size(), buffer.front()};
        }
    }

    template <class Type>
    Type at(size_t place) const
    {
        if constexpr (std::is_same_v<Type, const checked::Options&>) {
            static constexpr checked::Options options{};
            return options;
        } else if constexpr (std::is_same_v<Type, const tntvt_checked_options*>) {
            return nullptr;
        } else if constexpr (std::is_same_v<Type, Buffer>) {
            return at_place[place];
        } else if constexpr (std::is_same_v<Type, tntvt_checked_buffer>) {
            return at_place_in_c[place];
        } else {
            return numbers.as<Type>(routine.arguments[place]);
        }
    }
};

// Whether the call was made.
template <class Result, class... Parameters>
bool call(const Prepared& prepared, Result (*function)(Parameters...))
{
    return [&]<size_t... place>(std::index_sequence<place...>)
    {
        if constexpr (std::is_class_v<Result>)
            return static_cast<int>(function(prepared.at<Parameters>(place)...).code) == 0;
        else
            return function(prepared.at<Parameters>(place)...), true;
    }
    (std::index_sequence_for<Parameters...>{});
}

template <auto function>
bool call_one(const Prepared& prepared)
{
    return call(prepared, function);
}

using Call = bool (*)(const Prepared&);

constexpr std::array<Call, routine_count> without_checks = {
#define TNTVT_ROUTINE(name) call_one<&::name>,
#include "routines.def"
#undef TNTVT_ROUTINE
};
constexpr std::array<Call, routine_count> in_cxx = {
#define TNTVT_ROUTINE(name) call_one<&checked::name>,
#include "routines.def"
#undef TNTVT_ROUTINE
};
constexpr std::array<Call, routine_count> in_c = {
#define TNTVT_ROUTINE(name) call_one<&checked_##name>,
#include "routines.def"
#undef TNTVT_ROUTINE
};

void run(benchmark::State& state, const Routine& routine, Call call)
{
    const Prepared prepared(routine);
    for (auto _ : state) {
        if (!call(prepared)) return state.SkipWithError("the call is refused");
        benchmark::ClobberMemory();
    }
}

// One row a routine: median ns of the processor bare, and what the two faces add.
class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred) fmt::print("{}: {}\n", run.run_name.function_name, run.error_message);
            if (run.aggregate_name == "median") medians_[run.run_name.function_name] = run.GetAdjustedCPUTime();
        }
    }

    void Finalize() override
    {
        fmt::print("{:34}{:>10}{:>14}{:>14}\n", "routine", "bare ns", "checked adds", "in C adds");
        std::vector<double> added, added_in_c;
        for (const Routine& routine : routines()) {
            const std::string name{routine.name};
            if (!medians_.contains(name + "@c")) continue;
            const double bare = medians_[name + "@bare"];
            added.push_back(medians_[name + "@checked"] - bare);
            added_in_c.push_back(medians_[name + "@c"] - bare);
            fmt::print("{:34}{:10.1f}{:14.1f}{:14.1f}\n", name, bare, added.back(), added_in_c.back());
        }
        if (added.empty()) return;
        for (std::vector<double>* column : {&added, &added_in_c}) std::ranges::sort(*column);
        fmt::print("{:34}{:>10}{:14.1f}{:14.1f}\n", "median", "", added[added.size() / 2],
                   added_in_c[added_in_c.size() / 2]);
        fmt::print("{:34}{:>10}{:14.1f}{:14.1f}\n", "most", "", added.back(), added_in_c.back());
    }

private:
    std::map<std::string, double> medians_;
};

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    for (const Routine& routine : routines()) {
        if (routine.chapter == "frame") continue;  // blocks would pile up
        const std::string name{routine.name};
        const auto id = static_cast<size_t>(id_of(routine));
        const auto add = [&](const char* face, Call call) {
            benchmark::RegisterBenchmark((name + face).c_str(), run, routine, call)->Repetitions(5)->MinTime(0.005);
        };
        add("@bare", without_checks[id]);
        add("@checked", in_cxx[id]);
        add("@c", in_c[id]);
    }
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
}
