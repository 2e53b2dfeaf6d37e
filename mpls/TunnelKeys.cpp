#include "mpls/TunnelKeys.h"

#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

template <AppendPtr appendAddress>
unsigned formatGenTunnel(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "src:", appendAddress, ", dst:", appendAddress, ", vrf:", formatU32,
                      ", genId:", formatU64);
}
template <LengthPtr lengthAddress> unsigned measureGenTunnel(const unsigned char* p) {
  return measureFields(p, lengthAddress, lengthAddress, lengthU32, lengthU64);
}

template <AppendPtr appendAddress>
unsigned formatPseudowire(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatU32, "/", formatString, "/", appendAddress);
}
template <LengthPtr lengthAddress> unsigned measurePseudowire(const unsigned char* p) {
  return measureFields(p, lengthU32, lengthString, lengthAddress);
}

} // namespace

unsigned formatTunnelKey(const unsigned char* p, std::ostream& os) {
  // The one key of the family whose fields sit at fixed offsets, whatever the host's
  // integer widths, and whose size is a constant.
  TextRun text(os);
  appendIp(p, text.join("src:"));
  appendIp(p + 4, text.join(", dst:"));
  formatU32(p + 8, text.join(", vrf:").flush());
  formatU64(p + 12, text.join(", genId:").flush());
  return lengthTunnelKey(p);
}
unsigned lengthTunnelKey(const unsigned char*) { return 20; }

unsigned formatTunnelKeyGen(const unsigned char* p, std::ostream& os) {
  return formatGenTunnel<appendIpGenAddr>(p, os);
}
unsigned lengthTunnelKeyGen(const unsigned char* p) { return measureGenTunnel<lengthIpGenAddr>(p); }

unsigned formatTunnelKeyGenOptimized(const unsigned char* p, std::ostream& os) {
  return formatGenTunnel<appendIpGenAddrOpt>(p, os);
}
unsigned lengthTunnelKeyGenOptimized(const unsigned char* p) {
  return measureGenTunnel<lengthIpGenAddrOpt>(p);
}

unsigned formatPseudowireKey(const unsigned char* p, std::ostream& os) {
  return formatPseudowire<appendIpGenAddr>(p, os);
}
unsigned lengthPseudowireKey(const unsigned char* p) {
  return measurePseudowire<lengthIpGenAddr>(p);
}

unsigned formatPseudowireKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatPseudowire<appendIpGenAddrOpt>(p, os);
}
unsigned lengthPseudowireKeyOptimized(const unsigned char* p) {
  return measurePseudowire<lengthIpGenAddrOpt>(p);
}

} // namespace Orvane
