#include "keys/ConnectionKeys.h"

#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {

// "C" and "NSK" print each address and port as "IP" does, with the port inserted
// directly.
unsigned formatConnTuple(const unsigned char* p, std::ostream& os) {
  const unsigned endpoints = formatFields(p, os, appendIpAndPort, " -> ", appendIpAndPort);
  os << ',' << static_cast<unsigned>(p[endpoints]);
  return lengthConnTuple(p);
}
unsigned lengthConnTuple(const unsigned char*) { return 13; }

unsigned formatNatStaticKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "acl: ", formatString, ", addr: ", appendIpAndPort);
}
unsigned lengthNatStaticKey(const unsigned char* p) {
  return measureFields(p, lengthString, lengthIpAndPort);
}

unsigned formatNatDynamicKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "acl: ", formatString, ", group: ", formatU16);
}
unsigned lengthNatDynamicKey(const unsigned char* p) {
  return measureFields(p, lengthString, lengthU16);
}

unsigned formatNatDynamicConn(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "intf: ", formatString, ", conn: ", formatConnTuple);
}
unsigned lengthNatDynamicConn(const unsigned char* p) {
  return measureFields(p, lengthString, lengthConnTuple);
}

unsigned formatUpnpPortMapKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(", appendIp, ":", formatU16, ":", formatU8, ")");
}
unsigned lengthUpnpPortMapKey(const unsigned char* p) {
  return measureFields(p, lengthU32, lengthU16, lengthU8);
}

unsigned formatIpFlowKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "vrfId:", formatU32, " vlanId:", formatU16, " srcAddr:", appendIp,
                      " dstAddr:", appendIp, " ipProtocol:", formatU8, " srcPort:", formatU16,
                      " dstPort:", formatU16);
}
unsigned lengthIpFlowKey(const unsigned char* p) {
  return measureFields(p, lengthU32, lengthU16, lengthIp, lengthIp, lengthU8, lengthU16,
                       lengthU16);
}

unsigned formatHoIpFlowKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatIpFlowKey, " intf:", formatString);
}
unsigned lengthHoIpFlowKey(const unsigned char* p) {
  return measureFields(p, lengthIpFlowKey, lengthString);
}

} // namespace Orvane
