#include "tools/ovfmt/WorkerPool.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace Orvane::ovfmt {
namespace {

// Lines are handed to the threads in runs of this many: enough to make taking a run
// cheap beside formatting it, few enough that the threads finish a block together.
constexpr std::size_t kLinesPerRun = 512;

} // namespace

WorkerPool::WorkerPool(unsigned jobs, const PrintOptions& options, std::string_view name, int out,
                       int err)
    : name_(name), out_(out), err_(err) {
  for (unsigned i = 0; i < jobs; ++i) workers_.push_back(std::make_unique<Worker>(options));
  for (auto& worker : workers_) threads_.emplace_back([this, &worker] { serve(*worker); });
}

WorkerPool::~WorkerPool() {
  {
    std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_all();
  threads_.clear(); // joins
}

void WorkerPool::start(std::span<const std::string_view> lines, std::size_t firstLine) {
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

std::string WorkerPool::finish() {
  std::unique_lock lock(mutex_);
  done_.wait(lock, [this] { return written_; });
  return writeError_;
}

void WorkerPool::addTo(BatchSummary& summary) const {
  for (const auto& worker : workers_) {
    summary.records += worker->summary.records;
    summary.allPrinted &= worker->summary.allPrinted;
  }
}

// Every thread passes through every block, so once the last is out, no thread touches
// the runs until start() hands out the next block.
void WorkerPool::serve(Worker& worker) {
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

bool WorkerPool::writeRuns() {
  for (std::size_t r = 0; r < runCount_; ++r)
    if (!runs_[r]->output.writeTo(out_, err_)) return false;
  return true;
}

} // namespace Orvane::ovfmt
