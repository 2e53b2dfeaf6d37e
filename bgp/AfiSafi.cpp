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
  return printThroughRun(os, [afiSafi](TextRun& text) { printAfiSafi(afiSafi, text); });
}

unsigned appendAfi(const unsigned char* p, TextRun& text) {
  text << "<AFI:" << afiName(load<uint16_t>(p)) << ">";
  return lengthAfi(p);
}
unsigned formatAfi(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendAfi>(p, os);
}
unsigned lengthAfi(const unsigned char*) { return 2; }

unsigned appendSafiLegacy(const unsigned char* p, TextRun& text) {
  text << "<SAFI:" << safiName(p[0]) << ">";
  return lengthSafi(p);
}
unsigned formatSafiLegacy(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendSafiLegacy>(p, os);
}
unsigned lengthSafi(const unsigned char*) { return 1; }

// The encoded word crosses the in-memory pair: its low half is the SAFI.
unsigned appendAfiSafi(const unsigned char* p, TextRun& text) {
  const uint32_t word = load<uint32_t>(p);
  printAfiSafi(
      AfiSafi{static_cast<unsigned short>(word >> 16), static_cast<unsigned short>(word & 0xFFFF)},
      text);
  return lengthAfiSafi(p);
}
unsigned formatAfiSafi(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendAfiSafi>(p, os);
}
unsigned lengthAfiSafi(const unsigned char*) { return 4; }

} // namespace Orvane
