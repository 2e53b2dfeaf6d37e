#include "keys/BindingKeys.h"

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {

constexpr LabeledField kDuidMacBindingKeyRows[] = {{"duid(type: ", &kU16Field},
                                                   {", hwtype: ", &kU16Field},
                                                   {", lladdr: ", &kEthField},
                                                   {", uuid: ", &kStringField},
                                                   {", entno: ", &kU32Field},
                                                   {", entId: ", &kStringField},
                                                   {")"}};
constexpr FieldTable kDuidMacBindingKeyFields{kDuidMacBindingKeyRows};
unsigned formatDuidMacBindingKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kDuidMacBindingKeyRows>(p, os);
}
unsigned lengthDuidMacBindingKey(const unsigned char* p) {
  return lengthTable<kDuidMacBindingKeyRows>(p);
}

constexpr LabeledField kIpMacV2Rows[] = {
    {"[", &kIpGenAddrField}, {",", &kEthField}, {",", &kU32Field}, {",", &kU8Field}, {"]"}};
constexpr FieldTable kIpMacV2Fields{kIpMacV2Rows};
unsigned formatIpMacV2(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpMacV2Rows>(p, os);
}
unsigned lengthIpMacV2(const unsigned char* p) { return lengthTable<kIpMacV2Rows>(p); }

constexpr LabeledField kIpMacV2OptimizedRows[] = {
    {"[", &kIpGenAddrOptField}, {",", &kEthField}, {",", &kU32Field}, {",", &kU8Field}, {"]"}};
constexpr FieldTable kIpMacV2OptimizedFields{kIpMacV2OptimizedRows};
unsigned formatIpMacV2Optimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpMacV2OptimizedRows>(p, os);
}
unsigned lengthIpMacV2Optimized(const unsigned char* p) {
  return lengthTable<kIpMacV2OptimizedRows>(p);
}

constexpr LabeledField kMacVtepRows[] = {
    {"[", &kEthField}, {",", &kIpField}, {",", &kU32Field}, {",", &kU8Field}, {"]"}};
constexpr FieldTable kMacVtepFields{kMacVtepRows};
unsigned formatMacVtep(const unsigned char* p, std::ostream& os) {
  return formatTable<kMacVtepRows>(p, os);
}
unsigned lengthMacVtep(const unsigned char* p) { return lengthTable<kMacVtepRows>(p); }

constexpr LabeledField kMacVlanPairRows[] = {{"[", &kEthField}, {",", &kU16Field}, {"]"}};
constexpr FieldTable kMacVlanPairFields{kMacVlanPairRows};
unsigned formatMacVlanPair(const unsigned char* p, std::ostream& os) {
  return formatTable<kMacVlanPairRows>(p, os);
}
unsigned lengthMacVlanPair(const unsigned char* p) { return lengthTable<kMacVlanPairRows>(p); }

constexpr LabeledField kVlanIpPairRows[] = {{"[", &kU16Field}, {",", &kIpGenAddrField}, {"]"}};
constexpr FieldTable kVlanIpPairFields{kVlanIpPairRows};
unsigned formatVlanIpPair(const unsigned char* p, std::ostream& os) {
  return formatTable<kVlanIpPairRows>(p, os);
}
unsigned lengthVlanIpPair(const unsigned char* p) { return lengthTable<kVlanIpPairRows>(p); }

constexpr LabeledField kVlanIpPairOptimizedRows[] = {
    {"[", &kU16Field}, {",", &kIpGenAddrOptField}, {"]"}};
constexpr FieldTable kVlanIpPairOptimizedFields{kVlanIpPairOptimizedRows};
unsigned formatVlanIpPairOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kVlanIpPairOptimizedRows>(p, os);
}
unsigned lengthVlanIpPairOptimized(const unsigned char* p) {
  return lengthTable<kVlanIpPairOptimizedRows>(p);
}

constexpr LabeledField kVrfIdPairRows[] = {{"(", &kU32FixedField}, {"-", &kU32FixedField}, {")"}};
constexpr FieldTable kVrfIdPairFields{kVrfIdPairRows};
unsigned formatVrfIdPair(const unsigned char* p, std::ostream& os) {
  return formatTable<kVrfIdPairRows>(p, os);
}
unsigned lengthVrfIdPair(const unsigned char* p) { return lengthTable<kVrfIdPairRows>(p); }

constexpr LabeledField kVniSourcePairRows[] = {
    {"[", &kU32Field}, {",", &kStringField}, {",", &kStringField}, {"]"}};
constexpr FieldTable kVniSourcePairFields{kVniSourcePairRows};
unsigned formatVniSourcePair(const unsigned char* p, std::ostream& os) {
  return formatTable<kVniSourcePairRows>(p, os);
}
unsigned lengthVniSourcePair(const unsigned char* p) { return lengthTable<kVniSourcePairRows>(p); }

} // namespace Orvane
