// A buffer that holds a value or a whole record between zero-filled guard areas.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace Orvane::ovfmt {

/// Zero bytes placed before and after a value, so that a corrupt or short value read
/// as its layout says stays inside the buffer.
inline constexpr std::size_t kGuardBefore = 64;
inline constexpr std::size_t kGuardAfter = 8192;

/// Bytes between guards, reused from one value to the next. Everything outside the
/// current bytes is zero: the buffer is zero-filled as it grows, and the bytes of one
/// value are zeroed again before the next is placed, so only they are ever cleared.
class GuardedBuffer {
public:
  /// Clears the current bytes and returns room for `capacity` new ones, zero-filled,
  /// followed by at least kGuardAfter zero bytes. Call setSize() once they are written.
  unsigned char* prepare(std::size_t capacity) {
    clear();
    const std::size_t needed = kGuardBefore + capacity + kGuardAfter;
    if (bytes_.size() < needed) bytes_.resize(needed, 0);
    return data();
  }

  /// Records how many bytes from data() the caller wrote after prepare().
  void setSize(std::size_t size) { size_ = size; }

  /// Zeroes the current bytes, leaving the whole buffer zero.
  void clear() {
    std::fill_n(data(), size_, 0);
    size_ = 0;
  }

  /// The first byte after the guard before: where the current bytes start.
  unsigned char* data() { return bytes_.data() + kGuardBefore; }
  /// How many bytes are current (as given to setSize()).
  std::size_t size() const { return size_; }

private:
  std::vector<unsigned char> bytes_ = std::vector<unsigned char>(kGuardBefore + kGuardAfter, 0);
  std::size_t size_ = 0;
};

} // namespace Orvane::ovfmt
