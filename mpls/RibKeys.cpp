#include "mpls/RibKeys.h"

#include "address/AddressFamily.h"
#include "address/GenericPrefix.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
constexpr LabeledField kRibRouteKeyRows[] = {{"(", &kU32Field}, {", ", &kIpGenPrefixField}, {")"}};
constexpr FieldTable kRibRouteKeyFields{kRibRouteKeyRows};
unsigned formatRibRouteKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kRibRouteKeyRows>(p, os);
}
unsigned lengthRibRouteKey(const unsigned char* p) { return lengthTable<kRibRouteKeyRows>(p); }

constexpr LabeledField kRibRouteKeyOptimizedRows[] = {
    {"(", &kU32Field}, {", ", &kIpGenPrefixOptimizedField}, {")"}};
constexpr FieldTable kRibRouteKeyOptimizedFields{kRibRouteKeyOptimizedRows};
unsigned formatRibRouteKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kRibRouteKeyOptimizedRows>(p, os);
}
unsigned lengthRibRouteKeyOptimized(const unsigned char* p) {
  return lengthTable<kRibRouteKeyOptimizedRows>(p);
}

constexpr LabeledField kRibViaKeyRows[] = {
    {"(id:", &kU64Field}, {", vrfId:", &kU32Field}, {", proto:", &kRoutingProtocolField}, {")"}};
constexpr FieldTable kRibViaKeyFields{kRibViaKeyRows};
unsigned formatRibViaKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kRibViaKeyRows>(p, os);
}
unsigned lengthRibViaKey(const unsigned char* p) { return lengthTable<kRibViaKeyRows>(p); }

unsigned formatRoutingProtocol(const unsigned char* p, std::ostream& os) {
  printName(os, routingProtocolNames, p[0]);
  return lengthRoutingProtocol(p);
}
unsigned lengthRoutingProtocol(const unsigned char*) { return 1; }

constexpr LabeledField kAfProtoRows[] = {{"(", &kAfField}, {",", &kRoutingProtocolField}, {")"}};
constexpr FieldTable kAfProtoFields{kAfProtoRows};
unsigned formatAfProto(const unsigned char* p, std::ostream& os) {
  return formatTable<kAfProtoRows>(p, os);
}
unsigned lengthAfProto(const unsigned char* p) { return lengthTable<kAfProtoRows>(p); }

constexpr LabeledField kAfProtoVrfIdRows[] = {
    {"(", &kAfField}, {",", &kRoutingProtocolField}, {",", &kU32Field}, {")"}};
constexpr FieldTable kAfProtoVrfIdFields{kAfProtoVrfIdRows};
unsigned formatAfProtoVrfId(const unsigned char* p, std::ostream& os) {
  return formatTable<kAfProtoVrfIdRows>(p, os);
}
unsigned lengthAfProtoVrfId(const unsigned char* p) { return lengthTable<kAfProtoVrfIdRows>(p); }

constexpr LabeledField kIpGenUcastKeyRefRows[] = {
    {"vrf:", &kU16Field}, {", ipAddr:", &kIpGenPrefixField}, {""}};
constexpr FieldTable kIpGenUcastKeyRefFields{kIpGenUcastKeyRefRows};
unsigned formatIpGenUcastKeyRef(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpGenUcastKeyRefRows>(p, os);
}
unsigned lengthIpGenUcastKeyRef(const unsigned char* p) {
  return lengthTable<kIpGenUcastKeyRefRows>(p);
}

constexpr LabeledField kIpGenUcastKeyRefOptimizedRows[] = {
    {"vrf:", &kU16Field}, {", ipAddr:", &kIpGenPrefixOptimizedField}, {""}};
constexpr FieldTable kIpGenUcastKeyRefOptimizedFields{kIpGenUcastKeyRefOptimizedRows};
unsigned formatIpGenUcastKeyRefOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpGenUcastKeyRefOptimizedRows>(p, os);
}
unsigned lengthIpGenUcastKeyRefOptimized(const unsigned char* p) {
  return lengthTable<kIpGenUcastKeyRefOptimizedRows>(p);
}

} // namespace Orvane
