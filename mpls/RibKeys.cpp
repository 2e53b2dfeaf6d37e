#include "mpls/RibKeys.h"

#include "address/AddressFamily.h"
#include "address/GenericPrefix.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
constexpr LabeledField kRibRouteKeyFields[] = {
    {"(", &kU32Field}, {", ", &kIpGenPrefixField}, {")"}};
unsigned formatRibRouteKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kRibRouteKeyFields>(p, os);
}
unsigned lengthRibRouteKey(const unsigned char* p) { return lengthTable<kRibRouteKeyFields>(p); }

constexpr LabeledField kRibRouteKeyOptimizedFields[] = {
    {"(", &kU32Field}, {", ", &kIpGenPrefixOptimizedField}, {")"}};
unsigned formatRibRouteKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kRibRouteKeyOptimizedFields>(p, os);
}
unsigned lengthRibRouteKeyOptimized(const unsigned char* p) {
  return lengthTable<kRibRouteKeyOptimizedFields>(p);
}

constexpr LabeledField kRibViaKeyFields[] = {
    {"(id:", &kU64Field}, {", vrfId:", &kU32Field}, {", proto:", &kRoutingProtocolField}, {")"}};
unsigned formatRibViaKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kRibViaKeyFields>(p, os);
}
unsigned lengthRibViaKey(const unsigned char* p) { return lengthTable<kRibViaKeyFields>(p); }

unsigned formatRoutingProtocol(const unsigned char* p, std::ostream& os) {
  printName(os, routingProtocolNames, p[0]);
  return lengthRoutingProtocol(p);
}
unsigned lengthRoutingProtocol(const unsigned char*) { return 1; }

constexpr LabeledField kAfProtoFields[] = {{"(", &kAfField}, {",", &kRoutingProtocolField}, {")"}};
unsigned formatAfProto(const unsigned char* p, std::ostream& os) {
  return formatTable<kAfProtoFields>(p, os);
}
unsigned lengthAfProto(const unsigned char* p) { return lengthTable<kAfProtoFields>(p); }

constexpr LabeledField kAfProtoVrfIdFields[] = {
    {"(", &kAfField}, {",", &kRoutingProtocolField}, {",", &kU32Field}, {")"}};
unsigned formatAfProtoVrfId(const unsigned char* p, std::ostream& os) {
  return formatTable<kAfProtoVrfIdFields>(p, os);
}
unsigned lengthAfProtoVrfId(const unsigned char* p) { return lengthTable<kAfProtoVrfIdFields>(p); }

constexpr LabeledField kIpGenUcastKeyRefFields[] = {
    {"vrf:", &kU16Field}, {", ipAddr:", &kIpGenPrefixField}, {""}};
unsigned formatIpGenUcastKeyRef(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpGenUcastKeyRefFields>(p, os);
}
unsigned lengthIpGenUcastKeyRef(const unsigned char* p) {
  return lengthTable<kIpGenUcastKeyRefFields>(p);
}

constexpr LabeledField kIpGenUcastKeyRefOptimizedFields[] = {
    {"vrf:", &kU16Field}, {", ipAddr:", &kIpGenPrefixOptimizedField}, {""}};
unsigned formatIpGenUcastKeyRefOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpGenUcastKeyRefOptimizedFields>(p, os);
}
unsigned lengthIpGenUcastKeyRefOptimized(const unsigned char* p) {
  return lengthTable<kIpGenUcastKeyRefOptimizedFields>(p);
}

} // namespace Orvane
