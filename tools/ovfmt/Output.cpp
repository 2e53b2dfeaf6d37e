#include "tools/ovfmt/Output.h"

#include <cerrno>
#include <unistd.h>

namespace Orvane::ovfmt {
namespace {

bool writeAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

} // namespace

bool Output::writeTo(int out, int err) {
  const std::string_view text = text_.text();
  std::size_t written = 0;
  bool ok = true;
  for (const ErrorLine& error : errors_) {
    ok = ok && writeAll(out, text.substr(written, error.at - written)) && writeAll(err, error.line);
    written = error.at;
  }
  ok = ok && writeAll(out, text.substr(written));
  text_.clear();
  errors_.clear();
  return ok;
}

} // namespace Orvane::ovfmt
