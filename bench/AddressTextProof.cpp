// Proves the plug-in's own address, MAC and system-id text identical to what it replaced:
// the C library's inet_ntop, and snprintf with the formats the formatters used. It calls
// the plug-in's exported functions, so it proves the code the plug-in ships.
//
//   address_text_proof ipv4                every IPv4 address, 2^32 of them
//   address_text_proof ipv6 COUNT [SEED]   COUNT IPv6 addresses, cycling through the shapes
//   address_text_proof hex COUNT [SEED]    COUNT random values through "E", "EC", "ES",
//                                          "IS", "IGPN" and "PG", each on a stream with a
//                                          width, fill and adjustment set
//
// Prints what it compared and how many differed (the first few in full); exits 1 when
// any differed. scripts/prove-address-text runs all three.
#include "address/Ethernet.h"
#include "address/GenericPrefix.h"
#include "address/Ip.h"
#include "address/IpText.h"
#include "address/SystemId.h"
#include "mpls/IgpNode.h"
#include "registry/Bytes.h"
#include "tests/support/Ipv6Shapes.h"

#include <arpa/inet.h>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iomanip>
#include <iostream>
#include <map>
#include <random>
#include <sstream>
#include <string>

namespace {

using namespace Orvane;

// Counts comparisons and differences, and shows the first few differences, each named
// by `what()` (called only then).
class Tally {
public:
  void compare(const std::string& expected, const std::string& actual, const auto& what) {
    ++compared_;
    if (expected == actual) return;
    if (++differed_ <= 10)
      std::cout << what() << ": expected \"" << expected << "\", got \"" << actual << "\"\n";
  }
  int report(const std::string& what) const {
    std::cout << what << ": " << compared_ << " compared, " << differed_ << " differed\n";
    return differed_ ? 1 : 0;
  }

private:
  unsigned long long compared_ = 0, differed_ = 0;
};

std::string hexOf(const unsigned char* bytes, int count) {
  std::string hex;
  char pair[3];
  for (int i = 0; i < count; ++i) {
    std::snprintf(pair, sizeof pair, "%02x", bytes[i]);
    hex += pair;
  }
  return hex;
}

std::string inetNtop(int family, const void* bytes) {
  char text[64];
  return inet_ntop(family, bytes, text, sizeof text) ? text : "(failed)";
}

// formatIpAddr, into a buffer as large as "I" prints from, for every native u32.
int proveIpv4() {
  Tally tally;
  for (uint64_t n = 0; n <= UINT32_MAX; ++n) {
    const uint32_t native = static_cast<uint32_t>(n), network = __builtin_bswap32(native);
    char text[kIpv4TextSize];
    tally.compare(inetNtop(AF_INET, &network),
                  formatIpAddr(reinterpret_cast<const unsigned char*>(&native), text, sizeof text),
                  [&] { return std::to_string(n); });
  }
  return tally.report("ipv4");
}

// Which of inet_ntop's forms a text has, to show that every one occurred.
const char* formOf(const std::string& text) {
  if (text.find('.') != std::string::npos)
    return text.rfind("::ffff:", 0) == 0 ? "v4-mapped" : "v4-compatible";
  if (text == "::") return "all zeros";
  return text.find("::") != std::string::npos ? "zero run compressed" : "no run compressed";
}

int proveIpv6(unsigned long long count, unsigned seed) {
  std::mt19937_64 random(seed);
  Tally tally;
  std::map<std::string, unsigned long long> forms;
  std::ostringstream actual;
  for (unsigned long long i = 0; i < count; ++i) {
    const auto bytes = test::ipv6OfShape(static_cast<unsigned>(i), random);
    const std::string expected = inetNtop(AF_INET6, bytes.data());
    actual.str(std::string());
    formatIp6Addr(bytes.data(), actual);
    tally.compare(expected, actual.str(), [&] { return hexOf(bytes.data(), 16); });
    ++forms[formOf(expected)];
  }
  for (const auto& [form, n] : forms) std::cout << "  " << form << ": " << n << "\n";
  return tally.report("ipv6");
}

// The texts the formatters printed before, built as they built them.
std::string printed(const char* format, auto... args) {
  char text[64];
  std::snprintf(text, sizeof text, format, args...);
  return text;
}

unsigned short group(const unsigned char* p) {
  return static_cast<unsigned short>(p[0] << 8 | p[1]);
}

std::string ethBefore(const unsigned char* p) {
  return printed("%04hx.%04hx.%04hx", group(p), group(p + 2), group(p + 4));
}
std::string ethColonBefore(const unsigned char* p) {
  return printed("%02hhx:%02hhx:%02hhx:%02hhx:%02hhx:%02hhx", p[0], p[1], p[2], p[3], p[4], p[5]);
}
std::string ethSegmentBefore(const unsigned char* p) {
  return printed("%04hx:%04hx:%04hx:%04hx:%04hx", group(p), group(p + 2), group(p + 4),
                 group(p + 6), group(p + 8));
}
std::string isisBefore(const unsigned char* p) {
  return printed("%02hhx%02hhx.%02hhx%02hhx.%02hhx%02hhx", p[0], p[1], p[2], p[3], p[4], p[5]);
}
std::string igpNodeBefore(const unsigned char* p) {
  const uint16_t low = load<uint16_t>(p + 3), middle = load<uint16_t>(p + 5),
                 high = load<uint16_t>(p + 7);
  switch (p[0]) {
  case 1: return printed("%04hx.%04hx.%04hx", high, middle, low);
  case 2: return printed("%04hx.%04hx.%04hx.%02hhx", high, middle, low, p[2]);
  case 5: {
    const uint32_t address = __builtin_bswap32(load<uint32_t>(p + 1));
    return inetNtop(AF_INET, &address);
  }
  default: return "unknown";
  }
}
// "PG" printed its address text, "/" and the length as three insertions.
void genPrefixBefore(const unsigned char* p, std::ostream& os) {
  os << (p[0] == 1   ? inetNtop(AF_INET, p + 1)
         : p[0] == 2 ? inetNtop(AF_INET6, p + 1)
                     : printed("unknown address family(%hhd)", static_cast<signed char>(p[0])))
     << "/" << static_cast<unsigned>(p[17]);
}

// The other ids printed their whole text as one insertion.
template <std::string (*text)(const unsigned char*)>
void insertedWhole(const unsigned char* p, std::ostream& os) {
  os << text(p);
}

// Sets a width, fill and adjustment drawn from `draw` on `os`, as a caller may have.
void prime(std::ostream& os, unsigned draw) {
  os << std::setw(static_cast<int>(draw % 40)) << std::setfill(draw % 3 ? ' ' : '*')
     << (draw % 2 ? std::left : std::right);
}

int proveHex(unsigned long long count, unsigned seed) {
  using Format = unsigned (*)(const unsigned char*, std::ostream&);
  using Before = void (*)(const unsigned char*, std::ostream&);
  const struct {
    const char* id;
    Format format;
    Before before;
  } ids[] = {{"E", formatEth, insertedWhole<ethBefore>},
             {"EC", formatEthColonSeparated, insertedWhole<ethColonBefore>},
             {"ES", formatEthSegment, insertedWhole<ethSegmentBefore>},
             {"IS", formatIsisSystemId, insertedWhole<isisBefore>},
             {"IGPN", formatIgpNodeId, insertedWhole<igpNodeBefore>},
             {"PG", formatIpGenPrefix, genPrefixBefore}};
  const unsigned char kinds[] = {1, 2, 5};
  std::mt19937_64 random(seed);
  Tally tally;
  for (unsigned long long i = 0; i < count; ++i) {
    unsigned char bytes[24];
    for (auto& byte : bytes) byte = static_cast<unsigned char>(random());
    // The leading byte is a kind or tag for "IGPN" and "PG": known ones most of the time.
    if (i % 4 != 3) bytes[0] = kinds[i % 3];
    const unsigned draw = static_cast<unsigned>(random());
    for (const auto& id : ids) {
      std::ostringstream expected, actual;
      prime(expected, draw);
      id.before(bytes, expected);
      prime(actual, draw);
      id.format(bytes, actual);
      tally.compare(expected.str(), actual.str(),
                    [&] { return std::string(id.id) + " " + hexOf(bytes, 24); });
    }
  }
  return tally.report("hex");
}

} // namespace

int main(int argc, char** argv) {
  const std::string mode = argc > 1 ? argv[1] : "";
  const unsigned long long count = argc > 2 ? std::stoull(argv[2]) : 0;
  const unsigned seed = argc > 3 ? static_cast<unsigned>(std::stoul(argv[3])) : 1;
  if (mode == "ipv4" && argc == 2) return proveIpv4();
  if (mode == "ipv6" && count) return proveIpv6(count, seed);
  if (mode == "hex" && count) return proveHex(count, seed);
  std::cerr << "usage: address_text_proof ipv4 | ipv6 COUNT [SEED] | hex COUNT [SEED]\n";
  return 2;
}
