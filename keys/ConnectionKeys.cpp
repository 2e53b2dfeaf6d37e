#include "keys/ConnectionKeys.h"

#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

// The two endpoints of a connection tuple, before its protocol byte.
constexpr LabeledField kEndpointsFields[] = {
    {"", &kIpAndPortField}, {" -> ", &kIpAndPortField}, {""}};

} // namespace

// "C" and "NSK" print each address and port as "IP" does, with the port inserted
// directly.
unsigned formatConnTuple(const unsigned char* p, std::ostream& os) {
  const unsigned endpoints = formatTable<kEndpointsFields>(p, os);
  os << ',' << static_cast<unsigned>(p[endpoints]);
  return lengthConnTuple(p);
}
unsigned lengthConnTuple(const unsigned char*) { return 13; }

constexpr LabeledField kNatStaticKeyRows[] = {
    {"acl: ", &kStringField}, {", addr: ", &kIpAndPortField}, {""}};
constexpr FieldTable kNatStaticKeyFields{kNatStaticKeyRows};
unsigned formatNatStaticKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kNatStaticKeyRows>(p, os);
}
unsigned lengthNatStaticKey(const unsigned char* p) { return lengthTable<kNatStaticKeyRows>(p); }

constexpr LabeledField kNatDynamicKeyRows[] = {
    {"acl: ", &kStringField}, {", group: ", &kU16Field}, {""}};
constexpr FieldTable kNatDynamicKeyFields{kNatDynamicKeyRows};
unsigned formatNatDynamicKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kNatDynamicKeyRows>(p, os);
}
unsigned lengthNatDynamicKey(const unsigned char* p) { return lengthTable<kNatDynamicKeyRows>(p); }

constexpr FieldKind kConnTupleField{formatConnTuple, lengthConnTuple, nullptr,
                                    "connection tuple (C)", 13};
constexpr LabeledField kNatDynamicConnRows[] = {
    {"intf: ", &kStringField}, {", conn: ", &kConnTupleField}, {""}};
constexpr FieldTable kNatDynamicConnFields{kNatDynamicConnRows};
unsigned formatNatDynamicConn(const unsigned char* p, std::ostream& os) {
  return formatTable<kNatDynamicConnRows>(p, os);
}
unsigned lengthNatDynamicConn(const unsigned char* p) {
  return lengthTable<kNatDynamicConnRows>(p);
}

constexpr LabeledField kUpnpPortMapKeyRows[] = {
    {"(", &kIpField}, {":", &kU16Field}, {":", &kU8Field}, {")"}};
constexpr FieldTable kUpnpPortMapKeyFields{kUpnpPortMapKeyRows};
unsigned formatUpnpPortMapKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kUpnpPortMapKeyRows>(p, os);
}
unsigned lengthUpnpPortMapKey(const unsigned char* p) {
  return lengthTable<kUpnpPortMapKeyRows>(p);
}

constexpr LabeledField kIpFlowKeyRows[] = {{"vrfId:", &kU32Field},      {" vlanId:", &kU16Field},
                                           {" srcAddr:", &kIpField},    {" dstAddr:", &kIpField},
                                           {" ipProtocol:", &kU8Field}, {" srcPort:", &kU16Field},
                                           {" dstPort:", &kU16Field},   {""}};
constexpr FieldTable kIpFlowKeyFields{kIpFlowKeyRows};
unsigned formatIpFlowKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpFlowKeyRows>(p, os);
}
unsigned lengthIpFlowKey(const unsigned char* p) { return lengthTable<kIpFlowKeyRows>(p); }

constexpr FieldKind kIpFlowKeyField{formatIpFlowKey, lengthIpFlowKey, nullptr, "IP flow key (IFK)"};
constexpr LabeledField kHoIpFlowKeyRows[] = {
    {"", &kIpFlowKeyField}, {" intf:", &kStringField}, {""}};
constexpr FieldTable kHoIpFlowKeyFields{kHoIpFlowKeyRows};
unsigned formatHoIpFlowKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kHoIpFlowKeyRows>(p, os);
}
unsigned lengthHoIpFlowKey(const unsigned char* p) { return lengthTable<kHoIpFlowKeyRows>(p); }

} // namespace Orvane
