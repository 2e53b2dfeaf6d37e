#include "address/IpText.h"

#include "registry/HexDigits.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Orvane {
namespace {

char* writeOctet(unsigned char octet, char* out) {
  if (octet >= 100) *out++ = static_cast<char>('0' + octet / 100);
  if (octet >= 10) *out++ = static_cast<char>('0' + octet / 10 % 10);
  *out++ = static_cast<char>('0' + octet % 10);
  return out;
}

char* writeIpv4(const unsigned char* bytes, char* out) {
  out = writeOctet(bytes[0], out);
  for (int i = 1; i < 4; ++i) {
    *out++ = '.';
    out = writeOctet(bytes[i], out);
  }
  return out;
}

// A group in lowercase hex without leading zeros; zero prints as "0".
char* writeGroup(uint16_t group, char* out) {
  char digits[4];
  writeHexByte(static_cast<unsigned char>(group), writeHexByte(group >> 8, digits));
  const int significant = group ? (std::bit_width(group) + 3) / 4 : 1;
  return std::copy(digits + 4 - significant, digits + 4, out);
}

// Groups [first, last) joined by ":".
char* writeGroups(const uint16_t* groups, int first, int last, char* out) {
  for (int i = first; i < last; ++i) {
    if (i != first) *out++ = ':';
    out = writeGroup(groups[i], out);
  }
  return out;
}

// The longest run of zero groups, the first of equal ones; its length is 0 when there
// is no zero group.
struct ZeroRun {
  int first = 0;
  int length = 0;
};

ZeroRun longestZeroRun(const uint16_t* groups) {
  ZeroRun best, current;
  for (int i = 0; i < 8; ++i) {
    if (groups[i] != 0) {
      current.length = 0;
      continue;
    }
    if (current.length++ == 0) current.first = i;
    if (current.length > best.length) best = current;
  }
  return best;
}

char* writeIpv6(const unsigned char* bytes, char* out) {
  uint16_t groups[8];
  for (int i = 0; i < 8; ++i)
    groups[i] = static_cast<uint16_t>(bytes[2 * i] << 8 | bytes[2 * i + 1]);
  const ZeroRun run = longestZeroRun(groups);
  if (run.length < 2) return writeGroups(groups, 0, 8, out);
  if (run.first == 0 && (run.length == 6 || (run.length == 5 && groups[5] == 0xffff))) {
    const std::string_view prefix = run.length == 6 ? "::" : "::ffff:";
    out = std::copy(prefix.begin(), prefix.end(), out);
    return writeIpv4(bytes + 12, out);
  }
  out = writeGroups(groups, 0, run.first, out);
  *out++ = ':';
  *out++ = ':';
  return writeGroups(groups, run.first + run.length, 8, out);
}

// Writes into a scratch buffer of `kSize` first, so a `buf` too small stays untouched.
template <std::size_t kSize>
char* writeBounded(char* (*write)(const unsigned char*, char*), const unsigned char* bytes,
                   char* buf, std::size_t size) {
  char text[kSize];
  const std::size_t length = static_cast<std::size_t>(write(bytes, text) - text);
  if (length >= size) return nullptr;
  std::memcpy(buf, text, length);
  buf[length] = '\0';
  return buf + length;
}

} // namespace

char* ipv4Text(const unsigned char* bytes, char* buf, std::size_t size) {
  return writeBounded<kIpv4TextSize>(writeIpv4, bytes, buf, size);
}

char* ipv6Text(const unsigned char* bytes, char* buf, std::size_t size) {
  return writeBounded<kIpv6TextSize>(writeIpv6, bytes, buf, size);
}

} // namespace Orvane
