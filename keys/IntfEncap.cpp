#include "keys/IntfEncap.h"

#include "registry/Fields.h"
#include "registry/HostInterface.h"

#include <cstdint>

namespace Orvane {
namespace {

constexpr uint16_t kStandardTpid = 0x8100;

} // namespace

unsigned formatEncap(const unsigned char* p, std::ostream& os) {
  const auto vlanId = load<uint16_t>(p), tpid = load<uint16_t>(p + 2);
  const unsigned priority = p[4];
  if (priority == 0 && tpid == kStandardTpid)
    os << vlanId;
  else
    os << "0x" << std::hex << tpid << std::dec << ":p" << priority << ":" << vlanId;
  return lengthEncap(p);
}
unsigned lengthEncap(const unsigned char* p) {
  return measureFields(p, lengthU16, lengthU16, lengthU8);
}

unsigned formatIntfEncap(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatString, "(", formatU16, ",", formatU16, ")");
}
unsigned lengthIntfEncap(const unsigned char* p) {
  return measureFields(p, lengthString, lengthU16, lengthU16);
}

unsigned formatIntfEncapV2(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatString, "(", formatEncap, ",", formatEncap, ")");
}
unsigned lengthIntfEncapV2(const unsigned char* p) {
  return measureFields(p, lengthString, lengthEncap, lengthEncap);
}

} // namespace Orvane
