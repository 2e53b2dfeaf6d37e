#include "bgp/RouteKeyLayout.h"

#include "address/GenericPrefix.h"
#include "address/HexGroups.h"
#include "bgp/AfiSafi.h"
#include "bgp/RouteDistinguisher.h"
#include "bgp/RouteKey.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace Orvane {
namespace {

// The largest raw block of any layout.
constexpr unsigned kMostRawBytes = 63;

// A block of bytes whose meaning the key does not name: "0x" and its bytes as pairs of
// lower-case hex digits, up to the last non-zero byte; ".." stands for the zero bytes
// left out at the end (the block's size is fixed by the layout). An all-zero block
// prints its first byte: 0x00.. The stream's base is not touched.
void printRawBytes(std::ostream& os, const unsigned char* p, unsigned size) {
  unsigned shown = size;
  while (shown > 1 && p[shown - 1] == 0)
    --shown;
  os << "0x";
  char digits[2 * kMostRawBytes];
  const int n = static_cast<int>(shown);
  os.write(digits, writeHexGroups(p, n, n, ' ', digits) - digits); // one group: no separator
  if (shown < size)
    os << "..";
}

template <unsigned Size> unsigned formatRawBytes(const unsigned char* p, std::ostream& os) {
  static_assert(Size <= kMostRawBytes);
  printRawBytes(os, p, Size);
  return Size;
}
template <unsigned Size> unsigned lengthRawBytes(const unsigned char*) { return Size; }

template <unsigned Size> constexpr FieldKind kRawField{formatRawBytes<Size>, lengthRawBytes<Size>};

constexpr FieldKind kRdField{formatRouteDistinguisher, lengthRouteDistinguisher,
                             appendRouteDistinguisher};
constexpr FieldKind kRtField{formatRouteTarget, lengthRouteTarget, appendRouteTarget};
constexpr FieldKind kGenPrefixOptField{formatIpGenPrefixOptimized, lengthIpGenPrefixOptimized,
                                       appendIpGenPrefixOptimized};

// Address families and SAFIs with route key layouts of their own.
constexpr unsigned short kAfiIpv4 = 1, kAfiIpv6 = 2, kAfiL2vpn = 25;
constexpr unsigned short kAfiLinkState = 0x4004, kAfiMac = 0x4005;
constexpr unsigned short kSafiVpls = 65, kSafiEvpn = 70, kSafiLinkState = 71, kSafiSrTe = 73;
constexpr unsigned short kSafiMplsVpn = 128, kSafiRtMembership = 132;
constexpr unsigned short kSafiFlowspec = 133, kSafiFlowspecVpn = 134;
// Private SAFIs; the one-byte private codes 241..250 of 48bitMac are written as numbers.
constexpr unsigned short kSafiMacSegment = 0x101, kSafiMacAddress = 0x102;
constexpr unsigned short kSafiMacFloodTarget = 0x103, kSafiMacEthSegment = 0x104;
constexpr unsigned short kSafiMacArp = 0x105, kSafiMacMulticast = 0x106;
constexpr unsigned short kSafiMacJoinSynch = 0x107, kSafiMacLeaveSynch = 0x108;
constexpr unsigned short kSafiMacSpmsiAd = 0x10A;
constexpr unsigned short kSafiVplsAd = 0x10C, kSafiVplsVe = 0x10D;

// Unnamed fields are labelled with their kind.
constexpr LabeledField kU32{", u32:", &kU32Field}, kU64{", u64:", &kU64Field};
constexpr LabeledField kBool{", bool:", &kBoolField};

// ipv4 and ipv6.
constexpr FieldLayout prefixKey(const FieldKind& address) {
  return {{{"ip:", &address}, {"/", &kU8Field}}};
}
constexpr FieldLayout vpnPrefixKey(const FieldKind& address) {
  return {{{"rd:", &kRdField}, {", ip:", &address}, {"/", &kU8Field}}};
}
constexpr FieldLayout srTeKey(const FieldKind& endpoint) {
  return {{{"distinguisher:", &kU32Field}, {", color:", &kU32Field}, {", endpoint:", &endpoint}}};
}
constexpr FieldLayout kFlowspecKey{{{"u64:", &kU64Field}}};
constexpr FieldLayout kFlowspecVpnKey{{{"u64:", &kU64Field}, kU64}};
constexpr FieldLayout kRtMembershipKey{
    {{"origin:", &kU32Field}, {", rt:", &kRtField}, {"/", &kU8Field}}};
constexpr FieldLayout kIpAdSegmentKey{
    {{"u64:", &kU64Field}, {", raw:", &kRawField<10>}, kU32, kBool}};
constexpr FieldLayout kMacArpKey{{{"raw:", &kRawField<27>}, kU32, kU32}};

// EVPN: the route type names the key, "<EVPN-TypeN-Key: rd:" ... ">". A compact key has
// the Opt generic addresses where the full one has 21-byte ones, and prints the same.
constexpr LabeledField kEtid{", etid:", &kU32Field}, kEtid2{", etid2:", &kU32Field};
constexpr LabeledField kEsi{", esi:", &kEthSegmentField};

constexpr FieldLayout evpnType1Key() {
  return {{{"<EVPN-Type1-Key: rd:", &kRdField}, kEsi, kEtid}, ">"};
}
constexpr FieldLayout evpnType2Key(const FieldKind& ip) {
  return {
      {{"<EVPN-Type2-Key: rd:", &kRdField}, kEtid, kEtid2, {", mac:", &kEthField}, {", ip:", &ip}},
      ">"};
}
constexpr FieldLayout evpnType3Key(const FieldKind& ip) {
  return {{{"<EVPN-Type3-Key: rd:", &kRdField}, kEtid, kEtid2, {", ip:", &ip}, {", ip2:", &ip}},
          ">"};
}
constexpr FieldLayout evpnType4Key(const FieldKind& ip) {
  return {{{"<EVPN-Type4-Key: rd:", &kRdField}, kEsi, {", ip:", &ip}}, ">"};
}
constexpr FieldLayout evpnType5Key(const FieldKind& ip) {
  return {{{"<EVPN-Type5-Key: rd:", &kRdField}, kEtid, {", ip:", &ip}, {"/", &kU8Field}}, ">"};
}
// Types 6 and 10.
constexpr FieldLayout evpnThreeAddressKey(const char* opening, const FieldKind& ip) {
  return {{{opening, &kRdField}, kU32, {", ip:", &ip}, {", ip2:", &ip}, {", ip3:", &ip}}, ">"};
}
// Types 7 and 8.
constexpr FieldLayout evpnSynchKey(const char* opening, const FieldKind& ip) {
  return {{{opening, &kRdField},
           kU32,
           {", raw:", &kRawField<10>},
           {", ip:", &ip},
           {", ip2:", &ip},
           {", ip3:", &ip}},
          ">"};
}

// Link state: "<kind>Rk: proto:" u8, ", id:" u64, then the route type's own fields.
constexpr FieldLayout linkStateKey(const char* opening, LabeledField rest, LabeledField extra = {},
                                   LabeledField extra2 = {}) {
  return {{{opening, &kU8Field}, {", id:", &kU64Field}, rest, extra, extra2}};
}

// 48bitMac: unnamed fields only. Each private SAFI 0x101..0x104 has a one-byte
// counterpart (241..244) whose key is the same without its last field.
constexpr LabeledField kRaw10{", raw:", &kRawField<10>}, kRaw31{", raw:", &kRawField<31>};
constexpr LabeledField kRaw63{", raw:", &kRawField<63>};
constexpr FieldLayout kMacSegmentKey{{{"u64:", &kU64Field}, kRaw10, kU32, kBool, kBool}};
constexpr FieldLayout kMacSegmentShortKey{{{"u64:", &kU64Field}, kRaw10, kU32}};
constexpr FieldLayout kMacAddressKey{{{"raw:", &kRawField<6>}, kU32, kU32}};
constexpr FieldLayout kMacAddressShortKey{{{"raw:", &kRawField<6>}, kU32}};
constexpr FieldLayout kMacFloodTargetKey{{{"raw:", &kRawField<42>}, kU32, kU32}};
constexpr FieldLayout kMacFloodTargetShortKey{{{"raw:", &kRawField<21>}, kU32}};
constexpr FieldLayout kMacEthSegmentKey{{{"u64:", &kU64Field}, kRaw31, kBool}};
constexpr FieldLayout kMacEthSegmentShortKey{{{"u64:", &kU64Field}, kRaw31}};
constexpr FieldLayout kMacArpShortKey{{{"raw:", &kRawField<27>}, kU32}};
constexpr FieldLayout kMacMulticastKey{{{"u32:", &kU32Field}, kRaw63, kBool}};
constexpr FieldLayout kMacSynchKey{{{"raw:", &kRawField<10>}, kU32, kRaw63}};

// First match wins; kAnySafi rows come last in their AFI. The rows of an AFI are kept
// together, so that a search looks at its own AFI's rows only (kAfiRows).
constexpr RouteKeyLayout kRouteKeyLayouts[] = {
    {kAfiIpv4, kSafiFlowspec, kNoLetter, kFlowspecKey},
    {kAfiIpv4, kSafiMplsVpn, kNoLetter, vpnPrefixKey(kIpField)},
    {kAfiIpv4, kSafiRtMembership, kNoLetter, kRtMembershipKey},
    {kAfiIpv4, kSafiSrTe, kNoLetter, srTeKey(kIpField)},
    {kAfiIpv4, kSafiMacSegment, kNoLetter, kIpAdSegmentKey},
    {kAfiIpv4, kSafiMacArp, kNoLetter, kMacArpKey},
    {kAfiIpv4, kSafiFlowspecVpn, kNoLetter, kFlowspecVpnKey},
    {kAfiIpv4, kAnySafi, kNoLetter, prefixKey(kIpField)},

    {kAfiIpv6, kSafiFlowspec, kNoLetter, kFlowspecKey},
    {kAfiIpv6, kSafiSrTe, kNoLetter, srTeKey(kIp6Field)},
    {kAfiIpv6, kSafiMplsVpn, kNoLetter, vpnPrefixKey(kIp6Field)},
    {kAfiIpv6, kSafiFlowspecVpn, kNoLetter, kFlowspecVpnKey},
    {kAfiIpv6, kAnySafi, kNoLetter, prefixKey(kIp6Field)},

    {kAfiL2vpn, kSafiEvpn, '4', evpnType5Key(kIpField)},
    {kAfiL2vpn, kSafiEvpn, '6', evpnType5Key(kIp6Field)},
    {kAfiL2vpn, kSafiEvpn, 'A', evpnType1Key()},
    {kAfiL2vpn, kSafiEvpn, 'E', evpnType4Key(kIpGenAddrField)},
    {kAfiL2vpn, kSafiEvpn, 'e', evpnType4Key(kIpGenAddrOptField)},
    {kAfiL2vpn, kSafiEvpn, 'I', evpnType3Key(kIpGenAddrField)},
    {kAfiL2vpn, kSafiEvpn, 'i', evpnType3Key(kIpGenAddrOptField)},
    {kAfiL2vpn, kSafiEvpn, 'M', evpnType2Key(kIpGenAddrField)},
    {kAfiL2vpn, kSafiEvpn, 'm', evpnType2Key(kIpGenAddrOptField)},
    {kAfiL2vpn, kSafiEvpn, 'J', evpnSynchKey("<EVPN-Type7-Key: rd:", kIpGenAddrField)},
    {kAfiL2vpn, kSafiEvpn, 'V', evpnSynchKey("<EVPN-Type8-Key: rd:", kIpGenAddrField)},
    {kAfiL2vpn, kSafiEvpn, 'j', evpnSynchKey("<EVPN-Type7-Key: rd:", kIpGenAddrOptField)},
    {kAfiL2vpn, kSafiEvpn, 'v', evpnSynchKey("<EVPN-Type8-Key: rd:", kIpGenAddrOptField)},
    {kAfiL2vpn, kSafiEvpn, 'P', evpnThreeAddressKey("<EVPN-Type10-Key: rd:", kIpGenAddrField)},
    {kAfiL2vpn, kSafiEvpn, 'S', evpnThreeAddressKey("<EVPN-Type6-Key: rd:", kIpGenAddrField)},
    {kAfiL2vpn, kSafiEvpn, 'p', evpnThreeAddressKey("<EVPN-Type10-Key: rd:", kIpGenAddrOptField)},
    {kAfiL2vpn, kSafiEvpn, 's', evpnThreeAddressKey("<EVPN-Type6-Key: rd:", kIpGenAddrOptField)},
    {kAfiL2vpn, kSafiVpls, 'A', {{{"AD: rd:", &kRdField}, kU32}}},
    {kAfiL2vpn,
     kSafiVpls,
     'V',
     {{{"VE: rd:", &kRdField}, {", veId:", &kU16Field}, {", offset:", &kU16Field}}}},
    {kAfiL2vpn, kSafiVplsAd, kNoLetter, {{{"AD: u32:", &kU32Field}}}},
    {kAfiL2vpn, kSafiVplsVe, kNoLetter, {{{"VE: veId:", &kU16Field}, {", offset:", &kU16Field}}}},

    {kAfiLinkState, kSafiLinkState, 'L',
     linkStateKey("linkRk: proto:", {", raw:", &kRawField<60>})},
    {kAfiLinkState, kSafiLinkState, 'N', linkStateKey("nodeRk: proto:", {", raw:", &kRawField<9>})},
    {kAfiLinkState, kSafiLinkState, 'P',
     linkStateKey("prefixRk: proto:", {", raw:", &kRawField<27>})},
    {kAfiLinkState, kSafiLinkState, 'l',
     linkStateKey("linkRk: proto:", {", raw:", &kRawField<18>}, {", ip:", &kIpGenAddrOptField},
                  {", ip2:", &kIpGenAddrOptField})},
    {kAfiLinkState, kSafiLinkState, 'p',
     linkStateKey("prefixRk: proto:", {", raw:", &kRawField<9>},
                  {", prefix:", &kGenPrefixOptField})},

    {kAfiMac, 241, kNoLetter, kMacSegmentShortKey},
    {kAfiMac, kSafiMacSegment, kNoLetter, kMacSegmentKey},
    {kAfiMac, 242, kNoLetter, kMacAddressShortKey},
    {kAfiMac, kSafiMacAddress, kNoLetter, kMacAddressKey},
    {kAfiMac, 243, kNoLetter, kMacFloodTargetShortKey},
    {kAfiMac, kSafiMacFloodTarget, kNoLetter, kMacFloodTargetKey},
    {kAfiMac, 244, kNoLetter, kMacEthSegmentShortKey},
    {kAfiMac, kSafiMacEthSegment, kNoLetter, kMacEthSegmentKey},
    {kAfiMac, 245, kNoLetter, kMacArpShortKey},
    {kAfiMac, kSafiMacArp, kNoLetter, kMacArpKey},
    {kAfiMac, 246, kNoLetter, kMacMulticastKey},
    {kAfiMac, 250, kNoLetter, kMacMulticastKey},
    {kAfiMac, kSafiMacMulticast, kNoLetter, kMacMulticastKey},
    {kAfiMac, kSafiMacSpmsiAd, kNoLetter, kMacMulticastKey},
    {kAfiMac, 247, kNoLetter, kMacSynchKey},
    {kAfiMac, 248, kNoLetter, kMacSynchKey},
    {kAfiMac, kSafiMacJoinSynch, kNoLetter, kMacSynchKey},
    {kAfiMac, kSafiMacLeaveSynch, kNoLetter, kMacSynchKey},
};

// The rows [begin, end) of kRouteKeyLayouts that hold one AFI's layouts.
struct AfiRows {
  unsigned short afi = 0;
  std::size_t begin = 0, end = 0;
};

constexpr std::size_t countAfiGroups() {
  std::size_t groups = 0;
  for (std::size_t i = 0; i < std::size(kRouteKeyLayouts); ++i)
    groups += i == 0 || kRouteKeyLayouts[i].afi != kRouteKeyLayouts[i - 1].afi;
  return groups;
}

constexpr auto kAfiRows = [] {
  std::array<AfiRows, countAfiGroups()> groups{};
  std::size_t group = 0;
  for (std::size_t i = 0; i < std::size(kRouteKeyLayouts); ++i) {
    if (i > 0 && kRouteKeyLayouts[i].afi != kRouteKeyLayouts[i - 1].afi) ++group;
    if (groups[group].end == 0) groups[group] = {kRouteKeyLayouts[i].afi, i, i};
    groups[group].end = i + 1;
  }
  return groups;
}();

constexpr bool eachAfiInOneGroup() {
  for (std::size_t i = 0; i < kAfiRows.size(); ++i)
    for (std::size_t j = i + 1; j < kAfiRows.size(); ++j)
      if (kAfiRows[i].afi == kAfiRows[j].afi) return false;
  return true;
}
static_assert(eachAfiInOneGroup(), "keep the rows of an AFI together in kRouteKeyLayouts");

bool matches(const RouteKeyLayout& layout, unsigned short safi, const unsigned char* key) {
  return (layout.safi == safi || layout.safi == kAnySafi) &&
         (layout.letter == kNoLetter || layout.letter == key[0]);
}

// "ipv4/mplsVpn", "l2vpn/evpn, letter M", "ipv6/any other SAFI".
void writeLayoutName(unsigned row, std::ostream& os) {
  const RouteKeyLayout& layout = kRouteKeyLayouts[row];
  os << afiName(layout.afi) << "/"
     << (layout.safi == kAnySafi ? "any other SAFI" : safiName(layout.safi));
  if (layout.letter != kNoLetter) os << ", letter " << layout.letter;
}

} // namespace

constexpr FieldVariants kBgpRouteKeyVariants{
    "the AFI and SAFI and, in the families that have one, the route-type letter in the "
    "key's first byte (the fields follow it); the first row that matches is the layout, "
    "and a combination without one prints no key",
    std::size(kRouteKeyLayouts),
    [](unsigned row) -> const LabeledField* { return kRouteKeyLayouts[row].fields.fields; },
    writeLayoutName};

VariantBody routeKeyBody(unsigned short afi, unsigned short safi, const unsigned char* key) {
  for (const AfiRows& rows : kAfiRows) {
    if (rows.afi != afi) continue;
    for (std::size_t i = rows.begin; i < rows.end; ++i) {
      const RouteKeyLayout& layout = kRouteKeyLayouts[i];
      if (matches(layout, safi, key)) return {layout.fields.fields, layout.firstFieldOffset()};
    }
    return {};
  }
  return {};
}

unsigned lengthBgpRouteKey(unsigned short afi, unsigned short safi, const unsigned char* key) {
  return lengthVariant(routeKeyBody(afi, safi, key), key);
}

} // namespace Orvane
