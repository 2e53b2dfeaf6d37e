// What a typed field adds at tracing time: the example's bench_route event, three typed
// fields (PGO, BPK, BNH) and an integer through ORVANE_FIELD, against the same event
// with constant lengths. Run it under a recording session, or both tracepoints are
// disabled and cost a branch:
//   scripts/trace-record --snapshot OUTDIR build/bench/bin/tracing_cost_bench
#include "TracingCostTracepoints.h"
#include "speaker/SpeakerTracepoints.h"

#include <benchmark/benchmark.h>

namespace {

constexpr unsigned char kPrefix[kPrefixSize] = {0x01, 0x14, 0x0a, 0x01, 0x10};
constexpr unsigned char kPeer[kPeerSize] = {0x05, 0x01, 0x01, 0x00, 0x00,
                                            0x0a, 0x03, 0x65, 0x74, 0x31};
constexpr unsigned char kNextHop[kNextHopSize] = {0x01, 0x02, 0x00, 0x00, 0x00, 0x03, 0x01, 0x00,
                                                  0x00, 0x0a, 0x00, 0x1c, 0x73, 0xaa, 0xbb, 0xcc};

void typed(benchmark::State& state) {
  std::uint64_t sequence = 0;
  for (auto _ : state)
    lttng_ust_tracepoint(orvane_speaker, bench_route, kPrefix, kPeer, kNextHop, sequence++);
}

void constant(benchmark::State& state) {
  std::uint64_t sequence = 0;
  for (auto _ : state)
    lttng_ust_tracepoint(orvane_bench, constant, kPrefix, kPeer, kNextHop, sequence++);
}

} // namespace

BENCHMARK(typed);
BENCHMARK(constant);
BENCHMARK_MAIN();
