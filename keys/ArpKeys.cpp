#include "keys/ArpKeys.h"

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

// The flag byte of an entry that carries two more numbers.
constexpr unsigned char kExtendedEntry = 1;

} // namespace

unsigned formatArpInputConfigKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", appendIpGenAddrOpt, "][", formatString, "]");
}
unsigned lengthArpInputConfigKey(const unsigned char* p) {
  return measureFields(p, lengthIpGenAddrOpt, lengthString);
}

// The flag is read before it is printed and alone decides whether the two extra
// numbers exist.
unsigned formatArpInputConfigEntry(const unsigned char* p, std::ostream& os) {
  unsigned off = formatFields(p, os, formatArpInputConfigKey, "[", appendEth, "][");
  const bool extended = at(p, off)[0] == kExtendedEntry;
  off += formatFields(at(p, off), os, formatU8, "][", formatU32);
  if (extended) off += formatFields(at(p, off), os, "][", formatU32, "][", formatU32);
  os << "]";
  return off;
}
unsigned lengthArpInputConfigEntry(const unsigned char* p) {
  unsigned off = measureFields(p, lengthArpInputConfigKey, lengthEth);
  const bool extended = at(p, off)[0] == kExtendedEntry;
  off += measureFields(at(p, off), lengthU8, lengthU32);
  if (extended) off += measureFields(at(p, off), lengthU32, lengthU32);
  return off;
}

unsigned formatArpInputPriorityKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "[", formatU8, "][", formatU32, "]");
}
unsigned lengthArpInputPriorityKey(const unsigned char* p) {
  return measureFields(p, lengthU8, lengthU32);
}

unsigned formatArpInputPriorityInterfaceKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatArpInputPriorityKey, "[", formatString, "]");
}
unsigned lengthArpInputPriorityInterfaceKey(const unsigned char* p) {
  return measureFields(p, lengthArpInputPriorityKey, lengthString);
}

} // namespace Orvane
