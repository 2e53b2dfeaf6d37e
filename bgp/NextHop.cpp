#include "bgp/NextHop.h"

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "bgp/EvpnL2Attrs.h"
#include "mpls/Label.h"
#include "registry/Bytes.h"
#include "registry/Fields.h"

#include <cstdint>
#include <iterator>

namespace Orvane {
namespace {

constexpr unsigned kTypeOffset = 5;
constexpr unsigned kBodyOffset = 6;

// An IPv6 SID and its length byte: address "/" length, 17 bytes.
constexpr LabeledField kSidFields[] = {{"", &kIp6Field}, {"/", &kU8Field}, {""}};

constexpr FieldKind kEvpnLabelField{formatEvpnLabel, lengthEvpnLabel, appendEvpnLabel,
                                    "EVPN label word", 4};
constexpr FieldKind kMplsLabelField{static_cast<FormatPtr>(formatMplsLabel), lengthMplsLabel,
                                    nullptr, "MPLS label", 4};
constexpr FieldKind kSidField{formatTable<kSidFields>, lengthTable<kSidFields>, nullptr,
                              "IPv6 SID, length byte", 17};

// Fields that several next-hop types share.
constexpr LabeledField kIp4{"<ip:", &kIpField}, kIp6{"<ip:", &kIp6Field};
constexpr LabeledField kIpv6{"<ipv6:", &kIp6Field};
constexpr LabeledField kLabel{", label:", &kEvpnLabelField};
constexpr LabeledField kLabel2{", label2:", &kEvpnLabelField};
constexpr LabeledField kL3Label{", l3Label:", &kEvpnLabelField};
constexpr LabeledField kL3Label2{", l3Label2:", &kEvpnLabelField};
constexpr LabeledField kRouterMac{", routerMac:", &kEthField};
constexpr LabeledField kEsi{", esi:", &kEthSegmentField};
constexpr LabeledField kMcastFlags{", mcastFlags:", &kU8Field};
constexpr LabeledField kMaxResponseTime{", maxResponseTime:", &kU8Field};
constexpr LabeledField kRemoteDomain{", remoteDomain:", &kBoolField};
constexpr LabeledField kNdProxyFlag{", ndProxyFlag:", &kBoolField};
constexpr LabeledField kVbs{", vbs:", &kU16Field};
constexpr LabeledField kLabelBase{", labelBase:", &kMplsLabelField};
constexpr LabeledField kL3Sid{", l3Sid:", &kSidField};
constexpr LabeledField kEtreeLeafLabel{", etreeLeafLabel:", &kEvpnLabelField};
// Layer-2 attributes print their own leading separator.
constexpr FieldKind kL2AttrsV1Field{formatEvpnL2AttrsV1, lengthEvpnL2Attrs};
constexpr FieldKind kL2AttrsV2Field{formatEvpnL2AttrsV2, lengthEvpnL2Attrs};
constexpr FieldKind kL2AttrsV3Field{formatEvpnL2AttrsV3, lengthEvpnL2Attrs};
constexpr LabeledField kL2AttrsV1{"", &kL2AttrsV1Field};
constexpr LabeledField kL2AttrsV2{"", &kL2AttrsV2Field};
constexpr LabeledField kL2AttrsV3{"", &kL2AttrsV3Field};

// The EVPN next hop of type 5, which types 12, 17, 30 and 32 extend.
constexpr FieldLayout evpnNextHop(LabeledField attrs = {}, LabeledField last = {}) {
  return {{kIp4,
           kLabel,
           {", singleActive:", &kBoolField},
           {", esiLabel:", &kEvpnLabelField},
           attrs,
           last},
          ">"};
}

// Types 20 and 21: an address with the remote and the local router MAC and labels.
constexpr FieldLayout routerMacsNextHop(LabeledField ip) {
  return {{ip,
           kL3Label,
           kRouterMac,
           {", localL3Label:", &kEvpnLabelField},
           {", localRouterMac:", &kEthField},
           {", localL3Label2:", &kEvpnLabelField}},
          ">"};
}

constexpr FieldLayout kNullNextHop{{}, "NULL"};

// Indexed by next-hop type.
constexpr FieldLayout kNextHopLayouts[] = {
    /* 0 */ kNullNextHop,
    /* 1 */ {{{"", &kIpField}}},
    /* 2 */ {{{"", &kIp6Field}}},
    /* 3 */ {{kIp4, kRouterMac}, ">"},
    /* 4 */ {{kIp6, kRouterMac}, ">"},
    /* 5 */ evpnNextHop(),
    /* 6 */ {{kIp4, kEsi, kLabel, kLabel2}, ">"},
    /* 7 */ {{kIpv6, {", label:", &kMplsLabelField}}, ">"},
    /* 8 */ {{kIp4, {", label:", &kU32Field}}, ">"},
    /* 9 */ {{kIpv6, {", label:", &kU32Field}}, ">"},
    /* 10 */ {{{"", &kIp6Field}, {"%", &kStringField}}},
    /* 11 */ {{kIp4, kEsi, kLabel, kLabel2, kNdProxyFlag}, ">"},
    /* 12 */ evpnNextHop(kL2AttrsV1),
    /* 13 */ {{kIp4, kMcastFlags}, ">"},
    /* 14 */ {{kIp6, kMcastFlags}, ">"},
    /* 15 */ {{kIp4, kMcastFlags, kMaxResponseTime}, ">"},
    /* 16 */ {{kIp6, kMcastFlags, kMaxResponseTime}, ">"},
    /* 17 */ evpnNextHop(kL2AttrsV2),
    /* 18 */ {{kIp4, kRemoteDomain}, ">"},
    /* 19 */ {{{"<l3Label:", &kEvpnLabelField}, kRouterMac, kL3Label2}, ">"},
    /* 20 */ routerMacsNextHop(kIp4),
    /* 21 */ routerMacsNextHop(kIp6),
    /* 22 */ {{{"", &kIpGenAddrField}}},
    /* 23 */
    {{{"<esi:", &kEthSegmentField}, kLabel, kL3Label, kLabel2, kL3Label2, kNdProxyFlag}, ">"},
    /* 24 */ {{{"<label:", &kEvpnLabelField}, kLabel2}, ">"},
    /* 25 */ {{{"<l3Label:", &kEvpnLabelField}, kRouterMac, kL3Label2, kL3Sid}, ">"},
    /* 26 */ {{kIpv6, kL3Sid}, ">"},
    /* 27 */ {{{"<ip:", &kIpGenAddrField}, kVbs, kLabelBase}, ">"},
    /* 28 */ {{{"", &kIpGenAddrOptField}}},
    /* 29 */ {{{"<ip:", &kIpGenAddrOptField}, kVbs, kLabelBase}, ">"},
    /* 30 */ evpnNextHop(kL2AttrsV2, kEtreeLeafLabel),
    /* 31 */ {{kIp4, kRemoteDomain, kL2AttrsV3}, ">"},
    /* 32 */ evpnNextHop(kL2AttrsV3, kEtreeLeafLabel),
};

// The body the type picks; an unknown type prints NULL.
VariantBody nextHopBody(const unsigned char* p) {
  const unsigned type = p[kTypeOffset];
  return {(type < std::size(kNextHopLayouts) ? kNextHopLayouts[type] : kNullNextHop).fields,
          kBodyOffset};
}

const char* vrfKindName(unsigned char kind) {
  static constexpr const char* kNames[] = {"L2", "L3", "SBD", "VPLS"};
  return kind < std::size(kNames) ? kNames[kind] : "unknown";
}

} // namespace

constexpr FieldVariants kBgpGenNextHopVariants{
    "the next-hop type (byte 5), the body starting at byte 6 (types above 32 print NULL "
    "as type 0 does)",
    std::size(kNextHopLayouts),
    [](unsigned type) -> const LabeledField* { return kNextHopLayouts[type].fields; }};

std::ostream& formatBgpVrfIdForRkAndNh(const unsigned char* p, std::ostream& os) {
  return printThroughRun(os, [p](TextRun& text) { printBgpVrfId(p, text); });
}

void printBgpVrfId(const unsigned char* p, TextRun& text) {
  text << vrfKindName(p[0]) << "-vrfId:";
  text.number(load<uint32_t>(p + 1));
}

unsigned appendBgpGenNextHop(const unsigned char* p, TextRun& text) {
  const unsigned count = printVariant(nextHopBody(p), p, text);
  text << " (";
  printBgpVrfId(p, text);
  text << ")";
  return count;
}
unsigned formatBgpGenNextHop(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendBgpGenNextHop>(p, os);
}

unsigned lengthBgpGenNextHop(const unsigned char* p) { return lengthVariant(nextHopBody(p), p); }

} // namespace Orvane
