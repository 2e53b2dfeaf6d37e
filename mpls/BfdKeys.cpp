#include "mpls/BfdKeys.h"

#include "address/GenericAddress.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

template <AppendPtr appendAddress> unsigned formatPeer(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "peer(ip:", appendAddress, ", vrf:", formatString,
                      ", srcip:", appendAddress, ", intf:", formatString, ", tunnelId:", formatU64,
                      ", type:", formatU32, ")");
}
template <LengthPtr lengthAddress> unsigned measurePeer(const unsigned char* p) {
  return measureFields(p, lengthAddress, lengthString, lengthAddress, lengthString, lengthU64,
                       lengthU32);
}

} // namespace

unsigned formatBfdPeer(const unsigned char* p, std::ostream& os) {
  return formatPeer<appendIpGenAddr>(p, os);
}
unsigned lengthBfdPeer(const unsigned char* p) { return measurePeer<lengthIpGenAddr>(p); }

unsigned formatBfdPeerOptimized(const unsigned char* p, std::ostream& os) {
  return formatPeer<appendIpGenAddrOpt>(p, os);
}
unsigned lengthBfdPeerOptimized(const unsigned char* p) {
  return measurePeer<lengthIpGenAddrOpt>(p);
}

} // namespace Orvane
