#include "keys/BindingKeys.h"

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {

constexpr LabeledField kDuidMacBindingKeyFields[] = {{"duid(type: ", &kU16Field},
                                                     {", hwtype: ", &kU16Field},
                                                     {", lladdr: ", &kEthField},
                                                     {", uuid: ", &kStringField},
                                                     {", entno: ", &kU32Field},
                                                     {", entId: ", &kStringField},
                                                     {")"}};
unsigned formatDuidMacBindingKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kDuidMacBindingKeyFields>(p, os);
}
unsigned lengthDuidMacBindingKey(const unsigned char* p) {
  return lengthTable<kDuidMacBindingKeyFields>(p);
}

constexpr LabeledField kIpMacV2Fields[] = {
    {"[", &kIpGenAddrField}, {",", &kEthField}, {",", &kU32Field}, {",", &kU8Field}, {"]"}};
unsigned formatIpMacV2(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpMacV2Fields>(p, os);
}
unsigned lengthIpMacV2(const unsigned char* p) { return lengthTable<kIpMacV2Fields>(p); }

constexpr LabeledField kIpMacV2OptimizedFields[] = {
    {"[", &kIpGenAddrOptField}, {",", &kEthField}, {",", &kU32Field}, {",", &kU8Field}, {"]"}};
unsigned formatIpMacV2Optimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpMacV2OptimizedFields>(p, os);
}
unsigned lengthIpMacV2Optimized(const unsigned char* p) {
  return lengthTable<kIpMacV2OptimizedFields>(p);
}

constexpr LabeledField kMacVtepFields[] = {
    {"[", &kEthField}, {",", &kIpField}, {",", &kU32Field}, {",", &kU8Field}, {"]"}};
unsigned formatMacVtep(const unsigned char* p, std::ostream& os) {
  return formatTable<kMacVtepFields>(p, os);
}
unsigned lengthMacVtep(const unsigned char* p) { return lengthTable<kMacVtepFields>(p); }

constexpr LabeledField kMacVlanPairFields[] = {{"[", &kEthField}, {",", &kU16Field}, {"]"}};
unsigned formatMacVlanPair(const unsigned char* p, std::ostream& os) {
  return formatTable<kMacVlanPairFields>(p, os);
}
unsigned lengthMacVlanPair(const unsigned char* p) { return lengthTable<kMacVlanPairFields>(p); }

constexpr LabeledField kVlanIpPairFields[] = {{"[", &kU16Field}, {",", &kIpGenAddrField}, {"]"}};
unsigned formatVlanIpPair(const unsigned char* p, std::ostream& os) {
  return formatTable<kVlanIpPairFields>(p, os);
}
unsigned lengthVlanIpPair(const unsigned char* p) { return lengthTable<kVlanIpPairFields>(p); }

constexpr LabeledField kVlanIpPairOptimizedFields[] = {
    {"[", &kU16Field}, {",", &kIpGenAddrOptField}, {"]"}};
unsigned formatVlanIpPairOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kVlanIpPairOptimizedFields>(p, os);
}
unsigned lengthVlanIpPairOptimized(const unsigned char* p) {
  return lengthTable<kVlanIpPairOptimizedFields>(p);
}

constexpr LabeledField kVrfIdPairFields[] = {{"(", &kU32FixedField}, {"-", &kU32FixedField}, {")"}};
unsigned formatVrfIdPair(const unsigned char* p, std::ostream& os) {
  return formatTable<kVrfIdPairFields>(p, os);
}
unsigned lengthVrfIdPair(const unsigned char* p) { return lengthTable<kVrfIdPairFields>(p); }

constexpr LabeledField kVniSourcePairFields[] = {
    {"[", &kU32Field}, {",", &kStringField}, {",", &kStringField}, {"]"}};
unsigned formatVniSourcePair(const unsigned char* p, std::ostream& os) {
  return formatTable<kVniSourcePairFields>(p, os);
}
unsigned lengthVniSourcePair(const unsigned char* p) {
  return lengthTable<kVniSourcePairFields>(p);
}

} // namespace Orvane
