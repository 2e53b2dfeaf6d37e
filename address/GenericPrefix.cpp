#include "address/GenericPrefix.h"

#include "address/AddressFamily.h"
#include "address/Ip.h"
#include "address/IpText.h"
#include "registry/Formatter.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <string_view>

namespace Orvane {
namespace {

constexpr unsigned char kNoAddressLength = 255;
// An IPv4 length of 33 is a marker that prints like the 255 one.
constexpr unsigned char kIpv4MarkerLength = 33;

// "unknown address family(N)", N the tag as a signed byte (255 prints -1), in one piece.
void printUnknownFamily(TextRun& run, unsigned char tag) {
  constexpr std::string_view kPrefix = "unknown address family(";
  char text[kPrefix.size() + sizeof "-128)"];
  char* out = std::copy(kPrefix.begin(), kPrefix.end(), text);
  out = std::to_chars(out, std::end(text), static_cast<signed char>(tag)).ptr;
  *out++ = ')';
  run.join(std::string_view(text, out));
}

} // namespace

unsigned appendIpGenPrefix(const unsigned char* p, TextRun& text) {
  if (p[0] == kFamilyIpv4)
    printIpv4Bytes(text, p + 1);
  else if (p[0] == kFamilyIpv6)
    printIpv6Bytes(text, p + 1);
  else
    printUnknownFamily(text, p[0]);
  text.join("/").number(p[17]);
  return lengthIpGenPrefix(p);
}
unsigned formatIpGenPrefix(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIpGenPrefix>(p, os);
}
unsigned lengthIpGenPrefix(const unsigned char*) { return 18; }

unsigned appendIpGenPrefixOptimized(const unsigned char* p, TextRun& text) {
  const unsigned char tag = p[0], bits = p[1];
  if (tag == kFamilyIpv4 && (bits == kIpv4MarkerLength || bits == kNoAddressLength)) {
    text.join("0.0.0.0/255");
  } else if (bits == kNoAddressLength) {
    if (tag == kFamilyIpv6) text.join("::/255");
  } else if (tag == kFamilyIpv4 || tag == kFamilyIpv6) {
    // Only the leading ceil(L/8) bytes are stored; the rest of the address is zero.
    unsigned char address[64] = {};
    std::memcpy(address, p + 2, (bits + 7u) / 8u);
    char buf[kIpv6TextSize];
    const char* end = tag == kFamilyIpv4 ? ipv4Text(address, buf, sizeof buf)
                                         : ipv6Text(address, buf, sizeof buf);
    if (end)
      text.join(std::string_view(buf, end)).join("/").number(bits);
    else
      text.join("unknown");
  } else {
    printUnknownFamily(text, tag);
    text.join("/").number(bits);
  }
  return lengthIpGenPrefixOptimized(p);
}
unsigned formatIpGenPrefixOptimized(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIpGenPrefixOptimized>(p, os);
}

unsigned lengthIpGenPrefixOptimized(const unsigned char* p) {
  const unsigned char tag = p[0], bits = p[1];
  if (tag == kFamilyUnknown) return 2;
  if (tag != kFamilyIpv4 && tag != kFamilyIpv6) return kInvalidLength;
  if (bits == kNoAddressLength) return 2;
  return 2 + (bits + 7u) / 8u;
}

} // namespace Orvane
