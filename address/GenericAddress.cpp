#include "address/GenericAddress.h"

#include "address/AddressFamily.h"
#include "address/Ip.h"
#include "registry/Fields.h"

namespace Orvane {
namespace {

// The IPv4 slot, a native-order u32, printed as "I" prints it.
void printIpv4Slot(const unsigned char* v4, std::ostream& os) { formatIp(v4, os); }
void printIpv4Slot(const unsigned char* v4, TextRun& text) { appendIp(v4, text); }

// Prints the address whose IPv4 slot is at `v4` and IPv6 slot at `v6` by `tag`.
// Out is std::ostream or TextRun (printField).
template <class Out>
void printTagged(Out& out, unsigned char tag, const unsigned char* v4, const unsigned char* v6) {
  if (tag == kFamilyIpv4)
    printIpv4Slot(v4, out);
  else if (tag == kFamilyIpv6)
    printIpv6Bytes(out, v6);
  else
    printField(out, "unknown");
}

template <class Out> unsigned printIpGenAddr(const unsigned char* p, Out& out) {
  printTagged(out, p[0], p + 1, p + 5);
  return lengthIpGenAddr(p);
}

template <class Out> unsigned printIpGenAddrOpt(const unsigned char* p, Out& out) {
  printTagged(out, p[0], p + 1, p + 1);
  return lengthIpGenAddrOpt(p);
}

} // namespace

unsigned formatIpGenAddr(const unsigned char* p, std::ostream& os) { return printIpGenAddr(p, os); }
unsigned appendIpGenAddr(const unsigned char* p, TextRun& text) { return printIpGenAddr(p, text); }
unsigned lengthIpGenAddr(const unsigned char*) { return 21; }

unsigned formatIpGenAddrOpt(const unsigned char* p, std::ostream& os) {
  return printIpGenAddrOpt(p, os);
}
unsigned appendIpGenAddrOpt(const unsigned char* p, TextRun& text) {
  return printIpGenAddrOpt(p, text);
}
unsigned lengthIpGenAddrOpt(const unsigned char* p) {
  switch (p[0]) {
  case kFamilyIpv4: return 5;
  case kFamilyIpv6: return 17;
  default: return 1;
  }
}

constexpr LabeledField kIpGenAddrWithFullMaskFields[] = {
    {"", &kIpGenAddrField}, {"/", &kIpGenAddrField}, {""}};
unsigned formatIpGenAddrWithFullMask(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpGenAddrWithFullMaskFields>(p, os);
}
unsigned lengthIpGenAddrWithFullMask(const unsigned char* p) {
  return lengthTable<kIpGenAddrWithFullMaskFields>(p);
}

constexpr LabeledField kIpGenAddrOptWithFullMaskFields[] = {
    {"", &kIpGenAddrOptField}, {"/", &kIpGenAddrOptField}, {""}};
unsigned formatIpGenAddrOptWithFullMask(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpGenAddrOptWithFullMaskFields>(p, os);
}
unsigned lengthIpGenAddrWithFullMaskOpt(const unsigned char* p) {
  return lengthTable<kIpGenAddrOptWithFullMaskFields>(p);
}

} // namespace Orvane
