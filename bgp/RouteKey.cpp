#include "bgp/RouteKey.h"

#include "bgp/RouteKeyLayout.h"
#include "registry/Formatter.h"

namespace Orvane {

unsigned formatBgpRouteKey(unsigned short afi, unsigned short safi, const unsigned char* key,
                           std::ostream& os) {
  return printThroughRun(os,
                         [=](TextRun& text) { return appendBgpRouteKey(afi, safi, key, text); });
}

unsigned appendBgpRouteKey(unsigned short afi, unsigned short safi, const unsigned char* key,
                           TextRun& text) {
  return printVariant(routeKeyBody(afi, safi, key), key, text);
}

} // namespace Orvane
