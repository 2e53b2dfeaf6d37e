#include "mpls/BfdKeys.h"

#include "address/GenericAddress.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
constexpr LabeledField kBfdPeerFields[] = {{"peer(ip:", &kIpGenAddrField},
                                           {", vrf:", &kStringField},
                                           {", srcip:", &kIpGenAddrField},
                                           {", intf:", &kStringField},
                                           {", tunnelId:", &kU64Field},
                                           {", type:", &kU32Field},
                                           {")"}};
unsigned formatBfdPeer(const unsigned char* p, std::ostream& os) {
  return formatTable<kBfdPeerFields>(p, os);
}
unsigned lengthBfdPeer(const unsigned char* p) { return lengthTable<kBfdPeerFields>(p); }

constexpr LabeledField kBfdPeerOptimizedFields[] = {{"peer(ip:", &kIpGenAddrOptField},
                                                    {", vrf:", &kStringField},
                                                    {", srcip:", &kIpGenAddrOptField},
                                                    {", intf:", &kStringField},
                                                    {", tunnelId:", &kU64Field},
                                                    {", type:", &kU32Field},
                                                    {")"}};
unsigned formatBfdPeerOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kBfdPeerOptimizedFields>(p, os);
}
unsigned lengthBfdPeerOptimized(const unsigned char* p) {
  return lengthTable<kBfdPeerOptimizedFields>(p);
}

} // namespace Orvane
