// The BGP route key printer, shared by "BRK", "BRY" and "BMPRK".
//
// The key's fields are printed in the order of its layout (RouteKeyLayout.h), each after
// a short label, through the address, MAC, ESI, RD and RT printers:
//   EVPN type 2:  <EVPN-Type2-Key: rd:100:1, etid:0, etid2:0, mac:001c.73aa.bbcc, ip:10.0.0.1>
//   VPN prefix:   rd:65000:7, ip:10.1.0.0/16
// docs/route-keys.md gives the text of every layout. Unnamed fields are labelled with
// their kind ("u32:", "u64:", "bool:", "raw:"); raw blocks print as "0x" and hex pairs up
// to the last non-zero byte, ".." standing for the zero bytes left out at the end.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// The route key layouts by family (RouteKeyLayout.cpp), for the reference (FieldKind.h).
ORVANE_API extern const FieldVariants kBgpRouteKeyVariants;

/// Prints the route key at `key` of (afi, safi) and returns lengthBgpRouteKey for the
/// same bytes. A combination without a layout prints nothing and returns 0xFFFFFFFF.
/// An RD of unknown type leaves the stream in hexadecimal (as its printer does), so the
/// numbers after it in the key print in hex too.
ORVANE_API unsigned formatBgpRouteKey(unsigned short afi, unsigned short safi,
                                      const unsigned char* key, std::ostream& os);
/// formatBgpRouteKey() within a longer text: the key's labels join the text pending in
/// `text`, and its closing text is left pending there (see printFields).
unsigned appendBgpRouteKey(unsigned short afi, unsigned short safi, const unsigned char* key,
                           TextRun& text);

} // namespace Orvane
