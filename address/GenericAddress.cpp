#include "address/GenericAddress.h"

#include "address/AddressFamily.h"
#include "address/Ip.h"
#include "registry/Fields.h"

namespace Orvane {
namespace {

// Prints the address whose IPv4 slot is at `v4` and IPv6 slot at `v6` by `tag`.
void printTagged(std::ostream& os, unsigned char tag, const unsigned char* v4,
                 const unsigned char* v6) {
  if (tag == kFamilyIpv4)
    formatIp(v4, os);
  else if (tag == kFamilyIpv6)
    formatIp6Addr(v6, os);
  else
    os << "unknown";
}

} // namespace

unsigned formatIpGenAddr(const unsigned char* p, std::ostream& os) {
  printTagged(os, p[0], p + 1, p + 5);
  return lengthIpGenAddr(p);
}
unsigned lengthIpGenAddr(const unsigned char*) { return 21; }

unsigned formatIpGenAddrOpt(const unsigned char* p, std::ostream& os) {
  printTagged(os, p[0], p + 1, p + 1);
  return lengthIpGenAddrOpt(p);
}
unsigned lengthIpGenAddrOpt(const unsigned char* p) {
  switch (p[0]) {
  case kFamilyIpv4: return 5;
  case kFamilyIpv6: return 17;
  default: return 1;
  }
}

unsigned formatIpGenAddrWithFullMask(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatIpGenAddr, "/", formatIpGenAddr);
}
unsigned lengthIpGenAddrWithFullMask(const unsigned char* p) {
  return measureFields(p, lengthIpGenAddr, lengthIpGenAddr);
}

unsigned formatIpGenAddrOptWithFullMask(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatIpGenAddrOpt, "/", formatIpGenAddrOpt);
}
unsigned lengthIpGenAddrWithFullMaskOpt(const unsigned char* p) {
  return measureFields(p, lengthIpGenAddrOpt, lengthIpGenAddrOpt);
}

} // namespace Orvane
