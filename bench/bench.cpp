// Every routine of the catalogue at every level of the machine, over a 1080p frame and over a slice of sixteen
// lines, beside memcpy of the same bytes and beside the peers, in one run.
#include <benchmark/benchmark.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "measured.h"
#include "peers/peers.h"
#include "simd/simd.h"
#include "table.h"

namespace tintvert {
InstructionSet highest_instruction_set = InstructionSet::avx512;
}

using namespace tintvert;
using namespace tintvert::bench;

namespace {

constexpr struct {
    const char* name;
    InstructionSet level;
} levels[] = {{"scalar", InstructionSet::scalar},
              {"sse2", InstructionSet::sse2},
              {"avx2", InstructionSet::avx2},
              {"avx512", InstructionSet::avx512}};

// The processor's own name for itself.
std::string machine()
{
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.starts_with("model name")) return line.substr(line.find(": ") + 2);
    return "an unnamed processor";
}

std::string today()
{
    char text[16];
    const std::time_t now = std::time(nullptr);
    std::strftime(text, sizeof text, "%Y-%m-%d", std::gmtime(&now));
    return text;
}

template <class Work>
void repeat(benchmark::State& state, Work work)
{
    for (auto _ : state) {
        work();
        benchmark::ClobberMemory();
    }
}

void run_memcpy(benchmark::State& state, int64_t moved)
{
    const Placed to(0, moved / 2, 0), from(0, moved / 2, 1);
    repeat(state, [&] { std::memcpy(to.pointer(), from.pointer(), static_cast<size_t>(moved / 2)); });
}

void run_level(benchmark::State& state, const catalog::Routine* routine, const Size* size, InstructionSet level)
{
    const Measured measured(*routine, *size);
    highest_instruction_set = level;
    repeat(state, [&] { routine->call(measured.call); });
}

void run_peer(benchmark::State& state, const catalog::Routine* routine, const Size* size, size_t index)
{
    const Measured measured(*routine, *size);
    const Peer peer = peers_of(*routine, measured)[index];
    repeat(state, peer.work);
}

void add(const catalog::Routine& routine, const Size& size)
{
    const Measured measured(routine, size);
    if (measured.moved == 0) return;
    const std::string prefix = std::string{routine.name} + '@' + size.name + '@';
    benchmark::RegisterBenchmark((prefix + "memcpy").c_str(), run_memcpy, measured.moved);
    for (const auto& [name, level] : levels)
        if (level <= machine_instruction_set())
            benchmark::RegisterBenchmark((prefix + name).c_str(), run_level, &routine, &size, level);
    const std::vector<Peer> peers = peers_of(routine, measured);
    for (size_t i = 0; i < peers.size(); ++i)
        benchmark::RegisterBenchmark((prefix + peers[i].name).c_str(), run_peer, &routine, &size, i);
}

class Collected : public benchmark::BenchmarkReporter {
public:
    Medians medians;

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.aggregate_name == "median") medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
};

void write(const std::string& path, const std::string& text)
{
    std::ofstream file(path);
    file << text;
    if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    CLI::App app{"Measures the routines of libtintvert."};
    bool json = false;
    std::string docs;
    app.add_flag("--json", json, "Print JSON");
    app.add_option("--docs", docs, "Write performance.md and performance.dat to this folder");
    CLI11_PARSE(app, argc, argv);

    for (const catalog::Routine& routine : catalog::routines()) {
        // The scratch pair moves nothing, and its blocks would pile up; one group of samples is no picture.
        if (routine.chapter == "frame" || routine.shape->name == "split_group") continue;
        for (const Size& size : sizes) add(routine, size);
    }
    Collected collected;
    benchmark::RunSpecifiedBenchmarks(&collected);
    const std::vector<Row> rows = rows_of(collected.medians);
    if (!docs.empty()) {
        write(docs + "/performance.md", as_markdown(rows, machine(), today()));
        write(docs + "/performance.dat", as_plot_data(rows));
    }
    std::cout << (json ? as_json(rows, machine()) : as_text(rows));
}
