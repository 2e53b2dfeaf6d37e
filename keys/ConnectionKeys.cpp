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

constexpr LabeledField kNatStaticKeyFields[] = {
    {"acl: ", &kStringField}, {", addr: ", &kIpAndPortField}, {""}};
unsigned formatNatStaticKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kNatStaticKeyFields>(p, os);
}
unsigned lengthNatStaticKey(const unsigned char* p) { return lengthTable<kNatStaticKeyFields>(p); }

constexpr LabeledField kNatDynamicKeyFields[] = {
    {"acl: ", &kStringField}, {", group: ", &kU16Field}, {""}};
unsigned formatNatDynamicKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kNatDynamicKeyFields>(p, os);
}
unsigned lengthNatDynamicKey(const unsigned char* p) {
  return lengthTable<kNatDynamicKeyFields>(p);
}

constexpr FieldKind kConnTupleField{formatConnTuple, lengthConnTuple, nullptr,
                                    "connection tuple (C)", 13};
constexpr LabeledField kNatDynamicConnFields[] = {
    {"intf: ", &kStringField}, {", conn: ", &kConnTupleField}, {""}};
unsigned formatNatDynamicConn(const unsigned char* p, std::ostream& os) {
  return formatTable<kNatDynamicConnFields>(p, os);
}
unsigned lengthNatDynamicConn(const unsigned char* p) {
  return lengthTable<kNatDynamicConnFields>(p);
}

constexpr LabeledField kUpnpPortMapKeyFields[] = {
    {"(", &kIpField}, {":", &kU16Field}, {":", &kU8Field}, {")"}};
unsigned formatUpnpPortMapKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kUpnpPortMapKeyFields>(p, os);
}
unsigned lengthUpnpPortMapKey(const unsigned char* p) {
  return lengthTable<kUpnpPortMapKeyFields>(p);
}

constexpr LabeledField kIpFlowKeyFields[] = {{"vrfId:", &kU32Field},      {" vlanId:", &kU16Field},
                                             {" srcAddr:", &kIpField},    {" dstAddr:", &kIpField},
                                             {" ipProtocol:", &kU8Field}, {" srcPort:", &kU16Field},
                                             {" dstPort:", &kU16Field},   {""}};
unsigned formatIpFlowKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpFlowKeyFields>(p, os);
}
unsigned lengthIpFlowKey(const unsigned char* p) { return lengthTable<kIpFlowKeyFields>(p); }

constexpr FieldKind kIpFlowKeyField{formatIpFlowKey, lengthIpFlowKey, nullptr, "IP flow key (IFK)"};
constexpr LabeledField kHoIpFlowKeyFields[] = {
    {"", &kIpFlowKeyField}, {" intf:", &kStringField}, {""}};
unsigned formatHoIpFlowKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kHoIpFlowKeyFields>(p, os);
}
unsigned lengthHoIpFlowKey(const unsigned char* p) { return lengthTable<kHoIpFlowKeyFields>(p); }

} // namespace Orvane
