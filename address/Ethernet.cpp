#include "address/Ethernet.h"

#include "address/HexGroups.h"
#include "registry/Fields.h"

namespace Orvane {

unsigned formatEth(const unsigned char* p, std::ostream& os) {
  printHexGroups(os, p, 6, 2, '.');
  return lengthEth(p);
}
unsigned lengthEth(const unsigned char*) { return 6; }

unsigned formatEthColonSeparated(const unsigned char* p, std::ostream& os) {
  printHexGroups(os, p, 6, 1, ':');
  return lengthEthColonSeparated(p);
}
unsigned lengthEthColonSeparated(const unsigned char*) { return 6; }

unsigned formatEthMask(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatEth, "/", formatEth);
}
unsigned lengthEthMask(const unsigned char* p) { return measureFields(p, lengthEth, lengthEth); }

unsigned formatEthSegment(const unsigned char* p, std::ostream& os) {
  printHexGroups(os, p, 10, 2, ':');
  return lengthEthSegment(p);
}
unsigned lengthEthSegment(const unsigned char*) { return 10; }

} // namespace Orvane
