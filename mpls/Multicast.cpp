#include "mpls/Multicast.h"

#include "address/GenericAddress.h"
#include "address/GenericPrefix.h"
#include "address/Ip.h"
#include "registry/Bytes.h"
#include "registry/Fields.h"
#include "registry/TextRun.h"

#include <cstdint>
#include <cstring>

namespace Orvane {

const char* mRouteFlags = "RWSJTBKZNMACO";

namespace {

// Flag positions that together decide the trailing "E".
constexpr unsigned kFlagW = 1, kFlagS = 2;

// Every multicast key is "(" first ", " second ")" with the two parts alike.
template <AppendPtr appendPart> unsigned formatPair(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(", appendPart, ", ", appendPart, ")");
}
template <LengthPtr lengthPart> unsigned measurePair(const unsigned char* p) {
  return measureFields(p, lengthPart, lengthPart);
}

// Join states: 0, 1, then every other value.
const char* joinStateName(const unsigned char* p, const char* const (&names)[3]) {
  const uint32_t state = load<uint32_t>(p);
  return names[state < 2 ? state : 2];
}

} // namespace

unsigned formatMRouteKey(const unsigned char* p, std::ostream& os) {
  return formatPair<appendIpGenAddr>(p, os);
}
unsigned lengthMRouteKey(const unsigned char* p) { return measurePair<lengthIpGenAddr>(p); }

unsigned formatMRouteKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatPair<appendIpGenAddrOpt>(p, os);
}
unsigned lengthMRouteKeyOptimized(const unsigned char* p) {
  return measurePair<lengthIpGenAddrOpt>(p);
}

unsigned formatMRouteFlags(const unsigned char* p, std::ostream& os) {
  // mRouteFlags may be replaced by anyone holding the exported symbol, so it is read
  // afresh at every step rather than cached.
  TextRun text(os);
  for (unsigned i = 0; i < std::strlen(mRouteFlags); ++i)
    if (p[i]) text << std::string_view(&mRouteFlags[i], 1);
  if (!p[kFlagW] && !p[kFlagS]) text << "E";
  text.flush();
  return lengthMRouteFlags(p);
}
unsigned lengthMRouteFlags(const unsigned char*) {
  return static_cast<unsigned>(std::strlen(mRouteFlags));
}

unsigned formatMRouteIntfJoinState(const unsigned char* p, std::ostream& os) {
  static constexpr const char* kNames[] = {"noInfo", "prunePending", "joined"};
  os << joinStateName(p, kNames);
  return lengthMRouteIntfJoinState(p);
}
unsigned lengthMRouteIntfJoinState(const unsigned char*) { return 4; }

unsigned formatMRouteIntfRptJoinState(const unsigned char* p, std::ostream& os) {
  static constexpr const char* kNames[] = {"rptNoInfo", "rptPruned", "rptPrunePending"};
  os << joinStateName(p, kNames);
  return lengthMRouteIntfRptJoinState(p);
}
unsigned lengthMRouteIntfRptJoinState(const unsigned char*) { return 4; }

unsigned formatMfibRouteKey(const unsigned char* p, std::ostream& os) {
  return formatPair<appendIpPrefix>(p, os);
}
unsigned lengthMfibRouteKey(const unsigned char* p) { return measurePair<lengthIpPrefix>(p); }

unsigned formatMfibGenRouteKey(const unsigned char* p, std::ostream& os) {
  return formatPair<appendIpGenPrefix>(p, os);
}
unsigned lengthMfibGenRouteKey(const unsigned char* p) { return measurePair<lengthIpGenPrefix>(p); }

unsigned formatMfibGenRouteKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatPair<appendIpGenPrefixOptimized>(p, os);
}
unsigned lengthMfibGenRouteKeyOptimized(const unsigned char* p) {
  return measurePair<lengthIpGenPrefixOptimized>(p);
}

unsigned formatMulticastTunnelType(const unsigned char* p, std::ostream& os) {
  printName(os, multicastTunnelTypeNames, p[0]);
  return lengthMulticastTunnelType(p);
}
unsigned lengthMulticastTunnelType(const unsigned char*) { return 1; }

} // namespace Orvane
