#include "tools/ovfmt/Batch.h"

#include "tools/ovfmt/BatchLine.h"
#include "tools/ovfmt/LineReader.h"

#include <algorithm>
#include <memory>
#include <span>
#include <thread>
#include <vector>

namespace Orvane::ovfmt {
namespace {

// Fewer lines than this per job are not worth a thread: a terminal or a slow pipe
// delivers a line or two per read.
constexpr std::size_t kMinLinesPerJob = 512;

// One thread's share: its own printer and output, and what it saw.
struct Job {
  explicit Job(const PrintOptions& options) : printer(options) {}

  void run(std::span<const std::string_view> lines, std::size_t firstLine, std::string_view name) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const auto parts = splitBatchLine(lines[i]);
      if (!parts) continue;
      ++summary.records;
      summary.allPrinted &= printer.print({name, firstLine + i}, parts->id, parts->hex, output);
    }
  }

  RecordPrinter printer;
  Output output;
  BatchSummary summary;
};

} // namespace

BatchSummary formatBatch(int in, std::string_view name, const PrintOptions& options, unsigned jobs,
                         int out, int err) {
  std::vector<std::unique_ptr<Job>> pool;
  for (unsigned i = 0; i < std::max(jobs, 1u); ++i) pool.push_back(std::make_unique<Job>(options));

  LineReader reader(in);
  std::vector<std::string_view> lines;
  std::size_t firstLine = 1;
  BatchSummary summary;
  while (reader.next(lines)) {
    const std::size_t runs =
        std::clamp<std::size_t>(lines.size() / kMinLinesPerJob, 1, pool.size());
    const std::size_t perRun = (lines.size() + runs - 1) / runs;
    auto runOf = [&](std::size_t r) {
      const std::size_t begin = std::min(r * perRun, lines.size());
      const std::size_t end = std::min(begin + perRun, lines.size());
      pool[r]->run(std::span(lines).subspan(begin, end - begin), firstLine + begin, name);
    };
    std::vector<std::jthread> threads;
    for (std::size_t r = 1; r < runs; ++r) threads.emplace_back(runOf, r);
    runOf(0);
    threads.clear(); // joins
    for (std::size_t r = 0; r < runs && !summary.writeFailed; ++r)
      summary.writeFailed = !pool[r]->output.writeTo(out, err);
    if (summary.writeFailed) break;
    firstLine += lines.size();
  }
  summary.readError = reader.error();
  for (const auto& job : pool) {
    summary.records += job->summary.records;
    summary.allPrinted &= job->summary.allPrinted;
  }
  return summary;
}

} // namespace Orvane::ovfmt
