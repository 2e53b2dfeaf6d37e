#include "address/Ip.h"

#include "address/IpText.h"
#include "registry/Bytes.h"

#include <cstdint>
#include <cstring>
#include <string_view>

namespace Orvane {
namespace {

// Prints the text a converter wrote into `text` up to `end`, or "unknown" when it failed
// (end is null).
void printConverted(std::ostream& os, const char* text, const char* end) {
  if (end)
    os << std::string_view(text, end);
  else
    os << "unknown";
}

// Network-order bytes of a native-order u32 IPv4 address.
uint32_t networkOrder(const unsigned char* p) { return __builtin_bswap32(load<uint32_t>(p)); }

} // namespace

void printIpv4Bytes(std::ostream& os, const unsigned char* bytes) {
  char text[kIpv4TextSize];
  printConverted(os, text, ipv4Text(bytes, text, sizeof text));
}

void printIpv6Bytes(std::ostream& os, const unsigned char* bytes) {
  char text[kIpv6TextSize];
  printConverted(os, text, ipv6Text(bytes, text, sizeof text));
}

char* formatIpAddr(const unsigned char* p, char* buf, unsigned len) {
  const uint32_t address = networkOrder(p);
  if (!ipv4Text(reinterpret_cast<const unsigned char*>(&address), buf, len))
    std::strncpy(buf, "unknown", len);
  return buf;
}

unsigned formatIp(const unsigned char* p, std::ostream& os) {
  const uint32_t address = networkOrder(p);
  printIpv4Bytes(os, reinterpret_cast<const unsigned char*>(&address));
  return lengthIp(p);
}
unsigned lengthIp(const unsigned char*) { return 4; }

unsigned formatIp6Addr(const unsigned char* p, std::ostream& os) {
  printIpv6Bytes(os, p);
  return lengthIp6Addr(p);
}
unsigned lengthIp6Addr(const unsigned char*) { return 16; }

unsigned formatIpPrefix(const unsigned char* p, std::ostream& os) {
  formatIp(p, os);
  os << "/" << static_cast<unsigned>(p[4]);
  return lengthIpPrefix(p);
}
unsigned lengthIpPrefix(const unsigned char*) { return 5; }

unsigned formatIp6Prefix(const unsigned char* p, std::ostream& os) {
  formatIp6Addr(p, os);
  os << "/" << static_cast<unsigned>(p[16]);
  return lengthIp6Prefix(p);
}
unsigned lengthIp6Prefix(const unsigned char*) { return 17; }

unsigned formatIpAndPort(const unsigned char* p, std::ostream& os) {
  formatIp(p, os);
  os << ":" << load<uint16_t>(p + 4);
  return lengthIpAndPort(p);
}
unsigned lengthIpAndPort(const unsigned char*) { return 6; }

} // namespace Orvane
