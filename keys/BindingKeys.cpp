#include "keys/BindingKeys.h"

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {

unsigned formatDuidMacBindingKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "duid(type: ", formatU16, ", hwtype: ", formatU16,
                      ", lladdr: ", appendEth, ", uuid: ", formatString, ", entno: ", formatU32,
                      ", entId: ", formatString, ")");
}
// The host is asked for the width of the first u16 only; both count with it.
unsigned lengthDuidMacBindingKey(const unsigned char* p) {
  const unsigned types = 2 * lengthU16(p);
  return types + measureFields(at(p, types), lengthEth, lengthString, lengthU32, lengthString);
}

unsigned formatIpMacV2(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", appendIpGenAddr, ",", appendEth, ",", formatU32, ",", formatU8,
                      "]");
}
unsigned lengthIpMacV2(const unsigned char* p) {
  return measureFields(p, lengthIpGenAddr, lengthEth, lengthU32, lengthU8);
}

unsigned formatIpMacV2Optimized(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", appendIpGenAddrOpt, ",", appendEth, ",", formatU32, ",", formatU8,
                      "]");
}
unsigned lengthIpMacV2Optimized(const unsigned char* p) {
  return measureFields(p, lengthIpGenAddrOpt, lengthEth, lengthU32, lengthU8);
}

unsigned formatMacVtep(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", appendEth, ",", appendIp, ",", formatU32, ",", formatU8, "]");
}
unsigned lengthMacVtep(const unsigned char* p) {
  return measureFields(p, lengthEth, lengthIp, lengthU32, lengthU8);
}

unsigned formatMacVlanPair(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", appendEth, ",", formatU16, "]");
}
unsigned lengthMacVlanPair(const unsigned char* p) {
  return measureFields(p, lengthEth, lengthU16);
}

unsigned formatVlanIpPair(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", formatU16, ",", appendIpGenAddr, "]");
}
unsigned lengthVlanIpPair(const unsigned char* p) {
  return measureFields(p, lengthU16, lengthIpGenAddr);
}

unsigned formatVlanIpPairOptimized(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", formatU16, ",", appendIpGenAddrOpt, "]");
}
unsigned lengthVlanIpPairOptimized(const unsigned char* p) {
  return measureFields(p, lengthU16, lengthIpGenAddrOpt);
}

unsigned formatVrfIdPair(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(", formatU32, "-", formatU32, ")");
}
unsigned lengthVrfIdPair(const unsigned char*) { return 8; }

unsigned formatVniSourcePair(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", formatU32, ",", formatString, ",", formatString, "]");
}
unsigned lengthVniSourcePair(const unsigned char* p) {
  return measureFields(p, lengthU32, lengthString, lengthString);
}

} // namespace Orvane
