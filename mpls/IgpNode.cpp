#include "mpls/IgpNode.h"

#include "address/HexGroups.h"
#include "address/Ip.h"
#include "registry/HexDigits.h"

#include <string_view>

namespace Orvane {
namespace {

enum NodeIdKind : unsigned char { kSystemId = 1, kPseudonode = 2, kRouterId = 5 };

// Big enough for a pseudonode id (17 characters) and a dotted IPv4 address.
constexpr unsigned kTextSize = 24;

// The system id at bytes 3-8, a little-endian 48-bit number: high group first.
char* writeSystemId(const unsigned char* p, char* out) {
  const unsigned char highFirst[6] = {p[8], p[7], p[6], p[5], p[4], p[3]};
  return writeHexGroups(highFirst, 6, 2, '.', out);
}

} // namespace

unsigned formatIgpNodeId(const unsigned char* p, std::ostream& os) {
  char text[kTextSize];
  std::string_view shown;
  switch (p[0]) {
  case kSystemId: shown = {text, writeSystemId(p, text)}; break;
  case kPseudonode: {
    char* out = writeSystemId(p, text);
    *out++ = '.';
    shown = {text, writeHexByte(p[2], out)};
    break;
  }
  case kRouterId: shown = formatIpAddr(p + 1, text, kTextSize); break;
  default: shown = "unknown";
  }
  os << shown;
  return lengthIgpNodeId(p);
}
unsigned lengthIgpNodeId(const unsigned char*) { return 9; }

} // namespace Orvane
