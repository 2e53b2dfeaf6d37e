#include "mpls/BfdKeys.h"

#include "address/GenericAddress.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
constexpr LabeledField kBfdPeerRows[] = {{"peer(ip:", &kIpGenAddrField},
                                         {", vrf:", &kStringField},
                                         {", srcip:", &kIpGenAddrField},
                                         {", intf:", &kStringField},
                                         {", tunnelId:", &kU64Field},
                                         {", type:", &kU32Field},
                                         {")"}};
constexpr FieldTable kBfdPeerFields{kBfdPeerRows};
unsigned formatBfdPeer(const unsigned char* p, std::ostream& os) {
  return formatTable<kBfdPeerRows>(p, os);
}
unsigned lengthBfdPeer(const unsigned char* p) { return lengthTable<kBfdPeerRows>(p); }

constexpr LabeledField kBfdPeerOptimizedRows[] = {{"peer(ip:", &kIpGenAddrOptField},
                                                  {", vrf:", &kStringField},
                                                  {", srcip:", &kIpGenAddrOptField},
                                                  {", intf:", &kStringField},
                                                  {", tunnelId:", &kU64Field},
                                                  {", type:", &kU32Field},
                                                  {")"}};
constexpr FieldTable kBfdPeerOptimizedFields{kBfdPeerOptimizedRows};
unsigned formatBfdPeerOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kBfdPeerOptimizedRows>(p, os);
}
unsigned lengthBfdPeerOptimized(const unsigned char* p) {
  return lengthTable<kBfdPeerOptimizedRows>(p);
}

} // namespace Orvane
