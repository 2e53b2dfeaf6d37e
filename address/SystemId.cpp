#include "address/SystemId.h"

#include "address/HexGroups.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {

unsigned formatIsisSystemId(const unsigned char* p, std::ostream& os) {
  printHexGroups(os, p, 6, 2, '.');
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
