#include "address/Ip.h"

#include "address/IpText.h"
#include "registry/Bytes.h"

#include <cstdint>
#include <cstring>
#include <string_view>

namespace Orvane {
namespace {

// The text a converter wrote into `text` up to `end`, or "unknown" when it failed (end
// is null).
std::string_view converted(const char* text, const char* end) {
  return end ? std::string_view(text, end) : std::string_view("unknown");
}

// Network-order bytes of a native-order u32 IPv4 address.
uint32_t networkOrder(const unsigned char* p) { return __builtin_bswap32(load<uint32_t>(p)); }

// Out is std::ostream or TextRun (printField).
template <class Out> void printIpv4(Out& out, const unsigned char* bytes) {
  char text[kIpv4TextSize];
  printField(out, converted(text, ipv4Text(bytes, text, sizeof text)));
}

template <class Out> void printIpv6(Out& out, const unsigned char* bytes) {
  char text[kIpv6TextSize];
  printField(out, converted(text, ipv6Text(bytes, text, sizeof text)));
}

template <class Out> unsigned printIp(const unsigned char* p, Out& out) {
  const uint32_t address = networkOrder(p);
  printIpv4(out, reinterpret_cast<const unsigned char*>(&address));
  return lengthIp(p);
}

template <class Out> unsigned printIp6(const unsigned char* p, Out& out) {
  printIpv6(out, p);
  return lengthIp6Addr(p);
}

} // namespace

void printIpv4Bytes(std::ostream& os, const unsigned char* bytes) { printIpv4(os, bytes); }
void printIpv6Bytes(std::ostream& os, const unsigned char* bytes) { printIpv6(os, bytes); }
void printIpv4Bytes(TextRun& text, const unsigned char* bytes) { printIpv4(text, bytes); }
void printIpv6Bytes(TextRun& text, const unsigned char* bytes) { printIpv6(text, bytes); }

char* formatIpAddr(const unsigned char* p, char* buf, unsigned len) {
  const uint32_t address = networkOrder(p);
  if (!ipv4Text(reinterpret_cast<const unsigned char*>(&address), buf, len))
    std::strncpy(buf, "unknown", len);
  return buf;
}

unsigned formatIp(const unsigned char* p, std::ostream& os) { return printIp(p, os); }
unsigned appendIp(const unsigned char* p, TextRun& text) { return printIp(p, text); }
unsigned lengthIp(const unsigned char*) { return 4; }

unsigned formatIp6Addr(const unsigned char* p, std::ostream& os) { return printIp6(p, os); }
unsigned appendIp6Addr(const unsigned char* p, TextRun& text) { return printIp6(p, text); }
unsigned lengthIp6Addr(const unsigned char*) { return 16; }

unsigned appendIpPrefix(const unsigned char* p, TextRun& text) {
  appendIp(p, text);
  text.join("/").number(p[4]);
  return lengthIpPrefix(p);
}
unsigned formatIpPrefix(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIpPrefix>(p, os);
}
unsigned lengthIpPrefix(const unsigned char*) { return 5; }

unsigned appendIp6Prefix(const unsigned char* p, TextRun& text) {
  appendIp6Addr(p, text);
  text.join("/").number(p[16]);
  return lengthIp6Prefix(p);
}
unsigned formatIp6Prefix(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIp6Prefix>(p, os);
}
unsigned lengthIp6Prefix(const unsigned char*) { return 17; }

unsigned appendIpAndPort(const unsigned char* p, TextRun& text) {
  appendIp(p, text);
  text.join(":").number(load<uint16_t>(p + 4));
  return lengthIpAndPort(p);
}
unsigned formatIpAndPort(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIpAndPort>(p, os);
}
unsigned lengthIpAndPort(const unsigned char*) { return 6; }

} // namespace Orvane
