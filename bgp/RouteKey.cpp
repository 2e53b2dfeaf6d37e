#include "bgp/RouteKey.h"

#include "bgp/RouteKeyLayout.h"
#include "registry/Formatter.h"

namespace Orvane {

unsigned formatBgpRouteKey(unsigned short afi, unsigned short safi, const unsigned char* key,
                           std::ostream& os) {
  const RouteKeyLayout* layout = findRouteKeyLayout(afi, safi, key);
  if (!layout)
    return kInvalidLength;
  return formatLayout(layout->fields, key, layout->firstFieldOffset(), os);
}

} // namespace Orvane
