#include "mpls/TunnelKeys.h"

#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
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

constexpr LabeledField kTunnelKeyGenFields[] = {{"src:", &kIpGenAddrField},
                                                {", dst:", &kIpGenAddrField},
                                                {", vrf:", &kU32Field},
                                                {", genId:", &kU64Field},
                                                {""}};
unsigned formatTunnelKeyGen(const unsigned char* p, std::ostream& os) {
  return formatTable<kTunnelKeyGenFields>(p, os);
}
unsigned lengthTunnelKeyGen(const unsigned char* p) { return lengthTable<kTunnelKeyGenFields>(p); }

constexpr LabeledField kTunnelKeyGenOptimizedFields[] = {{"src:", &kIpGenAddrOptField},
                                                         {", dst:", &kIpGenAddrOptField},
                                                         {", vrf:", &kU32Field},
                                                         {", genId:", &kU64Field},
                                                         {""}};
unsigned formatTunnelKeyGenOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kTunnelKeyGenOptimizedFields>(p, os);
}
unsigned lengthTunnelKeyGenOptimized(const unsigned char* p) {
  return lengthTable<kTunnelKeyGenOptimizedFields>(p);
}

constexpr LabeledField kPseudowireKeyFields[] = {
    {"", &kU32Field}, {"/", &kStringField}, {"/", &kIpGenAddrField}, {""}};
unsigned formatPseudowireKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kPseudowireKeyFields>(p, os);
}
unsigned lengthPseudowireKey(const unsigned char* p) {
  return lengthTable<kPseudowireKeyFields>(p);
}

constexpr LabeledField kPseudowireKeyOptimizedFields[] = {
    {"", &kU32Field}, {"/", &kStringField}, {"/", &kIpGenAddrOptField}, {""}};
unsigned formatPseudowireKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kPseudowireKeyOptimizedFields>(p, os);
}
unsigned lengthPseudowireKeyOptimized(const unsigned char* p) {
  return lengthTable<kPseudowireKeyOptimizedFields>(p);
}

} // namespace Orvane
