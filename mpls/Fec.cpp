#include "mpls/Fec.h"

#include "address/GenericAddress.h"
#include "address/GenericPrefix.h"
#include "registry/Fields.h"
#include "registry/Formatter.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

enum FecType : unsigned char { kPrefixFec = 0, kRsvpFec = 1, kMldpFec = 2, kPrefixAlgoFec = 3 };

// The address and prefix encodings one FEC form uses.
struct FecFields {
  AppendPtr appendPrefix;
  LengthPtr lengthPrefix;
  AppendPtr appendAddress;
  LengthPtr lengthAddress;
};

constexpr FecFields kPlainFields{appendIpGenPrefix, lengthIpGenPrefix, appendIpGenAddr,
                                 lengthIpGenAddr};
constexpr FecFields kOptimizedFields{appendIpGenPrefixOptimized, lengthIpGenPrefixOptimized,
                                     appendIpGenAddrOpt, lengthIpGenAddrOpt};

// The body follows the type byte, so each walk starts at p + 1 and adds that byte.
unsigned formatFec(const unsigned char* p, std::ostream& os, const FecFields& fields) {
  const unsigned char* body = p + 1;
  switch (p[0]) {
  case kPrefixFec: return 1 + formatFields(body, os, fields.appendPrefix);
  case kRsvpFec:
    return 1 + formatFields(body, os, "RSVP[Session=", formatU32, ", SP=", formatU32, "]");
  case kMldpFec:
    return 1 + formatFields(body, os, "MLDP[Root=", fields.appendAddress, ", ID=", formatU32, "]");
  case kPrefixAlgoFec:
    return 1 + formatFields(body, os, "PFXALGO[", fields.appendPrefix, ", ", formatU32, "]");
  default:
    return kInvalidLength;
  }
}

unsigned measureFec(const unsigned char* p, const FecFields& fields) {
  const unsigned char* body = p + 1;
  switch (p[0]) {
  case kPrefixFec:
    return 1 + measureFields(body, fields.lengthPrefix);
  case kRsvpFec:
    return 1 + measureFields(body, lengthU32, lengthU32);
  case kMldpFec:
    return 1 + measureFields(body, fields.lengthAddress, lengthU32);
  case kPrefixAlgoFec:
    return 1 + measureFields(body, fields.lengthPrefix, lengthU32);
  default:
    return kInvalidLength;
  }
}

} // namespace

unsigned formatMplsFwdEqvClass(const unsigned char* p, std::ostream& os) {
  return formatFec(p, os, kPlainFields);
}
unsigned lengthMplsFwdEqvClass(const unsigned char* p) { return measureFec(p, kPlainFields); }

unsigned formatMplsFwdEqvClassOptimized(const unsigned char* p, std::ostream& os) {
  return formatFec(p, os, kOptimizedFields);
}
unsigned lengthMplsFwdEqvClassOptimized(const unsigned char* p) {
  return measureFec(p, kOptimizedFields);
}

} // namespace Orvane
