// Every type id the plug-in supplies, with its format and length functions, as
// constant data. formatMap is built from this table at load time, and code that knows
// an id when it is compiled (the tracepoint macro, say) finds the id's functions here
// without a lookup at run time:
//
//   constexpr LengthPtr length = idEntry("BNH").length; // lengthBgpGenNextHop
#pragma once

#include "address/AddressFamily.h"
#include "address/AfAddress.h"
#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "address/GenericPrefix.h"
#include "address/Ip.h"
#include "address/SystemId.h"
#include "bgp/AfiSafi.h"
#include "bgp/EvpnL2Attrs.h"
#include "bgp/NextHop.h"
#include "bgp/NlriType.h"
#include "bgp/PeerKeys.h"
#include "bgp/RouteDistinguisher.h"
#include "bgp/RouteKey.h"
#include "bgp/RouteKeyWrappers.h"
#include "keys/ArpKeys.h"
#include "keys/BindingKeys.h"
#include "keys/ConnectionKeys.h"
#include "keys/ForwardingKeys.h"
#include "keys/IntfEncap.h"
#include "keys/Sequences.h"
#include "mpls/BfdKeys.h"
#include "mpls/CspfKeys.h"
#include "mpls/Fec.h"
#include "mpls/IgpNode.h"
#include "mpls/Label.h"
#include "mpls/Multicast.h"
#include "mpls/RibKeys.h"
#include "mpls/TunnelKeys.h"
#include "packet/Packet.h"
#include "registry/Formatter.h"
#include "registry/ValueLayout.h"

#include <iterator>
#include <string_view>
#include <type_traits>

namespace Orvane {

/// One row of the id table: the id, its functions, and what the per-id reference
/// (IdReference.h) says of it.
struct IdEntry {
  std::string_view id;
  FormatPtr format = nullptr;
  LengthPtr length = nullptr;
  /// What the value holds.
  std::string_view title = "";
  /// The table both functions walk (FieldKind.h), for a key written as one; else
  /// nullptr, and `size` says how the length function finds the value's size.
  const FieldTable* fields = nullptr;
  std::string_view size = "";
  /// A value in hex, pairs of digits separated by blanks, exactly as long as the length
  /// function says; the reference prints the text formatting it gives.
  std::string_view example = "";
  /// For a composite whose body depends on a code: its variants' bodies (FieldKind.h),
  /// listed after `size`.
  const FieldVariants* variants = nullptr;
  /// For a value not written as a table: its bytes and the codes that pick what it
  /// prints (ValueLayout.h), listed before `size`.
  const ValueLayout* layout = nullptr;
};

/// Every id, one block per family (kIdFamilies) and sorted by id within it. The order
/// is formatMap's and the registration order.
inline constexpr IdEntry kIdTable[] = {
    {"A", formatAfAddr, lengthAfAddr, "family-tagged address", nullptr,
     "byte 0, the whole value's length", "07 29 49 00 01 02 03"},
    {"AF", formatAf, lengthAf, "address family code", nullptr, "1", "02"},
    {"AM4", formatIpPrefix, lengthIpPrefix, "IPv4 prefix", nullptr, "5", "00 00 00 0a 08"},
    {"AM6", formatIp6Prefix, lengthIp6Prefix, "IPv6 prefix", nullptr, "17",
     "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 00 20"},
    {"DSFID", formatDsfSystemId, lengthDsfSystemId, "DSF system identifier", &kDsfSystemIdFields,
     "", "01 02 00 04 6c 63 31 61"},
    {"E", formatEth, lengthEth, "MAC address", nullptr, "6", "00 1c 73 aa bb cc"},
    {"EC", formatEthColonSeparated, lengthEthColonSeparated, "MAC address, colon-separated",
     nullptr, "6", "00 1c 73 aa bb cc"},
    {"EM", formatEthMask, lengthEthMask, "MAC address and mask", &kEthMaskFields, "",
     "00 1c 73 00 00 00 ff ff ff 00 00 00"},
    {"ES", formatEthSegment, lengthEthSegment, "Ethernet segment identifier", nullptr, "10",
     "00 11 22 33 44 55 66 77 88 99"},
    {"I", formatIp, lengthIp, "IPv4 address (native u32)", nullptr, "4", "01 00 00 0a"},
    {"I6", formatIp6Addr, lengthIp6Addr, "IPv6 address", nullptr, "16",
     "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"},
    {"IG", formatIpGenAddr, lengthIpGenAddr, "generic address (21 bytes)", nullptr, "21",
     "07 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"},
    {"IGM", formatIpGenAddrWithFullMask, lengthIpGenAddrWithFullMask, "generic address and mask",
     &kIpGenAddrWithFullMaskFields, "",
     "01 00 00 01 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01 00 00 ff ff 00 00 00 00 00 "
     "00 00 00 00 00 00 00 00 00 00 00"},
    {"IGMO", formatIpGenAddrOptWithFullMask, lengthIpGenAddrWithFullMaskOpt,
     "generic address and mask, Opt form", &kIpGenAddrOptWithFullMaskFields, "",
     "01 00 00 10 ac 01 00 00 f0 ff"},
    {"IGO", formatIpGenAddrOpt, lengthIpGenAddrOpt, "generic address, Opt form", nullptr,
     "5, 17 or 1 by the tag byte", "01 01 00 00 0a"},
    {"IP", formatIpAndPort, lengthIpAndPort, "IPv4 address and port", nullptr, "6",
     "01 00 00 0a b3 00"},
    {"IS", formatIsisSystemId, lengthIsisSystemId, "IS-IS system identifier", nullptr, "6",
     "19 21 68 00 10 01"},
    {"P", formatIpPrefix, lengthIpPrefix, "IPv4 prefix", nullptr, "5", "00 00 00 0a 08"},
    {"P6", formatIp6Prefix, lengthIp6Prefix, "IPv6 prefix", nullptr, "17",
     "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 00 20"},
    {"PG", formatIpGenPrefix, lengthIpGenPrefix, "generic prefix (18 bytes)", nullptr, "18",
     "02 20 01 0d b8 00 01 00 00 00 00 00 00 00 00 00 00 30"},
    {"PGO", formatIpGenPrefixOptimized, lengthIpGenPrefixOptimized,
     "generic prefix, Optimized form", nullptr,
     "2 + ceil(L/8) after the tag and the length byte L (2 for tag 0 or L 255, 7 for the IPv4 L 33 "
     "marker); invalid for a tag above 2",
     "01 14 0a 01 10"},
    {"AFI", static_cast<FormatPtr>(formatAfi), lengthAfi, "BGP address family (u16)", nullptr, "2",
     "19 00"},
    {"AFS", static_cast<FormatPtr>(formatAfiSafi), lengthAfiSafi,
     "SAFI (low u16) and AFI (high u16) in one word", nullptr, "4", "80 00 01 00"},
    {"EL", formatEvpnLabel, lengthEvpnLabel, "EVPN label word (type, value)", nullptr, "4",
     "00 dc 05 02"},
    {"EL2", formatEvpnL2AttrsV2, lengthEvpnL2Attrs, "EVPN layer-2 attributes, version 2", nullptr,
     "8 when bit 0 of the u32 is set, else 4", "07 01 01 00 dc 05 00 00"},
    {"EL2V3", formatEvpnL2AttrsV3, lengthEvpnL2Attrs,
     "EVPN layer-2 attributes, version 3 (with the F flag)", nullptr,
     "8 when bit 0 of the u32 is set, else 4", "17 01 01 00 dc 05 00 00"},
    {"EL2old", formatEvpnL2AttrsV1, lengthEvpnL2Attrs,
     "EVPN layer-2 attributes, version 1 (codes 1 and 2 swapped)", nullptr,
     "8 when bit 0 of the u32 is set, else 4", "0b 02 02 00 ea 05 00 00"},
    {"FM", formatMplsFwdEqvClass, lengthMplsFwdEqvClass, "MPLS FEC", nullptr,
     "1 + the body its type byte names (types 0-3); invalid for any other type",
     "01 e9 03 00 00 01 00 00 0a", &kMplsFwdEqvClassVariants},
    {"FMO", formatMplsFwdEqvClassOptimized, lengthMplsFwdEqvClassOptimized,
     "MPLS FEC, optimized addresses", nullptr,
     "1 + the body its type byte names, with Optimized and Opt addresses (types 0-3); invalid for "
     "any other type",
     "00 01 20 0a 00 00 01", &kMplsFwdEqvClassOptimizedVariants},
    {"GFID", formatGlobalFecId, lengthGlobalFecId,
     "global FEC id (tableId shows the fecId's low 16 bits)", nullptr, "10",
     "2a 00 00 00 00 00 00 00 00 00"},
    {"LO", formatMplsLabelOperation, lengthMplsLabelOperation, "label operation and stack", nullptr,
     "2 + 4 per label of the count byte; invalid for a count above 13",
     "02 02 03 00 00 00 10 00 00 00", nullptr, &kMplsLabelOperationLayout},
    {"LVK", formatLfibViaKey, lengthLfibViaKey, "LFIB via key", &kLfibViaKeyFields, "",
     "01 41 5d 00 00 00"},
    {"ML", static_cast<FormatPtr>(formatMplsLabel), lengthMplsLabel, "MPLS label (u32)", nullptr,
     "4", "41 5d 00 00"},
    {"MRTR", formatMplsRouterId, lengthMplsRouterId, "MPLS router id", nullptr, "7",
     "01 0a 00 00 01 00 01"},
    {"NLRI", static_cast<FormatPtr>(formatNlriType), lengthNlriType, "platform NLRI type", nullptr,
     "1", "13"},
    {"NLRI2AFISAFI", formatNlriType2AfiSafi, lengthNlriType2AfiSafi,
     "NLRI type and the pair it implies", nullptr, "1", "04"},
    {"RD", static_cast<FormatPtr>(formatRouteDistinguisher), lengthRouteDistinguisher,
     "route distinguisher (u64)", nullptr, "8", "64 00 01 00 00 0a 01 00", nullptr,
     &kRouteDistinguisherLayout},
    {"RT", static_cast<FormatPtr>(formatRouteTarget), lengthRouteTarget, "route target (u64)",
     nullptr, "8", "64 00 00 00 e8 fd 02 00", nullptr, &kRouteTargetLayout},
    {"RTMRK", formatRtMembershipRouteKey, lengthRtMembershipRouteKey, "RT membership route key",
     &kRtMembershipRouteKeyFields, "", "e8 fd 00 00 64 00 00 00 e8 fd 02 00 60"},
    {"SAFI", formatSafiLegacy, lengthSafi, "BGP SAFI (one byte)", nullptr, "1", "46"},
    {"BP", formatBfdPeer, lengthBfdPeer, "BFD peer (generic addresses)", &kBfdPeerFields, "",
     "01 01 00 00 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 03 72 65 64 01 02 00 00 0a 00 "
     "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 03 65 74 31 09 00 00 00 00 00 00 00 01 00 00 "
     "00"},
    {"BPO", formatBfdPeerOptimized, lengthBfdPeerOptimized, "BFD peer, Opt addresses",
     &kBfdPeerOptimizedFields, "",
     "01 01 00 00 0a 03 72 65 64 01 02 00 00 0a 03 65 74 31 09 00 00 00 00 00 00 00 01 00 00 00"},
    {"CCPK", formatCspfClientPathKey, lengthCspfClientPathKey, "CSPF client path key", nullptr,
     "1 + the body its kind byte names (kind 0: a path key, 1: a P2MP path key); invalid for any "
     "other kind",
     "01 2a 00 00 00", &kCspfClientPathKeyVariants},
    {"CP2MPK", formatCspfP2mpPathKey, lengthCspfP2mpPathKey, "CSPF P2MP path key",
     &kCspfP2mpPathKeyFields, "", "03 00 00 00"},
    {"CPK", formatCspfPathKey, lengthCspfPathKey, "CSPF path key (vertex, id)", &kCspfPathKeyFields,
     "", "03 01 00 00 0a 07 00 00 00"},
    {"CV", formatCspfVertex, lengthCspfVertex, "CSPF vertex", nullptr,
     "1 + the body its type byte names (0, 5, 17, 4, 16, 6 or 4 bytes for types 0-6); invalid for "
     "a type above 6",
     "01 00 00 00 0a 08"},
    {"IGPN", formatIgpNodeId, lengthIgpNodeId, "IGP node id (system id, pseudonode or router id)",
     nullptr, "9", "02 00 0a 06 05 04 03 02 01"},
    {"MF", formatMRouteFlags, lengthMRouteFlags,
     "multicast route flags (a byte per letter of mRouteFlags)", nullptr,
     "one byte per letter of mRouteFlags (13)", "01 00 01 01 00 00 00 00 00 00 00 00 00"},
    {"MFGK", formatMfibGenRouteKey, lengthMfibGenRouteKey, "MFIB route key, generic prefixes",
     &kMfibGenRouteKeyFields, "",
     "01 0a 00 00 01 00 00 00 00 00 00 00 00 00 00 00 00 20 01 ef 01 01 01 00 00 00 00 00 00 00 00 "
     "00 00 00 00 20"},
    {"MFGKO", formatMfibGenRouteKeyOptimized, lengthMfibGenRouteKeyOptimized,
     "MFIB route key, Optimized prefixes", &kMfibGenRouteKeyOptimizedFields, "",
     "01 00 01 20 ef 01 01 01"},
    {"MFK", formatMfibRouteKey, lengthMfibRouteKey, "MFIB route key (two IPv4 prefixes)",
     &kMfibRouteKeyFields, "", "01 00 00 0a 20 01 01 01 ef 20"},
    {"MIJ", formatMRouteIntfJoinState, lengthMRouteIntfJoinState, "interface join state", nullptr,
     "4", "01 00 00 00"},
    {"MIR", formatMRouteIntfRptJoinState, lengthMRouteIntfRptJoinState, "interface RPT join state",
     nullptr, "4", "01 00 00 00"},
    {"MK", formatMRouteKey, lengthMRouteKey, "multicast route key (two generic addresses)",
     &kMRouteKeyFields, "",
     "01 01 00 00 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01 01 01 01 ef 00 00 00 00 00 "
     "00 00 00 00 00 00 00 00 00 00 00"},
    {"MKO", formatMRouteKeyOptimized, lengthMRouteKeyOptimized,
     "multicast route key, Opt addresses", &kMRouteKeyOptimizedFields, "",
     "01 01 00 00 0a 01 01 01 01 ef"},
    {"MTT", formatMulticastTunnelType, lengthMulticastTunnelType, "multicast tunnel type", nullptr,
     "1", "02"},
    {"PGKR", formatIpGenUcastKeyRef, lengthIpGenUcastKeyRef,
     "unicast key reference (VRF, generic prefix)", &kIpGenUcastKeyRefFields, "",
     "01 00 01 0a 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 10"},
    {"PGKRO", formatIpGenUcastKeyRefOptimized, lengthIpGenUcastKeyRefOptimized,
     "unicast key reference, Optimized prefix", &kIpGenUcastKeyRefOptimizedFields, "",
     "01 00 01 10 0a 01"},
    {"PW", formatPseudowireKey, lengthPseudowireKey,
     "pseudowire key (number, name, generic address)", &kPseudowireKeyFields, "",
     "64 00 00 00 03 65 74 31 01 01 00 00 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"},
    {"PWO", formatPseudowireKeyOptimized, lengthPseudowireKeyOptimized,
     "pseudowire key, Opt address", &kPseudowireKeyOptimizedFields, "",
     "64 00 00 00 03 65 74 31 01 01 00 00 0a"},
    {"RRRK", formatRibRouteKey, lengthRibRouteKey, "RIB route key (number, generic prefix)",
     &kRibRouteKeyFields, "", "2a 00 00 00 01 0a 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 10"},
    {"RRRKO", formatRibRouteKeyOptimized, lengthRibRouteKeyOptimized,
     "RIB route key, Optimized prefix", &kRibRouteKeyOptimizedFields, "",
     "2a 00 00 00 01 10 0a 01"},
    {"RRRP", formatRoutingProtocol, lengthRoutingProtocol, "routing protocol code", nullptr, "1",
     "07"},
    {"RVK", formatRibViaKey, lengthRibViaKey, "RIB via key (id, VRF, protocol)", &kRibViaKeyFields,
     "", "05 00 00 00 00 00 00 00 00 00 00 00 0c"},
    {"TK", formatTunnelKey, lengthTunnelKey, "tunnel key (IPv4, fixed offsets)", nullptr, "20",
     "01 00 00 0a 02 00 00 0a 05 00 00 00 07 00 00 00 00 00 00 00"},
    {"TKG", formatTunnelKeyGen, lengthTunnelKeyGen, "tunnel key, generic addresses",
     &kTunnelKeyGenFields, "",
     "01 01 00 00 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01 02 00 00 0a 00 00 00 00 00 "
     "00 00 00 00 00 00 00 00 00 00 00 05 00 00 00 07 00 00 00 00 00 00 00"},
    {"TKGO", formatTunnelKeyGenOptimized, lengthTunnelKeyGenOptimized, "tunnel key, Opt addresses",
     &kTunnelKeyGenOptimizedFields, "",
     "01 01 00 00 0a 01 02 00 00 0a 05 00 00 00 07 00 00 00 00 00 00 00"},
    {"VLAFP", formatAfProto, lengthAfProto, "address family and protocol", &kAfProtoFields, "",
     "02 03"},
    {"VLAFPV", formatAfProtoVrfId, lengthAfProtoVrfId, "address family, protocol and VRF id",
     &kAfProtoVrfIdFields, "", "01 05 07 00 00 00"},
    {"BMPRK", formatBmpRouteKey, lengthBmpRouteKey,
     "BMP route key: AFI, SAFI, peer name, route key", nullptr,
     "3 + the peer name string + the route key of the AFI and SAFI",
     "01 00 80 03 70 65 31 64 00 00 00 e8 fd 00 00 00 00 01 0a 10", &kBgpRouteKeyVariants},
    {"BNH", formatBgpGenNextHop, lengthBgpGenNextHop, "BGP next hop (VRF, type, body by type)",
     nullptr, "6 + the body its next-hop type byte (at 5) names",
     "01 02 00 00 00 03 01 00 00 0a 00 1c 73 aa bb cc", &kBgpGenNextHopVariants},
    {"BPK", formatBgpPeerKey, lengthBgpPeerKey, "BGP peer key", nullptr,
     "1 + the body its type byte names", "05 01 01 00 00 0a 03 65 74 31", &kBgpPeerKeyVariants},
    {"BRK", formatBgpRouteKeyOld, lengthBgpRouteKeyOld,
     "BGP route key with AFI, SAFI, NLRI type and VRF", nullptr,
     "9 + the route key of the AFI and SAFI", "01 00 01 01 01 01 00 00 00 00 00 a8 c0 18",
     &kBgpRouteKeyVariants},
    {"BRY", formatBgpRouteKeyNew, lengthBgpRouteKeyNew,
     "BGP route key with NLRI type and VRF (route keys: /usr/share/doc/orvane/route-keys.md)",
     nullptr, "6 + the route key of the NLRI type's AFI and SAFI",
     "04 00 0a 00 00 00 6d 64 00 00 00 e8 fd 00 00 00 00 00 00 00 00 00 00 00 1c 73 aa bb cc 01 01 "
     "00 00 0a",
     &kBgpRouteKeyVariants},
    {"RIBINT", formatAdjRibinType, lengthAdjRibinType, "adj-RIB-in entry type", nullptr, "1", "07"},
    {"ARPICE", formatArpInputConfigEntry, lengthArpInputConfigEntry,
     "ARP input configuration entry", nullptr,
     "the key, 6, u8 and u32, plus two u32 when the flag byte is 1",
     "07 00 00 1c 73 a1 b2 c3 01 2c 01 00 00 04 00 00 00 3c 00 00 00",
     &kArpInputConfigEntryVariants},
    {"ARPICK", formatArpInputConfigKey, lengthArpInputConfigKey, "ARP input configuration key",
     &kArpInputConfigKeyFields, "", "01 01 01 01 0a 04 56 6c 31 30"},
    {"ARPIPIK", formatArpInputPriorityInterfaceKey, lengthArpInputPriorityInterfaceKey,
     "ARP input priority key with interface", &kArpInputPriorityInterfaceKeyFields, "",
     "01 64 00 00 00 04 56 6c 31 30"},
    {"ARPIPK", formatArpInputPriorityKey, lengthArpInputPriorityKey, "ARP input priority key",
     &kArpInputPriorityKeyFields, "", "01 64 00 00 00"},
    {"C", formatConnTuple, lengthConnTuple, "connection tuple", nullptr, "13",
     "0a 01 a8 c0 38 c7 08 08 08 08 35 00 11"},
    {"DMBK", formatDuidMacBindingKey, lengthDuidMacBindingKey, "DHCP unique id to MAC binding key",
     &kDuidMacBindingKeyFields, "", "03 00 01 00 00 1c 73 a1 b2 c3 00 01 00 00 00 02 63 31"},
    {"F", formatFapmask, lengthFapmask, "FAP id mask (128 bits)", nullptr, "16",
     "1d 00 00 00 00 00 00 00 00 00 00 00 00 00 00 80"},
    {"GR", formatGenRange, lengthGenRange, "generic range", nullptr,
     "1 + the body its kind byte names (1, 19, 1 + a US sequence or 43 in all); invalid for any "
     "other kind",
     "01 01 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 08", &kGenRangeVariants},
    {"GRO", formatGenRangeOptimized, lengthGenRangeOptimized, "generic range, compact form",
     nullptr, "1 + the body its kind byte names; invalid for any other kind",
     "ff 01 01 00 00 0a 01 64 00 00 0a", &kGenRangeOptimizedVariants},
    {"HIFK", formatHoIpFlowKey, lengthHoIpFlowKey, "IP flow key with interface",
     &kHoIpFlowKeyFields, "",
     "00 00 00 00 0a 00 01 01 01 0a 02 02 02 0a 06 00 c0 b3 00 03 45 74 35"},
    {"IDS", formatIdSet, lengthIdSet, "id set (bitmap words)", nullptr,
     "1 + 9 per word of the count byte", "01 00 0e 04 00 00 00 00 00 00"},
    {"IE", formatIntfEncap, lengthIntfEncap, "interface encapsulation", &kIntfEncapFields, "",
     "03 45 74 31 64 00 c8 00"},
    {"IE2", formatIntfEncapV2, lengthIntfEncapV2, "interface encapsulation with VLAN tags",
     &kIntfEncapV2Fields, "", "03 45 74 32 64 00 a8 88 00 c8 00 00 81 00"},
    {"IFK", formatIpFlowKey, lengthIpFlowKey, "IP flow key", &kIpFlowKeyFields, "",
     "00 00 00 00 0a 00 01 01 01 0a 02 02 02 0a 06 00 c0 b3 00"},
    {"IPMACV2", formatIpMacV2, lengthIpMacV2, "IP to MAC binding", &kIpMacV2Fields, "",
     "01 05 01 01 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 1c 73 a1 b2 c3 0a 00 00 00 "
     "01"},
    {"IPMACV2O", formatIpMacV2Optimized, lengthIpMacV2Optimized, "IP to MAC binding, Opt address",
     &kIpMacV2OptimizedFields, "", "01 05 01 01 0a 00 1c 73 a1 b2 c3 0a 00 00 00 01"},
    {"MV", formatMacVtep, lengthMacVtep, "MAC to VTEP binding", &kMacVtepFields, "",
     "52 54 00 0a 0b 0c 02 00 00 0a 1a 27 00 00 01"},
    {"MVP", formatMacVlanPair, lengthMacVlanPair, "MAC and VLAN", &kMacVlanPairFields, "",
     "00 1c 73 a1 b2 c3 0a 00"},
    {"NDC", formatNatDynamicConn, lengthNatDynamicConn, "dynamic NAT connection",
     &kNatDynamicConnFields, "", "03 45 74 31 0a 01 a8 c0 38 c7 08 08 08 08 35 00 11"},
    {"NDK", formatNatDynamicKey, lengthNatDynamicKey, "dynamic NAT key", &kNatDynamicKeyFields, "",
     "03 61 63 6c 01 00"},
    {"NSK", formatNatStaticKey, lengthNatStaticKey, "static NAT key", &kNatStaticKeyFields, "",
     "03 61 63 6c 05 71 00 cb bb 01"},
    {"OUTAC", formatOutAcKey, lengthOutAcKey, "out-AC key", &kOutAcKeyFields, "",
     "03 00 00 00 00 00 00 00 00 00 00 00 00 00 00 80 01 00 00 00 00 00 00 00 00 00 00 00 e8 03 00 "
     "00 00 03 03 45 74 31 64 00 00 20 00 00 01"},
    {"OUTACTYPE", formatOutAcTypeKey, lengthOutAcTypeKey, "out-AC type key", &kOutAcTypeKeyFields,
     "", "02 00 01 10 00 00 01"},
    {"PKT", formatKanetPkt, lengthKanetPkt, "packet (hex dump without the packet library)", nullptr,
     "7 + the string at offset 7", "00 81 64 30 01 00 00 02 45 00"},
    {"PMK", formatUpnpPortMapKey, lengthUpnpPortMapKey, "UPnP port mapping key",
     &kUpnpPortMapKeyFields, "", "14 01 a8 c0 90 1f 06"},
    {"SVIESEM", formatSviEgressEsemRequestKey, lengthSviEgressEsemRequestKey,
     "SVI egress ESEM request key", &kSviEgressEsemRequestKeyFields, "",
     "00 00 00 00 00 02 00 01 10 00 00 01"},
    {"SVIEVE", formatSviEgressEveKey, lengthSviEgressEveKey, "SVI egress EVE key",
     &kSviEgressEveKeyFields, "", "04 56 6c 31 30 03 45 74 31 00 00 03 50 6f 31"},
    {"UDF", formatUdfDesc, lengthUdfDesc, "user-defined field descriptor", &kUdfDescFields, "",
     "02 75 31 00 08 02 6c 34 11 00 00 08 02 ff 00 00 00 01"},
    {"US", formatUnsignedSequence, lengthUnsignedSequence, "unsigned sequence, mixed widths",
     nullptr, "2 + 1 + w per element of width w; invalid at the first bad width",
     "02 2c 01 05 02 00 01"},
    {"VIDP", formatVrfIdPair, lengthVrfIdPair, "VRF id pair", &kVrfIdPairFields, "",
     "01 00 00 00 02 00 00 00"},
    {"VIP", formatVlanIpPair, lengthVlanIpPair, "VLAN and generic address", &kVlanIpPairFields, "",
     "0a 00 01 01 01 01 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"},
    {"VIPO", formatVlanIpPairOptimized, lengthVlanIpPairOptimized,
     "VLAN and generic address, Opt form", &kVlanIpPairOptimizedFields, "", "14 00 01 01 01 01 0a"},
    {"VSP", formatVniSourcePair, lengthVniSourcePair, "VNI and its sources", &kVniSourcePairFields,
     "", "1a 27 00 00 06 56 78 6c 61 6e 31 04 65 76 70 6e"},
};

/// A block of kIdTable: its name and the number of rows it holds, in table order.
struct IdFamily {
  std::string_view name;
  unsigned rows;
};

inline constexpr IdFamily kIdFamilies[] = {
    {"Addresses, prefixes, MACs and system ids", 21},
    {"BGP codes, RDs and RTs, MPLS labels and FECs, EVPN layer-2 attributes", 19},
    {"Tunnel, pseudowire, RIB, IGP node, multicast, CSPF and BFD keys", 29},
    {"BGP next hop, route keys, peer keys, BMP route keys and adj-RIB-in types", 6},
    {"Service and forwarding-hardware keys, sequences and sets, packets", 33},
};

static_assert(
    [] {
      unsigned rows = 0;
      for (const IdFamily& family : kIdFamilies) rows += family.rows;
      return rows;
    }() == std::size(kIdTable),
    "the families cover the table");

/// The row of `id`; in a constant expression, an id with no row does not compile.
/// At run time an unknown id returns a row with no functions.
constexpr IdEntry idEntry(std::string_view id) {
  for (const IdEntry& entry : kIdTable)
    if (entry.id == id) return entry;
  if (std::is_constant_evaluated()) throw "no such type id";
  return {};
}

} // namespace Orvane
