#include "address/Ethernet.h"

#include "address/HexGroups.h"
#include "registry/Fields.h"

namespace Orvane {
unsigned appendEth(const unsigned char* p, TextRun& text) {
  printHexGroups(text, p, 6, 2, '.');
  return lengthEth(p);
}
unsigned formatEth(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendEth>(p, os);
}
unsigned lengthEth(const unsigned char*) { return 6; }

namespace {

unsigned appendEthColonSeparated(const unsigned char* p, TextRun& text) {
  printHexGroups(text, p, 6, 1, ':');
  return lengthEthColonSeparated(p);
}

} // namespace

unsigned formatEthColonSeparated(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendEthColonSeparated>(p, os);
}
unsigned lengthEthColonSeparated(const unsigned char*) { return 6; }

constexpr LabeledField kEthMaskRows[] = {{"", &kEthField}, {"/", &kEthField}, {""}};
constexpr FieldTable kEthMaskFields{kEthMaskRows};
unsigned formatEthMask(const unsigned char* p, std::ostream& os) {
  return formatTable<kEthMaskRows>(p, os);
}
unsigned lengthEthMask(const unsigned char* p) { return lengthTable<kEthMaskRows>(p); }

unsigned appendEthSegment(const unsigned char* p, TextRun& text) {
  printHexGroups(text, p, 10, 2, ':');
  return lengthEthSegment(p);
}
unsigned formatEthSegment(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendEthSegment>(p, os);
}
unsigned lengthEthSegment(const unsigned char*) { return 10; }

} // namespace Orvane
