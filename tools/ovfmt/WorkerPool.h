// Formatting a batch on several threads while the next block is read.
#pragma once

#include "tools/ovfmt/Batch.h"
#include "tools/ovfmt/Output.h"
#include "tools/ovfmt/RecordPrinter.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace Orvane::ovfmt {

/// Formats blocks of lines on `jobs` threads of its own, each with its own printer,
/// while the caller reads the next block. A block is cut into runs of consecutive lines
/// that the threads take in turn, so they finish it together; the last thread out
/// writes the runs' output in input order, so a block's text goes out as soon as it is
/// ready, even while the caller waits for input.
class WorkerPool {
public:
  /// Starts the threads. Records are printed with `options` and named `name` in
  /// messages; output goes to the descriptors `out` and `err`.
  WorkerPool(unsigned jobs, const PrintOptions& options, std::string_view name, int out, int err);
  /// Stops and joins the threads.
  ~WorkerPool();

  /// Hands `lines`, the first numbered `firstLine`, to the threads. They must stay
  /// valid until finish() returns, and finish() must have returned for the block
  /// before.
  void start(std::span<const std::string_view> lines, std::size_t firstLine);

  /// Waits until the block given to start() is formatted and written. Returns why a
  /// write failed, or an empty string.
  std::string finish();

  /// Adds the records and failures that the threads saw to `summary`; call it after
  /// finish().
  void addTo(BatchSummary& summary) const;

private:
  // A run of consecutive lines and what printing them made.
  struct Run {
    std::span<const std::string_view> lines;
    std::size_t firstLine = 0;
    Output output;
  };
  // One thread's printer (its caches serve that thread only) and what it saw.
  struct Worker {
    explicit Worker(const PrintOptions& options) : printer(options) {}
    RecordPrinter printer;
    BatchSummary summary;
  };

  /// A thread's life: each block, take runs until none is left; the last thread out
  /// writes the block.
  void serve(Worker& worker);
  /// Writes the current block's runs in order; false when a write failed.
  bool writeRuns();

  std::string_view name_;
  int out_, err_;
  std::vector<std::unique_ptr<Worker>> workers_;
  std::vector<std::unique_ptr<Run>> runs_; ///< the first runCount_ are the current block's
  std::size_t runCount_ = 0;
  std::atomic<std::size_t> nextRun_ = 0;

  std::mutex mutex_;
  std::condition_variable wake_, done_;
  std::uint64_t blocks_ = 0; ///< blocks started
  std::size_t busy_ = 0;     ///< threads not yet out of the current block
  bool written_ = true;
  std::string writeError_;
  bool stopping_ = false;
  std::vector<std::jthread> threads_; ///< last, so that they stop before the rest goes
};

} // namespace Orvane::ovfmt
