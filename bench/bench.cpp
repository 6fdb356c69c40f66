// Every routine of the catalogue over a 1080p frame and over a slice of sixteen lines, beside memcpy of the
// same bytes in the same run.
#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "catalog.h"
#include "geometry.h"

using namespace tintvert::catalog;

namespace {

struct Size {
    const char* name;
    int64_t width, height;
};
constexpr Size sizes[] = {{"slice", 1920, 16}, {"frame", 1920, 1080}};

// The buffers of one call, filled with a pattern that has every byte value.
struct Prepared {
    Arguments call;
    std::vector<std::vector<uint8_t>> buffers;
    int64_t moved = 0;  // bytes read and written

    Prepared(const Routine& routine, const Size& size) : call(plain_call(routine, {size.width, size.height}))
    {
        for (const Touch& touch : routine.extents(call)) {
            const Range read = touch.read, written = touch.written;
            const int64_t begin = std::min({int64_t{0}, read.begin, written.begin});
            const int64_t end = std::max({int64_t{0}, read.end, written.end});
            auto& buffer = buffers.emplace_back(static_cast<size_t>(end - begin));
            for (size_t i = 0; i < buffer.size(); ++i) buffer[i] = static_cast<uint8_t>(i * 167 >> 3);
            call[touch.buffer] = reinterpret_cast<int64_t>(buffer.data() - begin);
            if (!read.empty()) moved += read.end - read.begin;
            if (!written.empty()) moved += written.end - written.begin;
        }
    }
};

void run_routine(benchmark::State& state, const Routine& routine, const Size& size)
{
    Prepared prepared(routine, size);
    for (auto _ : state) {
        routine.call(prepared.call);
        benchmark::ClobberMemory();
    }
}

void run_memcpy(benchmark::State& state, int64_t moved)
{
    std::vector<uint8_t> from(static_cast<size_t>(moved / 2), 1), to(from.size());
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::ClobberMemory();
    }
}

// One row a routine: median ns a pixel, and the ratio to memcpy, for each size.
class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.aggregate_name == "median") medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }

    void Finalize() override
    {
        fmt::print("{:34}", "routine");
        for (const Size& size : sizes) fmt::print("{:>12} ns/px {:>9}", size.name, "x memcpy");
        fmt::print("\n");
        for (const Routine& routine : routines()) {
            const std::string name{routine.name};
            if (!medians_.contains(name + '@' + sizes[0].name)) continue;
            fmt::print("{:34}", name);
            for (const Size& size : sizes) {
                const std::string key = name + '@' + size.name;
                const double ns = medians_.at(key), copy = medians_.at(key + "@memcpy");
                fmt::print("{:18.3f} {:9.2f}", ns / static_cast<double>(size.width * size.height), ns / copy);
            }
            fmt::print("\n");
        }
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
        if (routine.chapter == "frame") continue;  // nothing there is moved, and blocks would pile up
        for (const Size& size : sizes) {
            const int64_t moved = Prepared(routine, size).moved;
            if (moved == 0) continue;
            const std::string name = std::string{routine.name} + '@' + size.name;
            benchmark::RegisterBenchmark(name.c_str(), run_routine, routine, size);
            benchmark::RegisterBenchmark((name + "@memcpy").c_str(), run_memcpy, moved);
        }
    }
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
}
