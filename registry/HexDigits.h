// Two lowercase hex digits per byte, from a table: cheaper than a padded number
// insertion, and the stream's base, fill and width are left alone.
#pragma once

namespace Orvane {

/// Writes the two lowercase hex digits of `byte` at `out` and returns `out + 2`.
inline char* writeHexByte(unsigned char byte, char* out) {
  static constexpr char kDigits[] = "0123456789abcdef";
  out[0] = kDigits[byte >> 4];
  out[1] = kDigits[byte & 15];
  return out + 2;
}

} // namespace Orvane
