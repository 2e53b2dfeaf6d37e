#include "bgp/RouteKeyWrappers.h"

#include "bgp/AfiSafi.h"
#include "bgp/NextHop.h"
#include "bgp/NlriType.h"
#include "bgp/RouteKey.h"
#include "bgp/RouteKeyLayout.h"
#include "registry/Bytes.h"

#include <cstdint>

namespace Orvane {
namespace {

// A route key record's header, read from either form.
struct KeyRecord {
  unsigned headerSize;
  AfiSafi family;
  unsigned char nlriType;
  const unsigned char* vrf;
};

KeyRecord readOld(const unsigned char* p) { return {9, {load<uint16_t>(p), p[2]}, p[3], p + 4}; }
KeyRecord readNew(const unsigned char* p) {
  return {6, bgpRouteKeyParseNlriType(p[0]), p[0], p + 1};
}

unsigned appendRecord(const KeyRecord& record, const unsigned char* p, TextRun& text) {
  printRouteKeyFrameOpening(record.family.afi, record.family.safi, text);
  printBgpVrfId(record.vrf, text);
  text << "; ";
  const unsigned key =
      appendBgpRouteKey(record.family.afi, record.family.safi, p + record.headerSize, text);
  text << " nlriType-";
  text.number(record.nlriType);
  text << ")> ";
  return record.headerSize + key;
}

unsigned lengthRecord(const KeyRecord& record, const unsigned char* p) {
  return record.headerSize +
         lengthBgpRouteKey(record.family.afi, record.family.safi, p + record.headerSize);
}

} // namespace

void printRouteKeyFrameOpening(unsigned short afi, unsigned short safi, TextRun& text) {
  text << " RouteKey<(" << afiName(afi) << "/" << safiName(safi) << ") (";
}

unsigned appendBgpRouteKeyOld(const unsigned char* p, TextRun& text) {
  return appendRecord(readOld(p), p, text);
}
unsigned formatBgpRouteKeyOld(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendBgpRouteKeyOld>(p, os);
}
unsigned lengthBgpRouteKeyOld(const unsigned char* p) { return lengthRecord(readOld(p), p); }

unsigned appendBgpRouteKeyNew(const unsigned char* p, TextRun& text) {
  return appendRecord(readNew(p), p, text);
}
unsigned formatBgpRouteKeyNew(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendBgpRouteKeyNew>(p, os);
}
unsigned lengthBgpRouteKeyNew(const unsigned char* p) { return lengthRecord(readNew(p), p); }

} // namespace Orvane
