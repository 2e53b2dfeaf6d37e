#include "address/AfAddress.h"

#include "address/HexGroups.h"
#include "address/Ip.h"
#include "registry/Bytes.h"

#include <algorithm>
#include <cstring>

namespace Orvane {
namespace {

enum Family : unsigned char {
  kInet = 2,
  kInet6 = 10,
  kDataBytes = 41,
  kDataBytesAfterPad = 42,
  kLabelledInet = 44,
  kLabelledInet6 = 45,
  kInet6Zoned = 254,
};

// Copies up to `max` address bytes present in a record of length `n` from `offset`
// into a zeroed `out`.
void copyPresent(const unsigned char* p, unsigned n, unsigned offset, unsigned max,
                 unsigned char* out) {
  if (n > offset) std::memcpy(out, p + offset, std::min(n - offset, max));
}

void printInet(const unsigned char* p, unsigned n, std::ostream& os) {
  unsigned char address[4] = {};
  copyPresent(p, n, 4, 4, address);
  printThroughRun(os, [&](TextRun& text) { printIpv4Bytes(text, address); });
}

void printInet6(const unsigned char* p, unsigned n, bool zoned, std::ostream& os) {
  unsigned char address[16] = {};
  copyPresent(p, n, 8, 16, address);
  printThroughRun(os, [&](TextRun& text) { printIpv6Bytes(text, address); });
  if (!zoned) return;
  os << "%";
  if (n <= 24) {
    os << std::hex << loadBigEndian32(p + 10) << std::dec;
  } else {
    char zone[64] = {};
    copyPresent(p, n, 24, 63, reinterpret_cast<unsigned char*>(zone));
    os << zone;
  }
}

// Hex byte pairs joined by "."; an odd last byte follows a "-". Like a hex dump through
// the stream, it leaves the fill at '0' and the base decimal.
void printDataBytes(const unsigned char* data, int count, std::ostream& os) {
  char text[5 * 128]; // at most 253 bytes: "xxxx." per pair, "-xx" for the last
  const int pairs = count & ~1;
  char* out = writeHexGroups(data, pairs, 2, '.', text);
  if (pairs < count) {
    *out++ = '-';
    out = writeHexByte(data[pairs], out);
  }
  os.write(text, out - text);
  os.fill('0');
  os.setf(std::ios::dec, std::ios::basefield);
}

void printLabelled(const unsigned char* p, unsigned n, bool inet6, std::ostream& os) {
  os << loadBigEndian32(p + n - 4) << "|" << loadBigEndian32(p + n - 8) << "|";
  printThroughRun(os, [&](TextRun& text) {
    if (inet6)
      printIpv6Bytes(text, p + 4);
    else
      printIpv4Bytes(text, p + 4);
  });
}

} // namespace

unsigned formatAfAddr(const unsigned char* p, std::ostream& os) {
  const unsigned n = p[0];
  const unsigned char family = p[1];
  switch (family) {
  case kInet: printInet(p, n, os); break;
  case kInet6: printInet6(p, n, false, os); break;
  case kInet6Zoned: printInet6(p, n, true, os); break;
  case kDataBytes: printDataBytes(p + 2, static_cast<int>(n) - 2, os); break;
  case kDataBytesAfterPad: printDataBytes(p + 3, static_cast<int>(n) - 3, os); break;
  case kLabelledInet: printLabelled(p, n, false, os); break;
  case kLabelledInet6: printLabelled(p, n, true, os); break;
  default: os << "<Address in AF " << static_cast<unsigned>(family) << ">";
  }
  return lengthAfAddr(p);
}

unsigned lengthAfAddr(const unsigned char* p) { return p[0]; }

} // namespace Orvane
