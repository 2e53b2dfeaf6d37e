// BGP peer keys, BMP route keys and adj-RIB-in entry types: ids "BPK", "BMPRK" and
// "RIBINT".
//
// Peer key: u8 type, then by type: 1 generic address and interface name
// (10.0.0.1%et1), 2 generic address, 3 interface name, 4 generic address and IPv4
// address (10.0.0.1 (192.0.2.1)); 5, 6 and 7 as 1, 2 and 4 with the Opt generic
// address. Names are host strings. Types 0 and 8..255 have no body and print nothing.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/NameTable.h"
#include "registry/TextRun.h"

#include <ostream>
#include <utility>

namespace Orvane {

/// Contents of the adj-RIB-in type name table. Code 7's name is spelt as the platform
/// spells it.
inline constexpr std::pair<unsigned, const char*> kAdjRibinTypeNameEntries[] = {
    {0, "None"},
    {1, "peer"},
    {2, "redist"},
    {3, "import"},
    {4, "export"},
    {5, "network"},
    {6, "aggregate"},
    {7, "defaultOrigiante"},
    {8, "rtMembershipImport"},
    {9, "linkStateProducer"},
};

/// Adj-RIB-in type names by code; built at load time (KaMessageFormatter.cpp).
extern const NameTable adjRibinTypeNames;

/// The bodies of "BPK" by peer-key type, for the reference (FieldKind.h).
ORVANE_API extern const FieldVariants kBgpPeerKeyVariants;
/// "BPK": the body of the peer-key type at p[0]; nothing for types 0 and 8..255.
/// Returns 1 + the counts of the body's fields.
ORVANE_API unsigned formatBgpPeerKey(const unsigned char* p, std::ostream& os);
/// 1 + the body's size: 21 per generic address, 5, 17 or 1 per Opt generic address by
/// its tag, 4 per IPv4 address, the host's lengthString per name.
ORVANE_API unsigned lengthBgpPeerKey(const unsigned char* p);

/// "BMPRK": u16 AFI, u8 SAFI, the monitored peer's name (host string), then the route
/// key of that AFI and SAFI. Prints
///    RouteKey<(AFI/SAFI) (NAME; KEY)>
/// with a blank at each end, the key as formatBgpRouteKey prints it. Returns 3 + the
/// name's count + the key's count (which wraps for a family without a layout).
ORVANE_API unsigned formatBmpRouteKey(const unsigned char* p, std::ostream& os);
/// 3 + lengthString + lengthBgpRouteKey at the end of the name.
ORVANE_API unsigned lengthBmpRouteKey(const unsigned char* p);

/// "RIBINT": "<AdjRibin:" the name of the code at p[0], or "unknown", ">". Returns 1.
ORVANE_API unsigned formatAdjRibinType(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthAdjRibinType(const unsigned char* p); ///< 1

/// The append forms (TextRun.h) of "BMPRK" and "RIBINT".
unsigned appendBmpRouteKey(const unsigned char* p, TextRun& text);
unsigned appendAdjRibinType(const unsigned char* p, TextRun& text);

} // namespace Orvane
