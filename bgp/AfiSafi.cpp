#include "bgp/AfiSafi.h"

#include "registry/Bytes.h"

#include <cstdint>

namespace Orvane {

std::ostream& formatAfi(unsigned short afi, std::ostream& os) {
  printNameOr(os, afiNames, afi, "unknown");
  return os;
}

std::ostream& formatSafi(unsigned short safi, std::ostream& os) {
  printNameOr(os, safiNames, safi, "unknown");
  return os;
}

std::ostream& formatAfiSafi(AfiSafi afiSafi, std::ostream& os) {
  os << "<AFI:";
  formatAfi(afiSafi.afi, os) << ">/<SAFI:";
  return formatSafi(afiSafi.safi, os) << ">";
}

std::ostream& formatNlriType(NlriType type, std::ostream& os) {
  os << "<NLRI:";
  printNameOr(os, nlriTypeNames, type, "unknown");
  return os << ">";
}

AfiSafi bgpRouteKeyParseNlriType(unsigned char type) {
  auto it = nlriTypeToAfiSafi.find(type);
  return it != nlriTypeToAfiSafi.end() ? it->second : AfiSafi{0, 0};
}

unsigned formatAfi(const unsigned char* p, std::ostream& os) {
  os << "<AFI:";
  formatAfi(load<uint16_t>(p), os) << ">";
  return lengthAfi(p);
}
unsigned lengthAfi(const unsigned char*) { return 2; }

unsigned formatSafiLegacy(const unsigned char* p, std::ostream& os) {
  os << "<SAFI:";
  formatSafi(p[0], os) << ">";
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
  if (auto it = nlriTypeToAfiSafi.find(type); it != nlriTypeToAfiSafi.end())
    formatAfiSafi(it->second, formatNlriType(type, os));
  else
    os << "<NLRI:unknown-" << static_cast<unsigned>(type) << "><AfiSafi:unknown>";
  return lengthNlriType2AfiSafi(p);
}
unsigned lengthNlriType2AfiSafi(const unsigned char*) { return 1; }

} // namespace Orvane
