// Formatting a batch on several threads while the next block is read and the one
// before is written.
#pragma once

#include "tools/ovfmt/Batch.h"
#include "tools/ovfmt/GatheringWriter.h"
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

/// Formats blocks of lines on `jobs` threads of its own, each with its own printer.
/// A block is cut into runs of consecutive lines that the threads take in turn, so
/// they finish it together. The last thread out of a block writes the block's runs in
/// input order, once the block before is written, while the others go on with the
/// next block: neither reading (the caller's) nor writing holds the threads up. A
/// block's text goes out as soon as it is ready, even while the caller waits for input.
class WorkerPool {
public:
  /// Starts the threads. Records are printed with `options` and named `name` in
  /// messages; output goes to the descriptors `out` and `err`.
  WorkerPool(unsigned jobs, const PrintOptions& options, std::string_view name, int out, int err);
  /// Stops and joins the threads; call finish() first.
  ~WorkerPool();

  /// Hands `lines`, the first numbered `firstLine`, to the threads, once the block
  /// before is formatted and the one before that written. The lines of the block before
  /// are no longer used when it returns; these must stay valid until the next start()
  /// or finish() returns. Returns false, starting nothing, once a write has failed.
  bool start(std::span<const std::string_view> lines, std::size_t firstLine);

  /// Waits until every block started is formatted and written. Returns why a write
  /// failed, or an empty string.
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
  // The runs of one block. Blocks use two of these in turn: one is written while the
  // next block is formatted into the other.
  struct Runs {
    std::vector<std::unique_ptr<Run>> runs; ///< the first `count` are the block's
    std::size_t count = 0;
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
  /// Writes block `block` once the one before is written; `lock` holds mutex_.
  void write(std::uint64_t block, std::unique_lock<std::mutex>& lock);
  Runs& runsOf(std::uint64_t block) { return runs_[block % 2]; }

  std::string_view name_;
  int out_, err_;
  std::vector<std::unique_ptr<Worker>> workers_;
  Runs runs_[2];
  GatheringWriter writer_; ///< used by one writing thread at a time
  std::atomic<std::size_t> nextRun_ = 0;

  std::mutex mutex_;
  std::condition_variable wake_, progress_;
  std::uint64_t started_ = 0;   ///< blocks started, numbered from 1
  std::uint64_t formatted_ = 0; ///< blocks formatted, in order
  std::uint64_t written_ = 0;   ///< blocks written (or dropped after a failed write), in order
  std::size_t busy_ = 0;        ///< threads not yet out of the block started last
  std::string writeError_;
  bool stopping_ = false;
  std::vector<std::jthread> threads_; ///< last, so that they stop before the rest goes
};

} // namespace Orvane::ovfmt
