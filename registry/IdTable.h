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
#include "bgp/PeerKeys.h"
#include "bgp/RouteDistinguisher.h"
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

#include <string_view>
#include <type_traits>

namespace Orvane {

/// One row of the id table.
struct IdEntry {
  std::string_view id;
  FormatPtr format = nullptr;
  LengthPtr length = nullptr;
};

/// Every id, one block per family and sorted by id within it. The order has no effect
/// on behaviour.
inline constexpr IdEntry kIdTable[] = {
    {"A", formatAfAddr, lengthAfAddr},
    {"AF", formatAf, lengthAf},
    {"AM4", formatIpPrefix, lengthIpPrefix},
    {"AM6", formatIp6Prefix, lengthIp6Prefix},
    {"DSFID", formatDsfSystemId, lengthDsfSystemId},
    {"E", formatEth, lengthEth},
    {"EC", formatEthColonSeparated, lengthEthColonSeparated},
    {"EM", formatEthMask, lengthEthMask},
    {"ES", formatEthSegment, lengthEthSegment},
    {"I", formatIp, lengthIp},
    {"I6", formatIp6Addr, lengthIp6Addr},
    {"IG", formatIpGenAddr, lengthIpGenAddr},
    {"IGM", formatIpGenAddrWithFullMask, lengthIpGenAddrWithFullMask},
    {"IGMO", formatIpGenAddrOptWithFullMask, lengthIpGenAddrWithFullMaskOpt},
    {"IGO", formatIpGenAddrOpt, lengthIpGenAddrOpt},
    {"IP", formatIpAndPort, lengthIpAndPort},
    {"IS", formatIsisSystemId, lengthIsisSystemId},
    {"P", formatIpPrefix, lengthIpPrefix},
    {"P6", formatIp6Prefix, lengthIp6Prefix},
    {"PG", formatIpGenPrefix, lengthIpGenPrefix},
    {"PGO", formatIpGenPrefixOptimized, lengthIpGenPrefixOptimized},
    // BGP codes, RDs and RTs, MPLS labels and FECs, EVPN layer-2 attributes.
    {"AFI", static_cast<FormatPtr>(formatAfi), lengthAfi},
    {"AFS", static_cast<FormatPtr>(formatAfiSafi), lengthAfiSafi},
    {"EL", formatEvpnLabel, lengthEvpnLabel},
    {"EL2", formatEvpnL2AttrsV2, lengthEvpnL2Attrs},
    {"EL2V3", formatEvpnL2AttrsV3, lengthEvpnL2Attrs},
    {"EL2old", formatEvpnL2AttrsV1, lengthEvpnL2Attrs},
    {"FM", formatMplsFwdEqvClass, lengthMplsFwdEqvClass},
    {"FMO", formatMplsFwdEqvClassOptimized, lengthMplsFwdEqvClassOptimized},
    {"GFID", formatGlobalFecId, lengthGlobalFecId},
    {"LO", formatMplsLabelOperation, lengthMplsLabelOperation},
    {"LVK", formatLfibViaKey, lengthLfibViaKey},
    {"ML", static_cast<FormatPtr>(formatMplsLabel), lengthMplsLabel},
    {"MRTR", formatMplsRouterId, lengthMplsRouterId},
    {"NLRI", static_cast<FormatPtr>(formatNlriType), lengthNlriType},
    {"NLRI2AFISAFI", formatNlriType2AfiSafi, lengthNlriType2AfiSafi},
    {"RD", static_cast<FormatPtr>(formatRouteDistinguisher), lengthRouteDistinguisher},
    {"RT", static_cast<FormatPtr>(formatRouteTarget), lengthRouteTarget},
    {"RTMRK", formatRtMembershipRouteKey, lengthRtMembershipRouteKey},
    {"SAFI", formatSafiLegacy, lengthSafi},
    // Tunnel, pseudowire, RIB, IGP node, multicast, CSPF and BFD keys.
    {"BP", formatBfdPeer, lengthBfdPeer},
    {"BPO", formatBfdPeerOptimized, lengthBfdPeerOptimized},
    {"CCPK", formatCspfClientPathKey, lengthCspfClientPathKey},
    {"CP2MPK", formatCspfP2mpPathKey, lengthCspfP2mpPathKey},
    {"CPK", formatCspfPathKey, lengthCspfPathKey},
    {"CV", formatCspfVertex, lengthCspfVertex},
    {"IGPN", formatIgpNodeId, lengthIgpNodeId},
    {"MF", formatMRouteFlags, lengthMRouteFlags},
    {"MFGK", formatMfibGenRouteKey, lengthMfibGenRouteKey},
    {"MFGKO", formatMfibGenRouteKeyOptimized, lengthMfibGenRouteKeyOptimized},
    {"MFK", formatMfibRouteKey, lengthMfibRouteKey},
    {"MIJ", formatMRouteIntfJoinState, lengthMRouteIntfJoinState},
    {"MIR", formatMRouteIntfRptJoinState, lengthMRouteIntfRptJoinState},
    {"MK", formatMRouteKey, lengthMRouteKey},
    {"MKO", formatMRouteKeyOptimized, lengthMRouteKeyOptimized},
    {"MTT", formatMulticastTunnelType, lengthMulticastTunnelType},
    {"PGKR", formatIpGenUcastKeyRef, lengthIpGenUcastKeyRef},
    {"PGKRO", formatIpGenUcastKeyRefOptimized, lengthIpGenUcastKeyRefOptimized},
    {"PW", formatPseudowireKey, lengthPseudowireKey},
    {"PWO", formatPseudowireKeyOptimized, lengthPseudowireKeyOptimized},
    {"RRRK", formatRibRouteKey, lengthRibRouteKey},
    {"RRRKO", formatRibRouteKeyOptimized, lengthRibRouteKeyOptimized},
    {"RRRP", formatRoutingProtocol, lengthRoutingProtocol},
    {"RVK", formatRibViaKey, lengthRibViaKey},
    {"TK", formatTunnelKey, lengthTunnelKey},
    {"TKG", formatTunnelKeyGen, lengthTunnelKeyGen},
    {"TKGO", formatTunnelKeyGenOptimized, lengthTunnelKeyGenOptimized},
    {"VLAFP", formatAfProto, lengthAfProto},
    {"VLAFPV", formatAfProtoVrfId, lengthAfProtoVrfId},
    // BGP next hop, route keys, peer keys, BMP route keys and adj-RIB-in types.
    {"BMPRK", formatBmpRouteKey, lengthBmpRouteKey},
    {"BNH", formatBgpGenNextHop, lengthBgpGenNextHop},
    {"BPK", formatBgpPeerKey, lengthBgpPeerKey},
    {"BRK", formatBgpRouteKeyOld, lengthBgpRouteKeyOld},
    {"BRY", formatBgpRouteKeyNew, lengthBgpRouteKeyNew},
    {"RIBINT", formatAdjRibinType, lengthAdjRibinType},
    // Service and forwarding-hardware keys, sequences and sets, packets.
    {"ARPICE", formatArpInputConfigEntry, lengthArpInputConfigEntry},
    {"ARPICK", formatArpInputConfigKey, lengthArpInputConfigKey},
    {"ARPIPIK", formatArpInputPriorityInterfaceKey, lengthArpInputPriorityInterfaceKey},
    {"ARPIPK", formatArpInputPriorityKey, lengthArpInputPriorityKey},
    {"C", formatConnTuple, lengthConnTuple},
    {"DMBK", formatDuidMacBindingKey, lengthDuidMacBindingKey},
    {"F", formatFapmask, lengthFapmask},
    {"GR", formatGenRange, lengthGenRange},
    {"GRO", formatGenRangeOptimized, lengthGenRangeOptimized},
    {"HIFK", formatHoIpFlowKey, lengthHoIpFlowKey},
    {"IDS", formatIdSet, lengthIdSet},
    {"IE", formatIntfEncap, lengthIntfEncap},
    {"IE2", formatIntfEncapV2, lengthIntfEncapV2},
    {"IFK", formatIpFlowKey, lengthIpFlowKey},
    {"IPMACV2", formatIpMacV2, lengthIpMacV2},
    {"IPMACV2O", formatIpMacV2Optimized, lengthIpMacV2Optimized},
    {"MV", formatMacVtep, lengthMacVtep},
    {"MVP", formatMacVlanPair, lengthMacVlanPair},
    {"NDC", formatNatDynamicConn, lengthNatDynamicConn},
    {"NDK", formatNatDynamicKey, lengthNatDynamicKey},
    {"NSK", formatNatStaticKey, lengthNatStaticKey},
    {"OUTAC", formatOutAcKey, lengthOutAcKey},
    {"OUTACTYPE", formatOutAcTypeKey, lengthOutAcTypeKey},
    {"PKT", formatKanetPkt, lengthKanetPkt},
    {"PMK", formatUpnpPortMapKey, lengthUpnpPortMapKey},
    {"SVIESEM", formatSviEgressEsemRequestKey, lengthSviEgressEsemRequestKey},
    {"SVIEVE", formatSviEgressEveKey, lengthSviEgressEveKey},
    {"UDF", formatUdfDesc, lengthUdfDesc},
    {"US", formatUnsignedSequence, lengthUnsignedSequence},
    {"VIDP", formatVrfIdPair, lengthVrfIdPair},
    {"VIP", formatVlanIpPair, lengthVlanIpPair},
    {"VIPO", formatVlanIpPairOptimized, lengthVlanIpPairOptimized},
    {"VSP", formatVniSourcePair, lengthVniSourcePair},
};

/// The row of `id`; in a constant expression, an id with no row does not compile.
/// At run time an unknown id returns a row with no functions.
constexpr IdEntry idEntry(std::string_view id) {
  for (const IdEntry& entry : kIdTable)
    if (entry.id == id) return entry;
  if (std::is_constant_evaluated()) throw "no such type id";
  return {};
}

} // namespace Orvane
