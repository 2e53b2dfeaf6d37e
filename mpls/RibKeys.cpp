#include "mpls/RibKeys.h"

#include "address/AddressFamily.h"
#include "address/GenericPrefix.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

template <AppendPtr appendPrefix>
unsigned formatRibRoute(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(", formatU32, ", ", appendPrefix, ")");
}

template <AppendPtr appendPrefix>
unsigned formatUcastKeyRef(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "vrf:", formatU16, ", ipAddr:", appendPrefix);
}

} // namespace

unsigned formatRibRouteKey(const unsigned char* p, std::ostream& os) {
  return formatRibRoute<appendIpGenPrefix>(p, os);
}
unsigned lengthRibRouteKey(const unsigned char* p) {
  return measureFields(p, lengthU32, lengthIpGenPrefix);
}

unsigned formatRibRouteKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatRibRoute<appendIpGenPrefixOptimized>(p, os);
}
unsigned lengthRibRouteKeyOptimized(const unsigned char* p) {
  return measureFields(p, lengthU32, lengthIpGenPrefixOptimized);
}

unsigned formatRibViaKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(id:", formatU64, ", vrfId:", formatU32,
                      ", proto:", formatRoutingProtocol, ")");
}
unsigned lengthRibViaKey(const unsigned char* p) {
  return measureFields(p, lengthU64, lengthU32, lengthRoutingProtocol);
}

unsigned formatRoutingProtocol(const unsigned char* p, std::ostream& os) {
  printName(os, routingProtocolNames, p[0]);
  return lengthRoutingProtocol(p);
}
unsigned lengthRoutingProtocol(const unsigned char*) { return 1; }

unsigned formatAfProto(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(", formatAf, ",", formatRoutingProtocol, ")");
}
unsigned lengthAfProto(const unsigned char* p) {
  return measureFields(p, lengthAf, lengthRoutingProtocol);
}

unsigned formatAfProtoVrfId(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(", formatAf, ",", formatRoutingProtocol, ",", formatU32, ")");
}
unsigned lengthAfProtoVrfId(const unsigned char* p) {
  return measureFields(p, lengthAf, lengthRoutingProtocol, lengthU32);
}

unsigned formatIpGenUcastKeyRef(const unsigned char* p, std::ostream& os) {
  return formatUcastKeyRef<appendIpGenPrefix>(p, os);
}
unsigned lengthIpGenUcastKeyRef(const unsigned char* p) {
  return measureFields(p, lengthU16, lengthIpGenPrefix);
}

unsigned formatIpGenUcastKeyRefOptimized(const unsigned char* p, std::ostream& os) {
  return formatUcastKeyRef<appendIpGenPrefixOptimized>(p, os);
}
unsigned lengthIpGenUcastKeyRefOptimized(const unsigned char* p) {
  return measureFields(p, lengthU16, lengthIpGenPrefixOptimized);
}

} // namespace Orvane
