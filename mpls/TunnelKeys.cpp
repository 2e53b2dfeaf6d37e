#include "mpls/TunnelKeys.h"

#include "address/GenericAddress.h"
#include "address/Ip.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
// The one key of the family whose fields sit at fixed offsets, whatever the host's
// integer widths, and whose size is a constant. Its numbers are the host's to print.
unsigned appendTunnelKey(const unsigned char* p, TextRun& text) {
  appendIp(p, text.join("src:"));
  appendIp(p + 4, text.join(", dst:"));
  formatU32(p + 8, text.join(", vrf:").flush());
  formatU64(p + 12, text.join(", genId:").flush());
  return lengthTunnelKey(p);
}
unsigned formatTunnelKey(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendTunnelKey>(p, os);
}
unsigned lengthTunnelKey(const unsigned char*) { return 20; }

constexpr LabeledField kTunnelKeyGenRows[] = {{"src:", &kIpGenAddrField},
                                              {", dst:", &kIpGenAddrField},
                                              {", vrf:", &kU32Field},
                                              {", genId:", &kU64Field},
                                              {""}};
constexpr FieldTable kTunnelKeyGenFields{kTunnelKeyGenRows};
unsigned formatTunnelKeyGen(const unsigned char* p, std::ostream& os) {
  return formatTable<kTunnelKeyGenRows>(p, os);
}
unsigned lengthTunnelKeyGen(const unsigned char* p) { return lengthTable<kTunnelKeyGenRows>(p); }

constexpr LabeledField kTunnelKeyGenOptimizedRows[] = {{"src:", &kIpGenAddrOptField},
                                                       {", dst:", &kIpGenAddrOptField},
                                                       {", vrf:", &kU32Field},
                                                       {", genId:", &kU64Field},
                                                       {""}};
constexpr FieldTable kTunnelKeyGenOptimizedFields{kTunnelKeyGenOptimizedRows};
unsigned formatTunnelKeyGenOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kTunnelKeyGenOptimizedRows>(p, os);
}
unsigned lengthTunnelKeyGenOptimized(const unsigned char* p) {
  return lengthTable<kTunnelKeyGenOptimizedRows>(p);
}

constexpr LabeledField kPseudowireKeyRows[] = {
    {"", &kU32Field}, {"/", &kStringField}, {"/", &kIpGenAddrField}, {""}};
constexpr FieldTable kPseudowireKeyFields{kPseudowireKeyRows};
unsigned formatPseudowireKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kPseudowireKeyRows>(p, os);
}
unsigned lengthPseudowireKey(const unsigned char* p) { return lengthTable<kPseudowireKeyRows>(p); }

constexpr LabeledField kPseudowireKeyOptimizedRows[] = {
    {"", &kU32Field}, {"/", &kStringField}, {"/", &kIpGenAddrOptField}, {""}};
constexpr FieldTable kPseudowireKeyOptimizedFields{kPseudowireKeyOptimizedRows};
unsigned formatPseudowireKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kPseudowireKeyOptimizedRows>(p, os);
}
unsigned lengthPseudowireKeyOptimized(const unsigned char* p) {
  return lengthTable<kPseudowireKeyOptimizedRows>(p);
}

} // namespace Orvane
