#include "tools/ovfmt/LineReader.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace Orvane::ovfmt {

LineReader::LineReader(int fd, std::size_t blockSize) : fd_(fd) {
  for (Block& block : blocks_) block.allocate(blockSize);
}

void LineReader::switchBlocks() {
  Block& from = *block_;
  Block& to = block_ == &blocks_[0] ? blocks_[1] : blocks_[0];
  // A line that leaves no room to read gets a block twice its size.
  const std::size_t kept = end_ - begin_;
  if (kept >= to.size) to.allocate(2 * kept);
  std::memcpy(to.chars.get(), from.chars.get() + begin_, kept);
  block_ = &to;
  begin_ = 0;
  end_ = kept;
}

bool LineReader::next(std::vector<std::string_view>& lines) {
  lines.clear();
  if (atEnd_) return false;
  switchBlocks();

  ssize_t n;
  do n = ::read(fd_, block_->chars.get() + end_, block_->size - end_);
  while (n < 0 && errno == EINTR);
  if (n < 0) {
    error_ = std::strerror(errno);
    atEnd_ = true;
    return false;
  }
  atEnd_ = n == 0;
  end_ += static_cast<std::size_t>(n);

  const char* data = block_->chars.get();
  while (const void* newline = std::memchr(data + begin_, '\n', end_ - begin_)) {
    const auto at = static_cast<std::size_t>(static_cast<const char*>(newline) - data);
    lines.emplace_back(data + begin_, at - begin_);
    begin_ = at + 1;
  }
  if (atEnd_ && begin_ < end_) {
    lines.emplace_back(data + begin_, end_ - begin_);
    begin_ = end_;
  }
  return !lines.empty() || !atEnd_;
}

} // namespace Orvane::ovfmt
