#include "bgp/RouteDistinguisher.h"

#include "address/Ip.h"
#include "registry/Bytes.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

#include <cstdint>

namespace Orvane {
namespace {

// Bits [shift, shift + width) of a 64-bit value.
uint64_t bits(uint64_t value, unsigned shift, unsigned width) {
  return (value >> shift) & ((uint64_t{1} << width) - 1);
}

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

void printRouteDistinguisher(unsigned long long rd, TextRun& text) {
  switch (bits(rd, 48, 16)) {
  case 0: {
    const auto assigned = static_cast<uint32_t>(bits(rd, 0, 32));
    text.number(bits(rd, 32, 16)).join(":");
    if (assigned <= 0xFFFFFF)
      text.number(assigned);
    else
      printIpv4Number(text, assigned);
    break;
  }
  case 1:
    printIpv4Number(text, static_cast<uint32_t>(bits(rd, 16, 32)));
    text.join(":").number(bits(rd, 0, 16));
    break;
  case 2: text.number(bits(rd, 16, 32)).join(":").number(bits(rd, 0, 16)); break;
  default: printUnknownRouteDistinguisher(rd, text.flush());
  }
}

void printRouteTarget(unsigned long long rt, TextRun& text) {
  switch (bits(rt, 56, 8)) {
  case 0: text.number(bits(rt, 32, 16)).join(":").number(bits(rt, 0, 32)); break;
  case 1:
    text.number(bits(rt, 40, 8)).join(".").number(bits(rt, 32, 8)).join(".");
    text.number(bits(rt, 24, 8)).join(".").number(bits(rt, 16, 8));
    text.join(":").number(bits(rt, 0, 16));
    break;
  case 2:
    text.number(bits(rt, 16, 32));
    if (bits(rt, 32, 16) == 0) text.join("L");
    text.join(":").number(bits(rt, 0, 16));
    break;
  default: printUnknownRouteTarget(rt, text.flush());
  }
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
