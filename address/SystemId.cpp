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

constexpr LabeledField kDsfSystemIdFields[] = {
    {"SystemId(", &kU8Field}, {", ", &kU16Field}, {", ", &kStringField}, {")"}};
unsigned formatDsfSystemId(const unsigned char* p, std::ostream& os) {
  return formatTable<kDsfSystemIdFields>(p, os);
}
unsigned lengthDsfSystemId(const unsigned char* p) { return lengthTable<kDsfSystemIdFields>(p); }

} // namespace Orvane
