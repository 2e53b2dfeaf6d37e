// What formatting costs: for every registered id, formatting its representative value
// (its first line in examples/demo.txt) into a reused stream; for a mixed corpus (a
// generated trace), measuring and formatting every value end to end. Each sits beside
// its floor: writing the same finished text into the same stream with one write call.
//
// Flags besides Google Benchmark's: --plugin=PATH, --demo=PATH (representative values),
// --corpus=PATH (a trace from gen_trace.py; no mixed benchmarks without it) and
// --corpus-values=N (how many of its values to use).
#include "bench/TraceValues.h"
#include "host/PluginLoader.h"

#include <benchmark/benchmark.h>

#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace {

using namespace Orvane;

struct Options {
  std::string plugin = BENCH_PLUGIN_PATH;
  std::string demo = BENCH_DEMO_PATH;
  std::string corpus;
  std::size_t corpusValues = 20000;
};

Options parseOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    auto valueOf = [&](const std::string& flag) {
      return arg.rfind(flag + "=", 0) == 0 ? arg.substr(flag.size() + 1) : std::string();
    };
    if (auto v = valueOf("--plugin"); !v.empty()) options.plugin = v;
    else if (auto v = valueOf("--demo"); !v.empty()) options.demo = v;
    else if (auto v = valueOf("--corpus"); !v.empty()) options.corpus = v;
    else if (auto v = valueOf("--corpus-values"); !v.empty()) options.corpusValues = std::stoul(v);
    else throw std::runtime_error("unknown argument " + arg);
  }
  return options;
}

// Empties the stream but keeps its storage, as a host reusing one stream does.
void clear(std::ostringstream& os) { os.str(std::string()); }

void formatValue(benchmark::State& state, const bench::PlacedValue* value) {
  std::ostringstream os;
  const FormatFn& format = value->pair->format;
  for (auto _ : state) {
    clear(os);
    benchmark::DoNotOptimize(format(value->bytes, os));
  }
  state.SetItemsProcessed(state.iterations());
}

void writeText(benchmark::State& state, const bench::PlacedValue* value) {
  std::ostringstream os;
  for (auto _ : state) {
    clear(os);
    os.write(value->text.data(), static_cast<std::streamsize>(value->text.size()));
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations());
}

// As a host decodes a trace: the length function, then the format function, of the
// pair found once per id, or (lookUp) looked up by id for every value.
template <bool lookUp>
void formatCorpus(benchmark::State& state, const bench::ValueArena* corpus) {
  std::ostringstream os;
  for (auto _ : state) {
    for (const auto& value : corpus->values()) {
      const host::FormatterPair& pair = lookUp ? *host::findFormatter(value.id) : *value.pair;
      clear(os);
      benchmark::DoNotOptimize(pair.length(value.bytes));
      benchmark::DoNotOptimize(pair.format(value.bytes, os));
    }
  }
  state.SetItemsProcessed(state.iterations() * corpus->values().size());
  state.counters["values"] = static_cast<double>(corpus->values().size());
}

void writeCorpus(benchmark::State& state, const bench::ValueArena* corpus) {
  std::ostringstream os;
  for (auto _ : state) {
    for (const auto& value : corpus->values()) {
      clear(os);
      os.write(value.text.data(), static_cast<std::streamsize>(value.text.size()));
      benchmark::ClobberMemory();
    }
  }
  state.SetItemsProcessed(state.iterations() * corpus->values().size());
  state.counters["values"] = static_cast<double>(corpus->values().size());
}

// The first demo value of every registered id; ids without one are reported.
std::vector<bench::TraceValue> representativeValues(const std::string& demoPath) {
  std::map<std::string, bench::TraceValue> firstById;
  for (auto& value : bench::readTraceValues(demoPath)) firstById.try_emplace(value.id, value);
  std::vector<bench::TraceValue> chosen;
  for (const auto& id : host::registeredIds()) {
    if (auto it = firstById.find(id); it != firstById.end())
      chosen.push_back(it->second);
    else
      std::cerr << "format_bench: id " << id << " has no value in " << demoPath << "\n";
  }
  return chosen;
}

void registerPerId(const bench::ValueArena& representatives) {
  for (const auto& value : representatives.values()) {
    benchmark::RegisterBenchmark(("format/" + value.id).c_str(), formatValue, &value);
    benchmark::RegisterBenchmark(("floor/" + value.id).c_str(), writeText, &value);
  }
}

void registerMixed(const bench::ValueArena& corpus) {
  constexpr double kMinSeconds = 0.3;
  benchmark::RegisterBenchmark("mixed/format", formatCorpus<false>, &corpus)->MinTime(kMinSeconds);
  benchmark::RegisterBenchmark("mixed/format_lookup", formatCorpus<true>, &corpus)
      ->MinTime(kMinSeconds);
  benchmark::RegisterBenchmark("mixed/floor", writeCorpus, &corpus)->MinTime(kMinSeconds);
}

} // namespace

int main(int argc, char** argv) try {
  benchmark::Initialize(&argc, argv);
  const Options options = parseOptions(argc, argv);
  for (const auto& error : host::loadPluginPath(options.plugin)) {
    std::cerr << "format_bench: cannot load " << error.path << ": " << error.reason << "\n";
    return 2;
  }
  benchmark::AddCustomContext("registered_ids", std::to_string(host::registeredIds().size()));

  const bench::ValueArena representatives(representativeValues(options.demo));
  registerPerId(representatives);
  std::unique_ptr<bench::ValueArena> corpus;
  if (!options.corpus.empty()) {
    corpus = std::make_unique<bench::ValueArena>(
        bench::readTraceValues(options.corpus, options.corpusValues));
    registerMixed(*corpus);
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
} catch (const std::exception& e) {
  std::cerr << "format_bench: " << e.what() << "\n";
  return 2;
}
