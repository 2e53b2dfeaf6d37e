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
  const RouteKeyLayout* layout = findRouteKeyLayout(afi, safi, key);
  if (!layout)
    return kInvalidLength;
  return printFields(layout->fields.fields, key, layout->firstFieldOffset(), text);
}

} // namespace Orvane
