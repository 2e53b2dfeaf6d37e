#include "address/SystemId.h"

#include "registry/Fields.h"
#include "registry/HostInterface.h"

#include <cstdio>

namespace Orvane {

unsigned formatIsisSystemId(const unsigned char* p, std::ostream& os) {
  char text[16];
  std::snprintf(text, sizeof text, "%02hhx%02hhx.%02hhx%02hhx.%02hhx%02hhx", p[0], p[1], p[2],
                p[3], p[4], p[5]);
  os << text;
  return lengthIsisSystemId(p);
}
unsigned lengthIsisSystemId(const unsigned char*) { return 6; }

unsigned formatDsfSystemId(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "SystemId(", formatU8, ", ", formatU16, ", ", formatString, ")");
}
unsigned lengthDsfSystemId(const unsigned char* p) {
  return measureFields(p, lengthU8, lengthU16, lengthString);
}

} // namespace Orvane
