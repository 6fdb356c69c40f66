// CopyMemoryFast of libzkutil beside memcpy, from 1 byte to 64 MiB, with both blocks aligned and with neither.
#include <benchmark/benchmark.h>
#include <zkutil.h>

#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace {

constexpr int64_t most = 64 << 20;

// The same for both, since their places in memory matter.
std::vector<uint8_t> source(most + 64, 1), target(most + 64);

template <class Copy>
void measure(benchmark::State& state, Copy copy)
{
    const auto bytes = static_cast<size_t>(state.range(0)), from = static_cast<size_t>(state.range(1)),
               to = static_cast<size_t>(state.range(2));
    for (auto _ : state) {
        copy(target.data() + to, source.data() + from, bytes);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}

void copy_memory_fast(benchmark::State& state)
{
    measure(state, [](uint8_t* to, const uint8_t* from, size_t bytes) {
        CopyMemoryFast(to, from, static_cast<unsigned int>(bytes));
    });
}

void memcpy_of_libc(benchmark::State& state)
{
    measure(state, [](uint8_t* to, const uint8_t* from, size_t bytes) { std::memcpy(to, from, bytes); });
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"bytes", "from", "to"});
    for (int64_t bytes = 1; bytes <= most; bytes *= 4)
        for (const auto& [from, to] : {std::pair{0, 0}, {1, 0}, {0, 1}, {13, 29}}) benchmark->Args({bytes, from, to});
}

}  // namespace

BENCHMARK(copy_memory_fast)->Apply(sizes);
BENCHMARK(memcpy_of_libc)->Apply(sizes);
BENCHMARK_MAIN();
