// A buffer that holds a value or a whole record between zero-filled guard areas.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace Orvane::decoding {

/// Zero bytes placed before and after a value, so that a corrupt or short value read
/// as its layout says stays inside the buffer.
inline constexpr std::size_t kGuardBefore = 64;
inline constexpr std::size_t kGuardAfter = 8192;

/// Bytes between guards, reused from one value to the next. Everything outside the
/// current bytes is zero: the buffer is zero-filled as it grows, and when new bytes are
/// placed, only those of the value before that lie past them are zeroed again.
class GuardedBuffer {
public:
  /// Returns room for `capacity` new bytes (holding what the value before left there),
  /// followed by at least kGuardAfter zero bytes. Call setSize() once they are written.
  unsigned char* prepare(std::size_t capacity) {
    const std::size_t needed = kGuardBefore + capacity + kGuardAfter;
    if (bytes_.size() < needed) bytes_.resize(needed, 0);
    return data();
  }

  /// Records how many bytes from data() the caller wrote after prepare(), and zeroes the
  /// bytes of the value before beyond them.
  void setSize(std::size_t size) {
    if (size < size_) std::fill_n(data() + size, size_ - size, 0);
    size_ = size;
  }

  /// Zeroes the current bytes, leaving the whole buffer zero.
  void clear() { setSize(0); }

  /// The first byte after the guard before: where the current bytes start.
  unsigned char* data() { return bytes_.data() + kGuardBefore; }
  const unsigned char* data() const { return bytes_.data() + kGuardBefore; }
  /// How many bytes are current (as given to setSize()).
  std::size_t size() const { return size_; }

private:
  std::vector<unsigned char> bytes_ = std::vector<unsigned char>(kGuardBefore + kGuardAfter, 0);
  std::size_t size_ = 0;
};

} // namespace Orvane::decoding
