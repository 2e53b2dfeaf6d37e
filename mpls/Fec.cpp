#include "mpls/Fec.h"

#include "address/GenericAddress.h"
#include "address/GenericPrefix.h"
#include "registry/Fields.h"
#include "registry/Formatter.h"
#include "registry/HostInterface.h"

#include <iterator>

namespace Orvane {
namespace {

enum FecType : unsigned char { kPrefixFec = 0, kRsvpFec = 1, kMldpFec = 2, kPrefixAlgoFec = 3 };

// The bodies after the type byte, indexed by the type: plain and optimized addresses.
constexpr LabeledField kPrefix[] = {{"", &kIpGenPrefixField}, {""}};
constexpr LabeledField kRsvp[] = {{"RSVP[Session=", &kU32Field}, {", SP=", &kU32Field}, {"]"}};
constexpr LabeledField kMldp[] = {{"MLDP[Root=", &kIpGenAddrField}, {", ID=", &kU32Field}, {"]"}};
constexpr LabeledField kPrefixAlgo[] = {
    {"PFXALGO[", &kIpGenPrefixField}, {", ", &kU32Field}, {"]"}};
constexpr const LabeledField* kFecBodies[] = {kPrefix, kRsvp, kMldp, kPrefixAlgo};

constexpr LabeledField kPrefixOpt[] = {{"", &kIpGenPrefixOptimizedField}, {""}};
constexpr LabeledField kMldpOpt[] = {
    {"MLDP[Root=", &kIpGenAddrOptField}, {", ID=", &kU32Field}, {"]"}};
constexpr LabeledField kPrefixAlgoOpt[] = {
    {"PFXALGO[", &kIpGenPrefixOptimizedField}, {", ", &kU32Field}, {"]"}};
constexpr const LabeledField* kFecBodiesOptimized[] = {kPrefixOpt, kRsvp, kMldpOpt, kPrefixAlgoOpt};

// The body the type picks; an unknown type has none and its count is the invalid one.
VariantBody fecBody(const unsigned char* p, const LabeledField* const (&bodies)[4]) {
  if (p[0] >= std::size(bodies)) return {};
  return {bodies[p[0]], 1};
}

} // namespace

constexpr FieldVariants kMplsFwdEqvClassVariants{
    "the FEC type (byte 0), the body starting at byte 1 (any other type is invalid)",
    std::size(kFecBodies), [](unsigned type) { return kFecBodies[type]; }};
constexpr FieldVariants kMplsFwdEqvClassOptimizedVariants{
    "the FEC type (byte 0), the body starting at byte 1 (any other type is invalid)",
    std::size(kFecBodiesOptimized), [](unsigned type) { return kFecBodiesOptimized[type]; }};

unsigned formatMplsFwdEqvClass(const unsigned char* p, std::ostream& os) {
  return formatVariant(fecBody(p, kFecBodies), p, os);
}
unsigned lengthMplsFwdEqvClass(const unsigned char* p) {
  return lengthVariant(fecBody(p, kFecBodies), p);
}

unsigned formatMplsFwdEqvClassOptimized(const unsigned char* p, std::ostream& os) {
  return formatVariant(fecBody(p, kFecBodiesOptimized), p, os);
}
unsigned lengthMplsFwdEqvClassOptimized(const unsigned char* p) {
  return lengthVariant(fecBody(p, kFecBodiesOptimized), p);
}

} // namespace Orvane
