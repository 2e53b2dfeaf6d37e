#include "address/SystemId.h"

#include "address/HexGroups.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {

unsigned appendIsisSystemId(const unsigned char* p, TextRun& text) {
  printHexGroups(text, p, 6, 2, '.');
  return lengthIsisSystemId(p);
}

unsigned formatIsisSystemId(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIsisSystemId>(p, os);
}
unsigned lengthIsisSystemId(const unsigned char*) { return 6; }

constexpr LabeledField kDsfSystemIdRows[] = {
    {"SystemId(", &kU8Field}, {", ", &kU16Field}, {", ", &kStringField}, {")"}};
constexpr FieldTable kDsfSystemIdFields{kDsfSystemIdRows};
unsigned formatDsfSystemId(const unsigned char* p, std::ostream& os) {
  return formatTable<kDsfSystemIdRows>(p, os);
}
unsigned lengthDsfSystemId(const unsigned char* p) { return lengthTable<kDsfSystemIdRows>(p); }

} // namespace Orvane
