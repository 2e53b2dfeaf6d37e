#include "bgp/RouteDistinguisher.h"

#include "address/Ip.h"
#include "registry/Bytes.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

#include <cstdint>
#include <iterator>

namespace Orvane {
namespace {

// A u32 IPv4 address printed as the "I" id prints it, most significant byte first.
void printIpv4Number(TextRun& text, uint32_t address) {
  appendIp(reinterpret_cast<const unsigned char*>(&address), text);
}

void printUnknownRouteDistinguisher(uint64_t rd, std::ostream& os) {
  os << "0x";
  os.setf(std::ios::hex, std::ios::basefield | std::ios::showbase);
  os.width(16);
  os.fill('0');
  os << rd;
  // Hex and the '0' fill stay set on `os`: what the same record prints next comes out
  // in hex. Nothing else is restored; in particular std::cout's flags are left alone,
  // since touching a shared stream would make concurrent calls on separate streams
  // interfere, and restoring them would have no effect on `os`.
}

void printUnknownRouteTarget(uint64_t rt, std::ostream& os) {
  os << "INVALID:0x" << std::hex << std::uppercase << rt << std::dec << std::nouppercase;
}

// The RT-membership key after its origin AS: the route target, the prefix length, and
// the target again as 16 upper-case hex digits. The '0' fill stays set.
unsigned formatMembershipTarget(const unsigned char* p, std::ostream& os) {
  const uint64_t rt = load<uint64_t>(p);
  formatRouteTarget(rt, os);
  os << "/" << static_cast<unsigned>(p[8]) << "; value: 0x" << std::hex << std::uppercase;
  os.fill('0');
  os.width(16);
  os << rt << std::dec << std::nouppercase;
  return 9;
}

constexpr FieldKind kMembershipTargetField{formatMembershipTarget, fixedLength<9>, nullptr,
                                           "route target, prefix length byte", 9};

} // namespace

// Each known type's parts are [0] the administrator and [1] the assigned number; the
// cases are indexed by type.
constexpr unsigned kRdTwoByteAs = 0, kRdIpv4 = 1;
constexpr BitField kRdType{48, 16, "type"};
constexpr BitField kRdTwoByteAsParts[] = {{32, 16, "administrator, a 2-byte AS number"},
                                          {0, 32, "assigned number, u32"}};
constexpr BitField kRdIpv4Parts[] = {{16, 32, "administrator, an IPv4 address"},
                                     {0, 16, "assigned number, u16"}};
constexpr BitField kRdFourByteAsParts[] = {{16, 32, "administrator, a 4-byte AS number"},
                                           {0, 16, "assigned number, u16"}};
constexpr CodeCase kRdTypes[] = {
    {kRdTwoByteAs,
     "administrator `:` number, in decimal; a number above 0xFFFFFF as a dotted IPv4 "
     "address (`0:1`, `0:1.0.0.0`)",
     kRdTwoByteAsParts},
    {kRdIpv4, "the address, dotted, `:` number in decimal (`192.0.2.1:7`)", kRdIpv4Parts},
    {2, "administrator `:` number, in decimal (`70000:100`)", kRdFourByteAsParts}};
static_assert(indexedByCode(kRdTypes));
constexpr CodeTable kRdTypeCodes{"type", &kRdType, kRdTypes,
                                 "`0x` and the whole value in 16 lower-case hex digits, the "
                                 "stream left in hex with fill `0` (`0x0123456789abcdef`)"};
constexpr ByteField kRdBytes[] = {
    {0, 8, "the route distinguisher, one little-endian u64 (its bits below)"}};
constexpr ValueLayout kRouteDistinguisherLayout{kRdBytes, &kRdTypeCodes};

// As for the RD: [0] the global and [1] the local administrator, indexed by type.
constexpr unsigned kRtIpv4 = 1, kRtFourByteAs = 2;
constexpr BitField kRtType{56, 8, "type"};
constexpr BitField kRtTwoByteAsParts[] = {{32, 16, "global administrator, a 2-byte AS number"},
                                          {0, 32, "local administrator, u32"}};
constexpr BitField kRtIpv4Parts[] = {{16, 32, "global administrator, an IPv4 address"},
                                     {0, 16, "local administrator, u16"}};
constexpr BitField kRtFourByteAsParts[] = {{16, 32, "global administrator, a 4-byte AS number"},
                                           {0, 16, "local administrator, u16"}};
constexpr CodeCase kRtTypes[] = {
    {0, "global `:` local, in decimal (`65000:100`)", kRtTwoByteAsParts},
    {kRtIpv4,
     "the address's four bytes, most significant first, in decimal with `.` between, `:` "
     "local in decimal (`193.3.5.7:7`)",
     kRtIpv4Parts},
    {kRtFourByteAs,
     "global in decimal, `L` when bits 32-47 are zero, `:` local in decimal (`65000L:100`, "
     "`70000:100`)",
     kRtFourByteAsParts}};
static_assert(indexedByCode(kRtTypes));
constexpr CodeTable kRtTypeCodes{
    "type", &kRtType, kRtTypes,
    "`INVALID:0x` and the whole value in upper-case hex, unpadded (`INVALID:0x323456789ABCDEF`)"};
constexpr ByteField kRtBytes[] = {{0, 8,
                                   "the route target, one little-endian u64 (its bits below); "
                                   "bits 48-55, the subtype, are not read"}};
constexpr ValueLayout kRouteTargetLayout{kRtBytes, &kRtTypeCodes};

void printRouteDistinguisher(unsigned long long rd, TextRun& text) {
  const uint64_t type = kRdType.of(rd);
  if (type >= std::size(kRdTypes)) {
    printUnknownRouteDistinguisher(rd, text.flush());
    return;
  }
  const std::span<const BitField> parts = kRdTypes[type].parts;
  const auto administrator = static_cast<uint32_t>(parts[0].of(rd));
  const auto number = static_cast<uint32_t>(parts[1].of(rd));
  if (type == kRdIpv4)
    printIpv4Number(text, administrator);
  else
    text.number(administrator);
  text.join(":");
  if (type == kRdTwoByteAs && number > 0xFFFFFF)
    printIpv4Number(text, number);
  else
    text.number(number);
}

void printRouteTarget(unsigned long long rt, TextRun& text) {
  const uint64_t type = kRtType.of(rt);
  if (type >= std::size(kRtTypes)) {
    printUnknownRouteTarget(rt, text.flush());
    return;
  }
  const std::span<const BitField> parts = kRtTypes[type].parts;
  const uint64_t global = parts[0].of(rt);
  if (type == kRtIpv4) {
    text.number(global >> 24).join(".").number(global >> 16 & 0xFF).join(".");
    text.number(global >> 8 & 0xFF).join(".").number(global & 0xFF);
  } else {
    text.number(global);
  }
  if (type == kRtFourByteAs && global >> 16 == 0) text.join("L");
  text.join(":").number(parts[1].of(rt));
}

void formatRouteDistinguisher(unsigned long long rd, std::ostream& os) {
  printThroughRun(os, [rd](TextRun& text) { printRouteDistinguisher(rd, text); });
}

void formatRouteTarget(unsigned long long rt, std::ostream& os) {
  printThroughRun(os, [rt](TextRun& text) { printRouteTarget(rt, text); });
}

unsigned appendRouteDistinguisher(const unsigned char* p, TextRun& text) {
  printRouteDistinguisher(load<uint64_t>(p), text);
  return lengthRouteDistinguisher(p);
}

unsigned appendRouteTarget(const unsigned char* p, TextRun& text) {
  printRouteTarget(load<uint64_t>(p), text);
  return lengthRouteTarget(p);
}

unsigned formatRouteDistinguisher(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendRouteDistinguisher>(p, os);
}
unsigned lengthRouteDistinguisher(const unsigned char*) { return 8; }

unsigned formatRouteTarget(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendRouteTarget>(p, os);
}
unsigned lengthRouteTarget(const unsigned char*) { return 8; }

constexpr LabeledField kRtMembershipRouteKeyRows[] = {
    {"origin: ", &kU32FixedField}, {";", &kMembershipTargetField}, {""}};
constexpr FieldTable kRtMembershipRouteKeyFields{kRtMembershipRouteKeyRows};
unsigned formatRtMembershipRouteKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kRtMembershipRouteKeyRows>(p, os);
}
unsigned lengthRtMembershipRouteKey(const unsigned char* p) {
  return lengthTable<kRtMembershipRouteKeyRows>(p);
}

} // namespace Orvane
