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

bool WorkerPool::start(std::span<const std::string_view> lines, std::size_t firstLine) {
  std::unique_lock lock(mutex_);
  const std::uint64_t block = started_ + 1;
  // The threads are out of the block before, and the runs this block reuses are written.
  progress_.wait(lock, [&] { return formatted_ == started_ && written_ + 2 >= block; });
  if (!writeError_.empty()) return false;
  Runs& runs = runsOf(block);
  runs.count = (lines.size() + kLinesPerRun - 1) / kLinesPerRun;
  while (runs.runs.size() < runs.count) runs.runs.push_back(std::make_unique<Run>());
  for (std::size_t r = 0; r < runs.count; ++r) {
    const std::size_t begin = r * kLinesPerRun;
    runs.runs[r]->lines = lines.subspan(begin, std::min(kLinesPerRun, lines.size() - begin));
    runs.runs[r]->firstLine = firstLine + begin;
  }
  nextRun_ = 0;
  busy_ = workers_.size();
  started_ = block;
  lock.unlock();
  wake_.notify_all();
  return true;
}

std::string WorkerPool::finish() {
  std::unique_lock lock(mutex_);
  progress_.wait(lock, [this] { return written_ == started_; });
  return writeError_;
}

void WorkerPool::addTo(BatchSummary& summary) const {
  for (const auto& worker : workers_) {
    summary.records += worker->summary.records;
    summary.allPrinted &= worker->summary.allPrinted;
  }
}

// Every thread passes through every block, so once the last is out, no thread takes a
// run of it any more, and start() may hand out the next.
void WorkerPool::serve(Worker& worker) {
  std::uint64_t seen = 0;
  for (;;) {
    std::unique_lock lock(mutex_);
    wake_.wait(lock, [&] { return stopping_ || started_ != seen; });
    if (stopping_) return;
    seen = started_;
    const Runs& runs = runsOf(seen);
    lock.unlock();
    for (std::size_t r; (r = nextRun_.fetch_add(1)) < runs.count;) {
      Run& run = *runs.runs[r];
      formatLines(worker.printer, run.lines, run.firstLine, name_, run.output, worker.summary);
    }
    lock.lock();
    if (--busy_ > 0) continue;
    formatted_ = seen;
    progress_.notify_all();
    write(seen, lock);
  }
}

void WorkerPool::write(std::uint64_t block, std::unique_lock<std::mutex>& lock) {
  progress_.wait(lock, [&] { return written_ + 1 == block; });
  if (writeError_.empty()) {
    lock.unlock();
    const Runs& runs = runsOf(block);
    bool wrote = true;
    for (std::size_t r = 0; r < runs.count && wrote; ++r)
      wrote = runs.runs[r]->output.queue(writer_, out_, err_);
    wrote = wrote && writer_.flush();
    for (std::size_t r = 0; r < runs.count; ++r) runs.runs[r]->output.clear();
    // errno is the writing thread's own: put it into words here.
    std::string error = wrote ? "" : std::strerror(errno);
    lock.lock();
    writeError_ = std::move(error);
  }
  written_ = block;
  progress_.notify_all();
}

} // namespace Orvane::ovfmt
