// BGP route keys recorded with their address family and VRF: ids "BRK" and "BRY".
//
// "BRK" (older form): u16 AFI, u8 SAFI, u8 NLRI type, 5-byte VRF descriptor, route key.
// "BRY" (newer form): u8 NLRI type, 5-byte VRF descriptor, route key; the (AFI, SAFI)
// is the one the NLRI type maps to ({0, 0} for an unknown type).
// Both print
//    RouteKey<(AFI/SAFI) (VRF; KEY nlriType-N)>
// with a blank at each end, the AFI and SAFI by name, the VRF as formatBgpVrfIdForRkAndNh
// prints it and the key as formatBgpRouteKey prints it. A family without a route key
// layout prints no key and its length wraps to 8 ("BRK") or 5 ("BRY").
#pragma once

#include "registry/Export.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// Adds the opening that the route key frames share to `text`, pending for the text that
/// follows it: " RouteKey<(" AFI name "/" SAFI name ") (", the names as formatAfi and
/// formatSafi write them.
void printRouteKeyFrameOpening(unsigned short afi, unsigned short safi, TextRun& text);

/// "BRK": the stored AFI and SAFI choose the key's layout; the NLRI type is only
/// printed. Returns 9 + the key's count.
ORVANE_API unsigned formatBgpRouteKeyOld(const unsigned char* p, std::ostream& os);
/// 9 + lengthBgpRouteKey(AFI, SAFI, p + 9).
ORVANE_API unsigned lengthBgpRouteKeyOld(const unsigned char* p);

/// "BRY": the NLRI type's (AFI, SAFI) chooses the key's layout. Returns 6 + the key's
/// count.
ORVANE_API unsigned formatBgpRouteKeyNew(const unsigned char* p, std::ostream& os);
/// 6 + lengthBgpRouteKey of the NLRI type's (AFI, SAFI) at p + 6.
ORVANE_API unsigned lengthBgpRouteKeyNew(const unsigned char* p);

/// The append forms (TextRun.h) of "BRK" and "BRY".
unsigned appendBgpRouteKeyOld(const unsigned char* p, TextRun& text);
unsigned appendBgpRouteKeyNew(const unsigned char* p, TextRun& text);

} // namespace Orvane
