// RIB route and via keys, routing protocols and unicast key references: ids "RRRK",
// "RRRKO", "RVK", "RRRP", "VLAFP", "VLAFPV", "PGKR", "PGKRO".
//
// The "O" forms hold an Optimized generic prefix where the plain forms hold the 18-byte
// generic prefix; both print the same text. An Optimized prefix with an unknown tag
// measures 0xFFFFFFFF, so the key's size wraps to the leading integer's width minus one
// (3 for "RRRKO", 1 for "PGKRO"); that wrapped size is the result, not an error.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/NameTable.h"

#include <ostream>
#include <utility>

namespace Orvane {

/// Contents of the routing-protocol name table.
inline constexpr std::pair<unsigned, const char*> kRoutingProtocolNameEntries[] = {
    {0, "reserved"},
    {1, "connected"},
    {2, "staticConfig"},
    {3, "bgp"},
    {4, "routeInput"},
    {5, "ospf"},
    {6, "ospf3"},
    {7, "isis"},
    {8, "dynamicPolicy"},
    {9, "vrfLeak"},
    {10, "rip"},
    {11, "staticRouteCacheConfig"},
    {12, "gribi"},
    {13, "cbf"},
    {14, "routeInputRouteCacheConfig"},
};

/// Routing-protocol names by code; built at load time (KaMessageFormatter.cpp).
extern const NameTable routingProtocolNames;

/// The table of "RRRK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kRibRouteKeyFields;
/// "RRRK": "(" u32 ", " generic prefix ")". Returns the two fields' counts added.
ORVANE_API unsigned formatRibRouteKey(const unsigned char* p, std::ostream& os);
/// lengthU32 + 18.
ORVANE_API unsigned lengthRibRouteKey(const unsigned char* p);

/// The table of "RRRKO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kRibRouteKeyOptimizedFields;
/// "RRRKO": as "RRRK" with an Optimized prefix.
ORVANE_API unsigned formatRibRouteKeyOptimized(const unsigned char* p, std::ostream& os);
/// lengthU32 + the Optimized prefix size (wraps to 3 for an unknown prefix tag).
ORVANE_API unsigned lengthRibRouteKeyOptimized(const unsigned char* p);

/// The table of "RVK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kRibViaKeyFields;
/// "RVK": "(id:" u64 ", vrfId:" u32 ", proto:" protocol ")". Returns the u64 and u32
/// counts + 1.
ORVANE_API unsigned formatRibViaKey(const unsigned char* p, std::ostream& os);
/// lengthU64 + lengthU32 + 1.
ORVANE_API unsigned lengthRibViaKey(const unsigned char* p);

/// "RRRP": the protocol's name, or the code in decimal when it has none. Returns 1.
ORVANE_API unsigned formatRoutingProtocol(const unsigned char* p, std::ostream& os);
/// 1.
ORVANE_API unsigned lengthRoutingProtocol(const unsigned char* p);

/// The table of "VLAFP" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kAfProtoFields;
/// "VLAFP": "(" address family "," protocol ")", each a name or the code in decimal.
/// Returns 2.
ORVANE_API unsigned formatAfProto(const unsigned char* p, std::ostream& os);
/// 2.
ORVANE_API unsigned lengthAfProto(const unsigned char* p);

/// The table of "VLAFPV" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kAfProtoVrfIdFields;
/// "VLAFPV": "(" address family "," protocol "," u32 vrfId ")". Returns 2 + the u32
/// count.
ORVANE_API unsigned formatAfProtoVrfId(const unsigned char* p, std::ostream& os);
/// 2 + lengthU32.
ORVANE_API unsigned lengthAfProtoVrfId(const unsigned char* p);

/// The table of "PGKR" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIpGenUcastKeyRefFields;
/// "PGKR": "vrf:" u16 ", ipAddr:" generic prefix. Returns the two counts added.
ORVANE_API unsigned formatIpGenUcastKeyRef(const unsigned char* p, std::ostream& os);
/// lengthU16 + 18.
ORVANE_API unsigned lengthIpGenUcastKeyRef(const unsigned char* p);

/// The table of "PGKRO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIpGenUcastKeyRefOptimizedFields;
/// "PGKRO": as "PGKR" with an Optimized prefix.
ORVANE_API unsigned formatIpGenUcastKeyRefOptimized(const unsigned char* p, std::ostream& os);
/// lengthU16 + the Optimized prefix size (wraps to 1 for an unknown prefix tag).
ORVANE_API unsigned lengthIpGenUcastKeyRefOptimized(const unsigned char* p);

/// As a field of composite keys.
inline constexpr FieldKind kRoutingProtocolField{formatRoutingProtocol, lengthRoutingProtocol,
                                                 nullptr, "routing protocol code", 1};

} // namespace Orvane
