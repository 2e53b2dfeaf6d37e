#include "tools/ovfmt/Batch.h"

#include "tools/ovfmt/BatchLine.h"
#include "tools/ovfmt/LineReader.h"

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

namespace Orvane::ovfmt {
namespace {

// Lines are handed to the threads in runs of this many: enough to make taking a run
// cheap beside formatting it, few enough that the threads finish a block together.
constexpr std::size_t kLinesPerRun = 512;

// Formats the records among `lines`, the first of them numbered `firstLine`.
void formatLines(RecordPrinter& printer, std::span<const std::string_view> lines,
                 std::size_t firstLine, std::string_view name, Output& output,
                 BatchSummary& summary) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto parts = splitBatchLine(lines[i]);
    if (!parts) continue;
    ++summary.records;
    summary.allPrinted &= printer.print({name, firstLine + i}, parts->id, parts->hex, output);
  }
}

// Formats blocks of lines on threads of its own, in runs of consecutive lines, while
// the caller reads the next block. The last thread to finish a block writes the runs'
// output in input order, so a block's text goes out as soon as it is ready even when
// the caller is waiting for input.
class WorkerPool {
public:
  WorkerPool(unsigned jobs, const PrintOptions& options, std::string_view name, int out, int err)
      : name_(name), out_(out), err_(err) {
    for (unsigned i = 0; i < jobs; ++i) workers_.push_back(std::make_unique<Worker>(options));
    for (auto& worker : workers_) threads_.emplace_back([this, &worker] { serve(*worker); });
  }

  ~WorkerPool() {
    {
      std::lock_guard lock(mutex_);
      stopping_ = true;
    }
    wake_.notify_all();
    threads_.clear(); // joins
  }

  /// Hands `lines` to the threads; they must stay valid until finish() returns.
  void start(std::span<const std::string_view> lines, std::size_t firstLine) {
    runCount_ = (lines.size() + kLinesPerRun - 1) / kLinesPerRun;
    while (runs_.size() < runCount_) runs_.push_back(std::make_unique<Run>());
    for (std::size_t r = 0; r < runCount_; ++r) {
      const std::size_t begin = r * kLinesPerRun;
      runs_[r]->lines = lines.subspan(begin, std::min(kLinesPerRun, lines.size() - begin));
      runs_[r]->firstLine = firstLine + begin;
    }
    nextRun_ = 0;
    {
      std::lock_guard lock(mutex_);
      busy_ = workers_.size();
      written_ = false;
      ++blocks_;
    }
    wake_.notify_all();
  }

  /// Waits until the block given to start() is formatted and written. Returns why a
  /// write failed, or an empty string.
  std::string finish() {
    std::unique_lock lock(mutex_);
    done_.wait(lock, [this] { return written_; });
    return writeError_;
  }

  /// Adds the records and failures that the threads saw to `summary`; call it after
  /// finish().
  void addTo(BatchSummary& summary) const {
    for (const auto& worker : workers_) {
      summary.records += worker->summary.records;
      summary.allPrinted &= worker->summary.allPrinted;
    }
  }

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

  // A thread's life: each block, take runs until none is left; the last thread out of
  // a block writes it. Every thread passes through every block, so once the last is
  // out, no thread touches the runs until start() hands out the next block.
  void serve(Worker& worker) {
    std::uint64_t seen = 0;
    for (;;) {
      {
        std::unique_lock lock(mutex_);
        wake_.wait(lock, [&] { return stopping_ || blocks_ != seen; });
        if (stopping_) return;
        seen = blocks_;
      }
      for (std::size_t r; (r = nextRun_.fetch_add(1)) < runCount_;)
        formatLines(worker.printer, runs_[r]->lines, runs_[r]->firstLine, name_, runs_[r]->output,
                    worker.summary);
      std::unique_lock lock(mutex_);
      if (--busy_ > 0) continue;
      lock.unlock();
      // errno is the writing thread's own: put it into words here.
      std::string error = writeRuns() ? "" : std::strerror(errno);
      lock.lock();
      writeError_ = std::move(error);
      written_ = true;
      done_.notify_one();
    }
  }

  bool writeRuns() {
    for (std::size_t r = 0; r < runCount_; ++r)
      if (!runs_[r]->output.writeTo(out_, err_)) return false;
    return true;
  }

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

BatchSummary formatOnOneThread(LineReader& reader, std::string_view name,
                               const PrintOptions& options, int out, int err) {
  RecordPrinter printer(options);
  Output output;
  BatchSummary summary;
  std::vector<std::string_view> lines;
  for (std::size_t firstLine = 1; reader.next(lines); firstLine += lines.size()) {
    formatLines(printer, lines, firstLine, name, output, summary);
    if (!output.writeTo(out, err)) {
      summary.writeError = std::strerror(errno);
      break;
    }
  }
  return summary;
}

BatchSummary formatOnThreads(LineReader& reader, std::string_view name, const PrintOptions& options,
                             unsigned jobs, int out, int err) {
  WorkerPool pool(jobs, options, name, out, err);
  // Two blocks of lines in turn: the threads format one while the next is read.
  std::vector<std::string_view> blocks[2];
  bool started = false;
  BatchSummary summary;
  for (std::size_t firstLine = 1, current = 0; reader.next(blocks[current]); current ^= 1) {
    if (started) {
      summary.writeError = pool.finish();
      if (!summary.writeError.empty()) break;
    }
    pool.start(blocks[current], firstLine);
    started = true;
    firstLine += blocks[current].size();
  }
  if (started && summary.writeError.empty()) summary.writeError = pool.finish();
  pool.addTo(summary);
  return summary;
}

} // namespace

BatchSummary formatBatch(int in, std::string_view name, const PrintOptions& options, unsigned jobs,
                         int out, int err) {
  LineReader reader(in);
  BatchSummary summary = jobs > 1 ? formatOnThreads(reader, name, options, jobs, out, err)
                                  : formatOnOneThread(reader, name, options, out, err);
  summary.readError = reader.error();
  return summary;
}

} // namespace Orvane::ovfmt
