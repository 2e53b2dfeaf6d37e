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

// Join states: 0, 1, then every other value.
const char* joinStateName(const unsigned char* p, const char* const (&names)[3]) {
  const uint32_t state = load<uint32_t>(p);
  return names[state < 2 ? state : 2];
}

} // namespace

constexpr LabeledField kMRouteKeyRows[] = {
    {"(", &kIpGenAddrField}, {", ", &kIpGenAddrField}, {")"}};
constexpr FieldTable kMRouteKeyFields{kMRouteKeyRows};
unsigned formatMRouteKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kMRouteKeyRows>(p, os);
}
unsigned lengthMRouteKey(const unsigned char* p) { return lengthTable<kMRouteKeyRows>(p); }

constexpr LabeledField kMRouteKeyOptimizedRows[] = {
    {"(", &kIpGenAddrOptField}, {", ", &kIpGenAddrOptField}, {")"}};
constexpr FieldTable kMRouteKeyOptimizedFields{kMRouteKeyOptimizedRows};
unsigned formatMRouteKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kMRouteKeyOptimizedRows>(p, os);
}
unsigned lengthMRouteKeyOptimized(const unsigned char* p) {
  return lengthTable<kMRouteKeyOptimizedRows>(p);
}

// mRouteFlags may be replaced by anyone holding the exported symbol, so it is read
// afresh at every step rather than cached.
unsigned appendMRouteFlags(const unsigned char* p, TextRun& text) {
  for (unsigned i = 0; i < std::strlen(mRouteFlags); ++i)
    if (p[i]) text << std::string_view(&mRouteFlags[i], 1);
  if (!p[kFlagW] && !p[kFlagS]) text << "E";
  return lengthMRouteFlags(p);
}
unsigned formatMRouteFlags(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendMRouteFlags>(p, os);
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

constexpr LabeledField kMfibRouteKeyRows[] = {
    {"(", &kIpPrefixField}, {", ", &kIpPrefixField}, {")"}};
constexpr FieldTable kMfibRouteKeyFields{kMfibRouteKeyRows};
unsigned formatMfibRouteKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kMfibRouteKeyRows>(p, os);
}
unsigned lengthMfibRouteKey(const unsigned char* p) { return lengthTable<kMfibRouteKeyRows>(p); }

constexpr LabeledField kMfibGenRouteKeyRows[] = {
    {"(", &kIpGenPrefixField}, {", ", &kIpGenPrefixField}, {")"}};
constexpr FieldTable kMfibGenRouteKeyFields{kMfibGenRouteKeyRows};
unsigned formatMfibGenRouteKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kMfibGenRouteKeyRows>(p, os);
}
unsigned lengthMfibGenRouteKey(const unsigned char* p) {
  return lengthTable<kMfibGenRouteKeyRows>(p);
}

constexpr LabeledField kMfibGenRouteKeyOptimizedRows[] = {
    {"(", &kIpGenPrefixOptimizedField}, {", ", &kIpGenPrefixOptimizedField}, {")"}};
constexpr FieldTable kMfibGenRouteKeyOptimizedFields{kMfibGenRouteKeyOptimizedRows};
unsigned formatMfibGenRouteKeyOptimized(const unsigned char* p, std::ostream& os) {
  return formatTable<kMfibGenRouteKeyOptimizedRows>(p, os);
}
unsigned lengthMfibGenRouteKeyOptimized(const unsigned char* p) {
  return lengthTable<kMfibGenRouteKeyOptimizedRows>(p);
}

unsigned formatMulticastTunnelType(const unsigned char* p, std::ostream& os) {
  printName(os, multicastTunnelTypeNames, p[0]);
  return lengthMulticastTunnelType(p);
}
unsigned lengthMulticastTunnelType(const unsigned char*) { return 1; }

} // namespace Orvane
