#include "bgp/PeerKeys.h"

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "bgp/RouteKey.h"
#include "bgp/RouteKeyLayout.h"
#include "bgp/RouteKeyWrappers.h"
#include "registry/Bytes.h"
#include "registry/Fields.h"

#include <cstdint>
#include <iterator>

namespace Orvane {
namespace {

constexpr unsigned kPeerBodyOffset = 1;
constexpr unsigned kBmpNameOffset = 3;

constexpr LabeledField kInterfaceName{"%", &kStringField};
constexpr LabeledField kIpv4InParentheses{" (", &kIpField};

// Indexed by peer-key type.
constexpr FieldLayout kPeerKeyLayouts[] = {
    /* 0 */ {},
    /* 1 */ {{{"", &kIpGenAddrField}, kInterfaceName}},
    /* 2 */ {{{"", &kIpGenAddrField}}},
    /* 3 */ {{{"", &kStringField}}},
    /* 4 */ {{{"", &kIpGenAddrField}, kIpv4InParentheses}, ")"},
    /* 5 */ {{{"", &kIpGenAddrOptField}, kInterfaceName}},
    /* 6 */ {{{"", &kIpGenAddrOptField}}},
    /* 7 */ {{{"", &kIpGenAddrOptField}, kIpv4InParentheses}, ")"},
};

// The body the type picks; an unknown type prints nothing.
VariantBody peerKeyBody(const unsigned char* p) {
  static constexpr FieldLayout kNoBody{};
  return {(p[0] < std::size(kPeerKeyLayouts) ? kPeerKeyLayouts[p[0]] : kNoBody).fields,
          kPeerBodyOffset};
}

unsigned short bmpAfi(const unsigned char* p) { return load<uint16_t>(p); }
unsigned short bmpSafi(const unsigned char* p) { return p[2]; }

} // namespace

constexpr FieldVariants kBgpPeerKeyVariants{
    "the peer-key type (byte 0), the body starting at byte 1 (types above 7 print nothing)",
    std::size(kPeerKeyLayouts),
    [](unsigned type) -> const LabeledField* { return kPeerKeyLayouts[type].fields; }};

unsigned formatBgpPeerKey(const unsigned char* p, std::ostream& os) {
  return formatVariant(peerKeyBody(p), p, os);
}
unsigned lengthBgpPeerKey(const unsigned char* p) { return lengthVariant(peerKeyBody(p), p); }

// The peer's name is the host's to print.
unsigned appendBmpRouteKey(const unsigned char* p, TextRun& text) {
  printRouteKeyFrameOpening(bmpAfi(p), bmpSafi(p), text);
  const unsigned keyOffset = kBmpNameOffset + formatString(p + kBmpNameOffset, text.flush());
  text << "; ";
  const unsigned key = appendBgpRouteKey(bmpAfi(p), bmpSafi(p), p + keyOffset, text);
  text << ")> ";
  return keyOffset + key;
}
unsigned formatBmpRouteKey(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendBmpRouteKey>(p, os);
}
unsigned lengthBmpRouteKey(const unsigned char* p) {
  const unsigned keyOffset = kBmpNameOffset + lengthString(p + kBmpNameOffset);
  return keyOffset + lengthBgpRouteKey(bmpAfi(p), bmpSafi(p), p + keyOffset);
}

unsigned appendAdjRibinType(const unsigned char* p, TextRun& text) {
  text << "<AdjRibin:" << nameOr(adjRibinTypeNames, p[0], "unknown") << ">";
  return lengthAdjRibinType(p);
}
unsigned formatAdjRibinType(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendAdjRibinType>(p, os);
}
unsigned lengthAdjRibinType(const unsigned char*) { return 1; }

} // namespace Orvane
