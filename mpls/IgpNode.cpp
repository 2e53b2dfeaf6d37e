#include "mpls/IgpNode.h"

#include "address/Ip.h"
#include "registry/Bytes.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace Orvane {
namespace {

enum NodeIdKind : unsigned char { kSystemId = 1, kPseudonode = 2, kRouterId = 5 };

// Big enough for a pseudonode id (17 characters) and a dotted IPv4 address.
constexpr unsigned kTextSize = 24;

// The system id at bytes 3-8, high group first, optionally followed by the pseudonode.
void writeSystemId(const unsigned char* p, char* text, bool withPseudonode) {
  const uint16_t low = load<uint16_t>(p + 3), middle = load<uint16_t>(p + 5),
                 high = load<uint16_t>(p + 7);
  if (withPseudonode)
    std::snprintf(text, kTextSize, "%04hx.%04hx.%04hx.%02hhx", high, middle, low, p[2]);
  else
    std::snprintf(text, kTextSize, "%04hx.%04hx.%04hx", high, middle, low);
}

} // namespace

unsigned formatIgpNodeId(const unsigned char* p, std::ostream& os) {
  char text[kTextSize];
  switch (p[0]) {
  case kSystemId: writeSystemId(p, text, false); break;
  case kPseudonode: writeSystemId(p, text, true); break;
  case kRouterId: formatIpAddr(p + 1, text, kTextSize); break;
  default: std::strcpy(text, "unknown");
  }
  os << text;
  return lengthIgpNodeId(p);
}
unsigned lengthIgpNodeId(const unsigned char*) { return 9; }

} // namespace Orvane
