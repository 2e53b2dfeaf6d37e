#include "tracing/PrintingConsumer.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace Orvane::tracing {
namespace {

/// Output is written once this much is pending, and at the end.
constexpr std::size_t kFlushSize = 1 << 20;
/// Room kept in the output buffer, so that it does not move while it is pending: the
/// crash handler may read it at any moment.
constexpr std::size_t kReserved = 2 * kFlushSize;

/// Writes `size` bytes at `data` to `fd`; false when it cannot. Async-signal-safe.
bool writeFully(int fd, const char* data, std::size_t size) {
  while (size > 0) {
    const ssize_t n = write(fd, data, size);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    data += n;
    size -= static_cast<std::size_t>(n);
  }
  return true;
}

/// Writes `text` to `fd` and empties it; false when it cannot be written.
bool writeAll(int fd, std::string& text) {
  if (!writeFully(fd, text.data(), text.size())) return false;
  text.clear();
  return true;
}

/// The whole lines pending in the guarded printer's output, for the crash handler.
std::atomic<const char*> pendingData{nullptr};
std::atomic<std::size_t> pendingSize{0};

constexpr int kFatalSignals[] = {SIGABRT, SIGSEGV, SIGBUS, SIGILL, SIGFPE};
struct sigaction previous[std::size(kFatalSignals)];

/// Writes the pending lines, then lets the signal do what it did before.
void writePendingAndDie(int signal) {
  if (const char* data = pendingData.load()) writeFully(STDOUT_FILENO, data, pendingSize.load());
  for (std::size_t i = 0; i < std::size(kFatalSignals); ++i)
    if (kFatalSignals[i] == signal) sigaction(signal, &previous[i], nullptr);
  raise(signal);
}

void guardOnce() {
  static const bool installed = [] {
    struct sigaction action {};
    action.sa_handler = writePendingAndDie;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_NODEFER;
    for (std::size_t i = 0; i < std::size(kFatalSignals); ++i)
      sigaction(kFatalSignals[i], &action, &previous[i]);
    return true;
  }();
  (void)installed;
}

void publish(const std::string& text) {
  pendingData.store(text.data(), std::memory_order_relaxed);
  pendingSize.store(text.size(), std::memory_order_relaxed);
}

} // namespace

PrintingConsumer::PrintingConsumer(OutputOptions options, TypeMap types)
    : printer_(options, std::move(types)) {
  printer_.output().reserve(kReserved);
  guardOnce();
  publish(printer_.output());
}

PrintingConsumer::~PrintingConsumer() {
  pendingSize.store(0);
  pendingData.store(nullptr);
}

void PrintingConsumer::consume(const bt_message* message) {
  printer_.print(message);
  publish(printer_.output());
}

bool PrintingConsumer::flush() {
  if (printer_.output().size() < kFlushSize && printer_.warnings().empty()) return true;
  return finish();
}

// Output before warnings, so that they come out in order on one terminal.
bool PrintingConsumer::finish() {
  if (!writeAll(STDOUT_FILENO, printer_.output())) writeFailed_ = true;
  publish(printer_.output());
  writeAll(STDERR_FILENO, printer_.warnings());
  return !writeFailed_;
}

} // namespace Orvane::tracing
