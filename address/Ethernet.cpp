#include "address/Ethernet.h"

#include "address/HexGroups.h"
#include "registry/Fields.h"

namespace Orvane {
namespace {

// Out is std::ostream or TextRun: the format and the append form.
template <class Out> unsigned printEth(const unsigned char* p, Out& out) {
  printHexGroups(out, p, 6, 2, '.');
  return lengthEth(p);
}

template <class Out> unsigned printEthSegment(const unsigned char* p, Out& out) {
  printHexGroups(out, p, 10, 2, ':');
  return lengthEthSegment(p);
}

} // namespace

unsigned formatEth(const unsigned char* p, std::ostream& os) { return printEth(p, os); }
unsigned appendEth(const unsigned char* p, TextRun& text) { return printEth(p, text); }
unsigned lengthEth(const unsigned char*) { return 6; }

unsigned formatEthColonSeparated(const unsigned char* p, std::ostream& os) {
  printHexGroups(os, p, 6, 1, ':');
  return lengthEthColonSeparated(p);
}
unsigned lengthEthColonSeparated(const unsigned char*) { return 6; }

constexpr LabeledField kEthMaskFields[] = {{"", &kEthField}, {"/", &kEthField}, {""}};
unsigned formatEthMask(const unsigned char* p, std::ostream& os) {
  return formatTable<kEthMaskFields>(p, os);
}
unsigned lengthEthMask(const unsigned char* p) { return lengthTable<kEthMaskFields>(p); }

unsigned formatEthSegment(const unsigned char* p, std::ostream& os) {
  return printEthSegment(p, os);
}
unsigned appendEthSegment(const unsigned char* p, TextRun& text) {
  return printEthSegment(p, text);
}
unsigned lengthEthSegment(const unsigned char*) { return 10; }

} // namespace Orvane
