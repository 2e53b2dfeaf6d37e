#include "tools/ovfmt/GatheringWriter.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <unistd.h>

namespace Orvane::ovfmt {

bool GatheringWriter::add(int fd, std::string_view bytes) {
  if (fd != fd_ && !flush()) return false;
  fd_ = fd;
  if (!bytes.empty()) pieces_.push_back({const_cast<char*>(bytes.data()), bytes.size()});
  return true;
}

bool GatheringWriter::flush() {
  std::size_t first = 0;
  while (first < pieces_.size()) {
    const auto count = static_cast<int>(std::min<std::size_t>(pieces_.size() - first, IOV_MAX));
    const ssize_t n = ::writev(fd_, pieces_.data() + first, count);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      pieces_.clear();
      return false;
    }
    // Step past what was written, into the middle of a piece on a short write.
    auto written = static_cast<std::size_t>(n);
    for (; written > 0 && written >= pieces_[first].iov_len; ++first)
      written -= pieces_[first].iov_len;
    if (written > 0) {
      pieces_[first].iov_base = static_cast<char*>(pieces_[first].iov_base) + written;
      pieces_[first].iov_len -= written;
    }
  }
  pieces_.clear();
  return true;
}

} // namespace Orvane::ovfmt
