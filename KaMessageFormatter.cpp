// The plug-in's load-time initialisation. Everything here is constructed once, on the
// loading thread, before the host can call a formatter, in the order of definition in
// this one translation unit:
//   1. the standard stream initialiser (from <iostream>, included first);
//   2. the packet-printer object kanetPktTraceFormatterWrapper;
//   3. the code-to-name tables: address family, adj-RIB-in type, AFI, multicast tunnel
//      type, NLRI type names, NLRI type to AfiSafi, routing protocol, SAFI;
//   4. formatMap;
//   5. the FormatterPlugin instance, which registers every formatMap entry.
// Destructors run at unload in the reverse order. The EVPN layer-2 tables are the only
// ones built later, on first use.
#include <iostream>

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
#include "packet/KanetPktTraceFormatterWrapper.h"
#include "packet/Packet.h"
#include "registry/FormatMap.h"
#include "registry/IdTable.h"

#include <iterator>
#include <vector>

namespace Orvane {

// 2. The packet printer: opens the packet library before anything can print a packet.
KanetPktTraceFormatterWrapper kanetPktTraceFormatterWrapper;

// 3. Code-to-name tables, in load order.
const NameTable addressFamilyNames(std::begin(kAddressFamilyNameEntries),
                                   std::end(kAddressFamilyNameEntries));
const NameTable adjRibinTypeNames(std::begin(kAdjRibinTypeNameEntries),
                                  std::end(kAdjRibinTypeNameEntries));
const NameTable afiNames(std::begin(kAfiNameEntries), std::end(kAfiNameEntries));
const NameTable multicastTunnelTypeNames(std::begin(kMulticastTunnelTypeNameEntries),
                                         std::end(kMulticastTunnelTypeNameEntries));
const NameTable nlriTypeNames(std::begin(kNlriTypeNameEntries), std::end(kNlriTypeNameEntries));
const std::unordered_map<unsigned, AfiSafi> nlriTypeToAfiSafi(std::begin(kNlriTypeToAfiSafiEntries),
                                                              std::end(kNlriTypeToAfiSafiEntries));
const NameTable routingProtocolNames(std::begin(kRoutingProtocolNameEntries),
                                     std::end(kRoutingProtocolNameEntries));
const NameTable safiNames(std::begin(kSafiNameEntries), std::end(kSafiNameEntries));

// 4. The identifier table, built from the constant id table (registry/IdTable.h) in
// that table's order.
std::unordered_map<std::string, std::pair<FormatFn, LengthFn>> formatMap = [] {
  std::vector<std::pair<const std::string, std::pair<FormatFn, LengthFn>>> rows;
  rows.reserve(std::size(kIdTable));
  for (const IdEntry& entry : kIdTable)
    rows.push_back({std::string(entry.id), {entry.format, entry.length}});
  return std::unordered_map<std::string, std::pair<FormatFn, LengthFn>>(rows.begin(), rows.end());
}();

} // namespace Orvane

// 5. Registration with the host.
static FormatterPlugin formatterPlugin;
