#include "bgp/AfiSafi.h"

#include "registry/Bytes.h"
#include "registry/TextRun.h"

#include <cstdint>

namespace Orvane {
namespace {

// The bracketed forms, gathered into `text` as one piece.
void printAfiSafi(AfiSafi afiSafi, TextRun& text) {
  text << "<AFI:" << afiName(afiSafi.afi) << ">/<SAFI:" << safiName(afiSafi.safi) << ">";
}
void printNlriType(NlriType type, TextRun& text) {
  text << "<NLRI:" << nameOr(nlriTypeNames, type, "unknown") << ">";
}

} // namespace

const char* afiName(unsigned short afi) { return nameOr(afiNames, afi, "unknown"); }
const char* safiName(unsigned short safi) { return nameOr(safiNames, safi, "unknown"); }

std::ostream& formatAfi(unsigned short afi, std::ostream& os) { return os << afiName(afi); }
std::ostream& formatSafi(unsigned short safi, std::ostream& os) { return os << safiName(safi); }

std::ostream& formatAfiSafi(AfiSafi afiSafi, std::ostream& os) {
  TextRun text(os);
  printAfiSafi(afiSafi, text);
  return text.flush();
}

std::ostream& formatNlriType(NlriType type, std::ostream& os) {
  TextRun text(os);
  printNlriType(type, text);
  return text.flush();
}

AfiSafi bgpRouteKeyParseNlriType(unsigned char type) {
  auto it = nlriTypeToAfiSafi.find(type);
  return it != nlriTypeToAfiSafi.end() ? it->second : AfiSafi{0, 0};
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

unsigned formatNlriType(const unsigned char* p, std::ostream& os) {
  formatNlriType(static_cast<NlriType>(p[0]), os);
  return lengthNlriType(p);
}
unsigned lengthNlriType(const unsigned char*) { return 1; }

unsigned formatNlriType2AfiSafi(const unsigned char* p, std::ostream& os) {
  const NlriType type = static_cast<NlriType>(p[0]);
  TextRun text(os);
  if (auto it = nlriTypeToAfiSafi.find(type); it != nlriTypeToAfiSafi.end()) {
    printNlriType(type, text);
    printAfiSafi(it->second, text);
  } else {
    text << "<NLRI:unknown-";
    text.number(type);
    text << "><AfiSafi:unknown>";
  }
  text.flush();
  return lengthNlriType2AfiSafi(p);
}
unsigned lengthNlriType2AfiSafi(const unsigned char*) { return 1; }

} // namespace Orvane
