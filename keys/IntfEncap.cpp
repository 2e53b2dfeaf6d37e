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
unsigned lengthEncap(const unsigned char* p) { return lengthU16(p) * 2 + lengthU8(p); }

constexpr LabeledField kIntfEncapRows[] = {
    {"", &kStringField}, {"(", &kU16Field}, {",", &kU16Field}, {")"}};
constexpr FieldTable kIntfEncapFields{kIntfEncapRows};
unsigned formatIntfEncap(const unsigned char* p, std::ostream& os) {
  return formatTable<kIntfEncapRows>(p, os);
}
unsigned lengthIntfEncap(const unsigned char* p) { return lengthTable<kIntfEncapRows>(p); }

constexpr FieldKind kEncapField{formatEncap, lengthEncap, nullptr,
                                "VLAN tag (u16 id, u16 TPID, u8 priority)", 5};
constexpr LabeledField kIntfEncapV2Rows[] = {
    {"", &kStringField}, {"(", &kEncapField}, {",", &kEncapField}, {")"}};
constexpr FieldTable kIntfEncapV2Fields{kIntfEncapV2Rows};
unsigned formatIntfEncapV2(const unsigned char* p, std::ostream& os) {
  return formatTable<kIntfEncapV2Rows>(p, os);
}
unsigned lengthIntfEncapV2(const unsigned char* p) { return lengthTable<kIntfEncapV2Rows>(p); }

} // namespace Orvane
