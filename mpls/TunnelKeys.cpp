#include "mpls/TunnelKeys.h"

#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

template <FormatPtr formatAddress>
unsigned formatGenTunnel(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "src:", formatAddress, ", dst:", formatAddress, ", vrf:", formatU32,
                      ", genId:", formatU64);
}
template <LengthPtr lengthAddress> unsigned measureGenTunnel(const unsigned char* p) {
  return measureFields(p, lengthAddress, lengthAddress, lengthU32, lengthU64);
}

template <FormatPtr formatAddress>
unsigned formatPseudowire(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatU32, "/", formatString, "/", formatAddress);
}
template <LengthPtr lengthAddress> unsigned measurePseudowire(const unsigned char* p) {
  return measureFields(p, lengthU32, lengthString, lengthAddress);
}

} // namespace

unsigned formatTunnelKey(const unsigned char* p, std::ostream& os) {
  // The one key of the family whose fields sit at fixed offsets, whatever the host's
  // integer widths, and whose size is a constant.
  os << "src:";
  formatIp(p, os);
  os << ", dst:";
  formatIp(p + 4, os);
  os << ", vrf:";
  formatU32(p + 8, os);
  os << ", genId:";
  formatU64(p + 12, os);
  return lengthTunnelKey(p);
}
unsigned lengthTunnelKey(const unsigned char*) { return 20; }

unsigned formatTunnelKeyGen(const unsigned char* p, std::ostream& os) {
  return formatGenTunnel<formatIpGenAddr>(p, os);
}
unsigned lengthTunnelKeyGen(const unsigned char* p) { return measureGenTunnel<lengthIpGenAddr>(p); }

unsigned formatTunnelKeyGenOptimized(const unsigned char* p, std::ostream& os) {
  return formatGenTunnel<formatIpGenAddrOpt>(p, os);
}
unsigned lengthTunnelKeyGenOptimized(const unsigned char* p) {
  return measureGenTunnel<lengthIpGenAddrOpt>(p);
}

unsigned formatPseudowireKey(const unsigned char* p, std::ostream& os) {
  return formatPseudowire<formatIpGenAddr>(p, os);
}
unsigned lengthPseudowireKey(const unsigned char* p) {
  return measurePseudowire<lengthIpGenAddr>(p);
}

unsigned formatPseudowireKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatPseudowire<formatIpGenAddrOpt>(p, os);
}
unsigned lengthPseudowireKeyOptimized(const unsigned char* p) {
  return measurePseudowire<lengthIpGenAddrOpt>(p);
}

} // namespace Orvane
