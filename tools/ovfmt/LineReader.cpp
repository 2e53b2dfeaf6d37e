#include "tools/ovfmt/LineReader.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace Orvane::ovfmt {

LineReader::LineReader(int fd, std::size_t blockSize)
    : fd_(fd), blockSize_(blockSize), block_(std::make_unique_for_overwrite<char[]>(blockSize)) {}

bool LineReader::next(std::vector<std::string_view>& lines) {
  lines.clear();
  if (atEnd_) return false;
  // Keep the incomplete line at the front; a line that fills the block doubles it.
  std::memmove(block_.get(), block_.get() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  if (end_ == blockSize_) {
    auto larger = std::make_unique_for_overwrite<char[]>(2 * blockSize_);
    std::memcpy(larger.get(), block_.get(), end_);
    block_ = std::move(larger);
    blockSize_ *= 2;
  }

  ssize_t n;
  do n = ::read(fd_, block_.get() + end_, blockSize_ - end_);
  while (n < 0 && errno == EINTR);
  if (n < 0) {
    error_ = std::strerror(errno);
    atEnd_ = true;
    return false;
  }
  atEnd_ = n == 0;
  end_ += static_cast<std::size_t>(n);

  const char* data = block_.get();
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
