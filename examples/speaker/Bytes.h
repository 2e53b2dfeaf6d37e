// An encoded value under construction: bytes appended at the end of a fixed buffer, in
// the order the formatters read them.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <stdexcept>

namespace Speaker {

/// Up to kCapacity bytes, appended in order; appending past the end throws.
class Bytes {
public:
  static constexpr std::size_t kCapacity = 64;

  Bytes() = default;
  Bytes(std::initializer_list<unsigned char> bytes) { add(bytes); }

  /// Appends `count` bytes from `bytes`.
  void add(const void* bytes, std::size_t count) {
    if (count > kCapacity - size_) throw std::length_error("Speaker::Bytes is full");
    std::memcpy(bytes_.data() + size_, bytes, count);
    size_ += count;
  }
  void add(std::initializer_list<unsigned char> bytes) { add(bytes.begin(), bytes.size()); }
  void add(const Bytes& other) { add(other.data(), other.size()); }
  /// Appends `value`'s native bytes, as the formatters read multi-byte fields.
  template <typename T> void addNative(T value) { add(&value, sizeof value); }
  /// Appends zero bytes up to a size of `size`.
  void padTo(std::size_t size) {
    if (size > kCapacity) throw std::length_error("Speaker::Bytes is full");
    if (size > size_) size_ = size;
  }

  const unsigned char* data() const { return bytes_.data(); }
  std::size_t size() const { return size_; }

private:
  std::array<unsigned char, kCapacity> bytes_{};
  std::size_t size_ = 0;
};

} // namespace Speaker
