#include "address/Ethernet.h"

#include "registry/Fields.h"

#include <cstdio>

namespace Orvane {
namespace {

// The 16-bit group whose high byte comes first.
unsigned short group(const unsigned char* p) {
  return static_cast<unsigned short>(p[0] << 8 | p[1]);
}

} // namespace

unsigned formatEth(const unsigned char* p, std::ostream& os) {
  char text[16];
  std::snprintf(text, sizeof text, "%04hx.%04hx.%04hx", group(p), group(p + 2), group(p + 4));
  os << text;
  return lengthEth(p);
}
unsigned lengthEth(const unsigned char*) { return 6; }

unsigned formatEthColonSeparated(const unsigned char* p, std::ostream& os) {
  char text[24];
  std::snprintf(text, sizeof text, "%02hhx:%02hhx:%02hhx:%02hhx:%02hhx:%02hhx", p[0], p[1], p[2],
                p[3], p[4], p[5]);
  os << text;
  return lengthEthColonSeparated(p);
}
unsigned lengthEthColonSeparated(const unsigned char*) { return 6; }

unsigned formatEthMask(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatEth, "/", formatEth);
}
unsigned lengthEthMask(const unsigned char* p) { return measureFields(p, lengthEth, lengthEth); }

unsigned formatEthSegment(const unsigned char* p, std::ostream& os) {
  char text[32];
  std::snprintf(text, sizeof text, "%04hx:%04hx:%04hx:%04hx:%04hx", group(p), group(p + 2),
                group(p + 4), group(p + 6), group(p + 8));
  os << text;
  return lengthEthSegment(p);
}
unsigned lengthEthSegment(const unsigned char*) { return 10; }

} // namespace Orvane
