#include "tracing/PrintingConsumer.h"

#include <cerrno>
#include <unistd.h>

namespace Orvane::tracing {
namespace {

/// Output is written once this much is pending, and at the end.
constexpr std::size_t kFlushSize = 1 << 20;

bool writeAll(int fd, std::string& text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t n = write(fd, text.data() + done, text.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<std::size_t>(n);
  }
  text.clear();
  return true;
}

} // namespace

bool PrintingConsumer::flush() {
  if (printer_.output().size() < kFlushSize && printer_.warnings().empty()) return true;
  return finish();
}

// Output before warnings, so that they come out in order on one terminal.
bool PrintingConsumer::finish() {
  if (!writeAll(STDOUT_FILENO, printer_.output())) writeFailed_ = true;
  writeAll(STDERR_FILENO, printer_.warnings());
  return !writeFailed_;
}

} // namespace Orvane::tracing
