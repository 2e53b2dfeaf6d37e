#include "bgp/AfiSafi.h"

#include "registry/Bytes.h"
#include "registry/TextRun.h"

#include <cstdint>

namespace Orvane {

void printAfiSafi(AfiSafi afiSafi, TextRun& text) {
  text << "<AFI:" << afiName(afiSafi.afi) << ">/<SAFI:" << safiName(afiSafi.safi) << ">";
}

const char* afiName(unsigned short afi) { return nameOr(afiNames, afi, "unknown"); }
const char* safiName(unsigned short safi) { return nameOr(safiNames, safi, "unknown"); }

std::ostream& formatAfi(unsigned short afi, std::ostream& os) { return os << afiName(afi); }
std::ostream& formatSafi(unsigned short safi, std::ostream& os) { return os << safiName(safi); }

std::ostream& formatAfiSafi(AfiSafi afiSafi, std::ostream& os) {
  TextRun text(os);
  printAfiSafi(afiSafi, text);
  return text.flush();
}

unsigned formatAfi(const unsigned char* p, std::ostream& os) {
  TextRun text(os);
  text << "<AFI:" << afiName(load<uint16_t>(p)) << ">";
  text.flush();
  return lengthAfi(p);
}
unsigned lengthAfi(const unsigned char*) { return 2; }

unsigned formatSafiLegacy(const unsigned char* p, std::ostream& os) {
  TextRun text(os);
  text << "<SAFI:" << safiName(p[0]) << ">";
  text.flush();
  return lengthSafi(p);
}
unsigned lengthSafi(const unsigned char*) { return 1; }

// The encoded word crosses the in-memory pair: its low half is the SAFI.
unsigned formatAfiSafi(const unsigned char* p, std::ostream& os) {
  const uint32_t word = load<uint32_t>(p);
  formatAfiSafi(AfiSafi{static_cast<unsigned short>(word >> 16),
                        static_cast<unsigned short>(word & 0xFFFF)},
                os);
  return lengthAfiSafi(p);
}
unsigned lengthAfiSafi(const unsigned char*) { return 4; }

} // namespace Orvane
