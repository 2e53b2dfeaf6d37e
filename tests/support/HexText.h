// Building test vectors: hex for values that are awkward to write out by hand.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace Orvane::test {

/// `bytes` as blank-separated pairs of hex digits.
inline std::string hexOf(const std::vector<unsigned char>& bytes) {
  std::string hex;
  char pair[4];
  for (unsigned char b : bytes) {
    std::snprintf(pair, sizeof pair, "%02x ", b);
    hex += pair;
  }
  return hex;
}

/// The hex of a host string: its count byte, then the text's bytes.
inline std::string hostString(const std::string& text) {
  std::vector<unsigned char> bytes{static_cast<unsigned char>(text.size())};
  bytes.insert(bytes.end(), text.begin(), text.end());
  return hexOf(bytes);
}

} // namespace Orvane::test
