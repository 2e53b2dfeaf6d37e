// The BGP route key: its layout for every address family and its length.
//
// A route key is the identity of one BGP route inside its (AFI, SAFI). Its fields
// depend on that pair and, for EVPN, VPLS and link-state keys, on a route-type letter
// in byte 0. Every layout is one row of a table (RouteKeyLayout.cpp); the length here
// and the text of formatBgpRouteKey (RouteKey.h) both walk that row, so they agree.
//
// Field sizes: RD and u64 8, u32 4, u16 2, u8 and bool 1, IPv4 4, IPv6 16, MAC 6,
// ESI 10, generic address 21, its Opt form 5, 17 or 1 by its tag, the Optimized generic
// prefix by its tag and length byte (0xFFFFFFFF for a bad tag; the sum then wraps), and
// raw blocks of a fixed size. Fields are measured in order, each at the running offset,
// so a compact key's tags are read where the previous field ends.
#pragma once

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Export.h"
#include "registry/Fields.h"

namespace Orvane {

/// The `letter` of a layout whose key has no route-type letter.
inline constexpr unsigned char kNoLetter = 0;
/// The `safi` of a layout that covers every SAFI of its AFI not listed before it.
inline constexpr unsigned short kAnySafi = 0xFFFF;

/// One route key layout: the family and route-type letter that select it, and its
/// fields, which start after the letter when there is one.
struct RouteKeyLayout {
  unsigned short afi;
  unsigned short safi;
  unsigned char letter;
  FieldLayout fields;

  /// Offset of the first field: 1 after a letter, else 0.
  constexpr unsigned firstFieldOffset() const { return letter == kNoLetter ? 0 : 1; }
};

/// The body of the key at `key` in (afi, safi): its layout's fields, after the letter at
/// key[0] where the family has letters; no table for a combination without a layout.
VariantBody routeKeyBody(unsigned short afi, unsigned short safi, const unsigned char* key);

/// Bytes the route key at `key` occupies in (afi, safi); 0xFFFFFFFF for an AFI other than
/// ipv4, ipv6, l2vpn, linkState and 48bitMac, an l2vpn SAFI other than evpn, vpls,
/// privVplsAd and privVplsVe, an unknown EVPN, VPLS or link-state letter, a linkState
/// SAFI other than 71, and a 48bitMac SAFI other than 241..248, 250, 257..264 and 266.
/// Every SAFI of ipv4 and ipv6 has a layout (the plain prefix for the unlisted ones).
ORVANE_API unsigned lengthBgpRouteKey(unsigned short afi, unsigned short safi,
                                      const unsigned char* key);

} // namespace Orvane
