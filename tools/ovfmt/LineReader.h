// Reading input lines in large blocks, without a copy or an allocation per line.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

/// Reads a file descriptor block by block and hands out its complete lines. Memory is
/// bounded by two blocks, each of the block size or, when a line is longer, of about
/// twice that line: an endless pipe is read as it comes. Each read() returns what is
/// there, so lines typed at a terminal or written slowly into a pipe come out as soon
/// as they are complete.
class LineReader {
public:
  /// Reads `fd` (not closed here) in blocks of about `blockSize` bytes.
  explicit LineReader(int fd, std::size_t blockSize = 1 << 20);

  /// Reads once more and replaces `lines` with every line now complete, without its
  /// '\n' (a last line without one counts at the end of input). Blocks are read into
  /// two buffers in turn, so the views stay valid until the call after the next: the
  /// lines of one block may still be in use while the next is read. Returns false at
  /// the end of input, when no line is left, or on a read error (see error()).
  bool next(std::vector<std::string_view>& lines);

  /// Why the last read failed, or empty.
  const std::string& error() const { return error_; }

private:
  struct Block {
    std::unique_ptr<char[]> chars; ///< not zero-filled: only what read() wrote is used
    std::size_t size = 0;
    void allocate(std::size_t newSize) {
      chars = std::make_unique_for_overwrite<char[]>(newSize);
      size = newSize;
    }
  };
  /// Starts the other block with the incomplete line of this one, and makes it current.
  void switchBlocks();

  int fd_;
  Block blocks_[2];
  Block* block_ = &blocks_[0];
  std::size_t begin_ = 0; ///< start of the incomplete line kept from the last read
  std::size_t end_ = 0;   ///< end of the bytes read
  bool atEnd_ = false;
  std::string error_;
};

} // namespace Orvane::ovfmt
