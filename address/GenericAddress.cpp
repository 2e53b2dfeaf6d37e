#include "address/GenericAddress.h"

#include "address/AddressFamily.h"
#include "address/Ip.h"
#include "registry/Fields.h"

namespace Orvane {
namespace {

// The address whose IPv4 slot (a native-order u32, printed as "I" prints it) is at `v4`
// and IPv6 slot at `v6`, by `tag`.
void printTagged(TextRun& text, unsigned char tag, const unsigned char* v4,
                 const unsigned char* v6) {
  if (tag == kFamilyIpv4)
    appendIp(v4, text);
  else if (tag == kFamilyIpv6)
    printIpv6Bytes(text, v6);
  else
    text.join("unknown");
}

} // namespace

unsigned appendIpGenAddr(const unsigned char* p, TextRun& text) {
  printTagged(text, p[0], p + 1, p + 5);
  return lengthIpGenAddr(p);
}
unsigned formatIpGenAddr(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIpGenAddr>(p, os);
}
unsigned lengthIpGenAddr(const unsigned char*) { return 21; }

unsigned appendIpGenAddrOpt(const unsigned char* p, TextRun& text) {
  printTagged(text, p[0], p + 1, p + 1);
  return lengthIpGenAddrOpt(p);
}
unsigned formatIpGenAddrOpt(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIpGenAddrOpt>(p, os);
}
unsigned lengthIpGenAddrOpt(const unsigned char* p) {
  switch (p[0]) {
  case kFamilyIpv4: return 5;
  case kFamilyIpv6: return 17;
  default: return 1;
  }
}

constexpr LabeledField kIpGenAddrWithFullMaskRows[] = {
    {"", &kIpGenAddrField}, {"/", &kIpGenAddrField}, {""}};
constexpr FieldTable kIpGenAddrWithFullMaskFields{kIpGenAddrWithFullMaskRows};
unsigned formatIpGenAddrWithFullMask(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpGenAddrWithFullMaskRows>(p, os);
}
unsigned lengthIpGenAddrWithFullMask(const unsigned char* p) {
  return lengthTable<kIpGenAddrWithFullMaskRows>(p);
}

constexpr LabeledField kIpGenAddrOptWithFullMaskRows[] = {
    {"", &kIpGenAddrOptField}, {"/", &kIpGenAddrOptField}, {""}};
constexpr FieldTable kIpGenAddrOptWithFullMaskFields{kIpGenAddrOptWithFullMaskRows};
unsigned formatIpGenAddrOptWithFullMask(const unsigned char* p, std::ostream& os) {
  return formatTable<kIpGenAddrOptWithFullMaskRows>(p, os);
}
unsigned lengthIpGenAddrWithFullMaskOpt(const unsigned char* p) {
  return lengthTable<kIpGenAddrOptWithFullMaskRows>(p);
}

} // namespace Orvane
