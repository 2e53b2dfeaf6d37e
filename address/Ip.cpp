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

} // namespace

void printIpv4Bytes(TextRun& text, const unsigned char* bytes) {
  char buffer[kIpv4TextSize];
  text.join(converted(buffer, ipv4Text(bytes, buffer, sizeof buffer)));
}
void printIpv6Bytes(TextRun& text, const unsigned char* bytes) {
  char buffer[kIpv6TextSize];
  text.join(converted(buffer, ipv6Text(bytes, buffer, sizeof buffer)));
}

char* formatIpAddr(const unsigned char* p, char* buf, unsigned len) {
  const uint32_t address = networkOrder(p);
  if (!ipv4Text(reinterpret_cast<const unsigned char*>(&address), buf, len))
    std::strncpy(buf, "unknown", len);
  return buf;
}

unsigned appendIp(const unsigned char* p, TextRun& text) {
  const uint32_t address = networkOrder(p);
  printIpv4Bytes(text, reinterpret_cast<const unsigned char*>(&address));
  return lengthIp(p);
}
unsigned formatIp(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIp>(p, os);
}
unsigned lengthIp(const unsigned char*) { return 4; }

unsigned appendIp6Addr(const unsigned char* p, TextRun& text) {
  printIpv6Bytes(text, p);
  return lengthIp6Addr(p);
}
unsigned formatIp6Addr(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIp6Addr>(p, os);
}
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
