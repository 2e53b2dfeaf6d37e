// Writing pieces of text to file descriptors in order, in as few system calls as that
// order allows.
#pragma once

#include <string_view>
#include <sys/uio.h>
#include <vector>

namespace Orvane::ovfmt {

/// Queues pieces of text for file descriptors and writes them in the order given,
/// joining the pieces for one descriptor in a row into one writev(): many small
/// outputs go out in as few writes as one large one would.
class GatheringWriter {
public:
  /// Queues `bytes` for `fd`; they must stay valid until the next flush(). What was
  /// queued for another descriptor is written first. Returns false when a write failed
  /// (errno says why); what was queued is then dropped.
  bool add(int fd, std::string_view bytes);

  /// Writes everything queued. Returns false when a write failed (errno says why);
  /// what was not written is dropped.
  bool flush();

private:
  int fd_ = -1;
  std::vector<iovec> pieces_;
};

} // namespace Orvane::ovfmt
