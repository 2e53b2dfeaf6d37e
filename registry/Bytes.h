// Reading fields of unaligned, native-order (little-endian) values.
#pragma once

#include <cstdint>
#include <cstring>

namespace Orvane {

/// Loads a T from possibly unaligned bytes in the host's order.
template <class T> inline T load(const unsigned char* p) {
  T value;
  std::memcpy(&value, p, sizeof value);
  return value;
}

/// Loads a big-endian (network order) 32-bit number.
inline uint32_t loadBigEndian32(const unsigned char* p) {
  return __builtin_bswap32(load<uint32_t>(p));
}

/// The field at running offset `off` from `p`.
///
/// Offsets are unsigned 32-bit sums that wrap. A field lives at `p + int32_t(off)`, so a
/// count that wrapped past zero (an invalid field's 0xFFFFFFFF plus what came before)
/// lands before `p` exactly as 32-bit pointer arithmetic would. This is the one place
/// that arithmetic is done.
inline const unsigned char* at(const unsigned char* p, unsigned off) {
  return p + static_cast<int32_t>(off);
}

} // namespace Orvane
